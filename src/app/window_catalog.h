#pragma once
// Makes every window of the program known to the window host by its name.
namespace brooklet {

class WindowHost;

void registerAllWindows(WindowHost& windows);

} // namespace brooklet
