#pragma once
// The program's version, set in one place: the project's version in the build.
namespace brooklet {

extern const char* const ProgramVersion;

} // namespace brooklet
