#include "editing/qt_lists.h"

#include "editing/widgets.h"

namespace brooklet {

int QtComboList::ListCount() const {
    return combo_->count();
}

std::string QtComboList::List(int i) const {
    if (i < 0 || i >= combo_->count())
        return std::string();
    return toBytes(combo_->itemText(i));
}

void QtComboList::AddItem(const std::string& Text) {
    combo_->addItem(fromBytes(Text));
}

void QtComboList::RemoveItem(int i) {
    if (i >= 0 && i < combo_->count())
        combo_->removeItem(i);
}

void QtComboList::Clear() {
    combo_->clear();
}

std::string QtComboList::Text() const {
    return toBytes(combo_->currentText());
}

int QtListWidgetList::ListCount() const {
    return list_->count();
}

std::string QtListWidgetList::List(int i) const {
    const QListWidgetItem* item = list_->item(i);
    return item ? toBytes(item->text()) : std::string();
}

void QtListWidgetList::AddItem(const std::string& Text) {
    list_->addItem(fromBytes(Text));
}

void QtListWidgetList::RemoveItem(int i) {
    if (i >= 0 && i < list_->count())
        delete list_->takeItem(i);
}

void QtListWidgetList::Clear() {
    list_->clear();
}

std::string QtListWidgetList::Text() const {
    const QListWidgetItem* item = list_->currentItem();
    return item ? toBytes(item->text()) : std::string();
}

} // namespace brooklet
