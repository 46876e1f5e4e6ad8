#include "session/qt_text.h"

#include <QFile>

namespace brooklet {

QString pathToQt(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}
std::string pathFromQt(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString indexedName(const QString& name, int index) {
    return QString("%1(%2)").arg(name).arg(index);
}

} // namespace brooklet
