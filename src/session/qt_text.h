#pragma once
// Text between the program's bytes and Qt: file text byte for byte, paths in the file system's
// own encoding, and the names of control arrays.
#include <QString>

#include <string>

namespace brooklet {

// File text goes through the program byte for byte.
inline QString fromBytes(const std::string& bytes) {
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}
inline std::string toBytes(const QString& text) {
    return text.toLatin1().toStdString();
}

// Paths are in the file system's own encoding.
QString pathToQt(const std::string& path);
std::string pathFromQt(const QString& path);

// "txtInp(3)": the name of element Index of a control array.
QString indexedName(const QString& name, int index);

} // namespace brooklet
