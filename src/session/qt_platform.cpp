#include "session/qt_platform.h"

#include "editing/widgets.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include <algorithm>

namespace brooklet {

QStringList qtFileFilters(const std::string& filter) {
    const QStringList parts = fromBytes(filter).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i];
        const QString pattern = parts[i + 1];
        // Qt reads the patterns from the parentheses of the description; give it the pattern
        // when the description names none.
        filters << (description.contains('(') ? description : description + " (" + pattern + ")");
    }
    return filters;
}

BoxAnswer QtPlatform::showBox(const BoxRequest& box) {
    QMessageBox message(QApplication::activeWindow());
    message.setWindowTitle(pathToQt(box.title));
    message.setText(pathToQt(box.text));
    switch (box.icon) {
    case BoxIcon::None:
        message.setIcon(QMessageBox::NoIcon);
        break;
    case BoxIcon::Information:
        message.setIcon(QMessageBox::Information);
        break;
    case BoxIcon::Exclamation:
        message.setIcon(QMessageBox::Warning);
        break;
    case BoxIcon::Question:
        message.setIcon(QMessageBox::Question);
        break;
    case BoxIcon::Critical:
        message.setIcon(QMessageBox::Critical);
        break;
    }
    switch (box.buttons) {
    case BoxButtons::Ok:
        message.setStandardButtons(QMessageBox::Ok);
        break;
    case BoxButtons::OkCancel:
        message.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        break;
    case BoxButtons::YesNo:
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case BoxButtons::YesNoCancel:
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    switch (message.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Cancel:
        return BoxAnswer::Cancel;
    case QMessageBox::Ok:
        return BoxAnswer::Ok;
    default:
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
    }
}

namespace {

std::optional<std::string> showFileDialog(const FileDialogSettings& settings, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(QApplication::activeWindow(), pathToQt(settings.DialogTitle),
                       pathToQt(settings.InitDir));
    dialog.setAcceptMode(mode);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the program asks its own question
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    const QStringList filters = qtFileFilters(settings.Filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        const int index = std::clamp(settings.FilterIndex, 1, static_cast<int>(filters.size()));
        dialog.selectNameFilter(filters[index - 1]);
    }
    const QString name = pathToQt(settings.FileName);
    if (!name.isEmpty() && !name.contains('*')) dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return pathFromQt(dialog.selectedFiles().first());
}

} // namespace

std::optional<std::string> QtPlatform::showOpenDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, QFileDialog::AcceptOpen);
}

std::optional<std::string> QtPlatform::showSaveDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, QFileDialog::AcceptSave);
}

void QtPlatform::endProgram() {
    QApplication::closeAllWindows();
    QCoreApplication::exit(0);
}

} // namespace brooklet
