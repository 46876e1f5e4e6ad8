#pragma once
// The identifier lists on the ui's list widgets: a combo box or a list box seen as a list
// control. Texts go through Latin-1 both ways, so a name reaches the file byte for byte.
#include <QComboBox>
#include <QListWidget>

#include "editing/list_control.h"

namespace brooklet {

class QtComboList : public ListControl {
public:
    explicit QtComboList(QComboBox* combo) : combo_(combo) {}
    int ListCount() const override;
    std::string List(int i) const override;
    void AddItem(const std::string& Text) override;
    void RemoveItem(int i) override;
    void Clear() override;
    // The text in the combo's edit field, or its current item when it has none.
    std::string Text() const override;

private:
    QComboBox* combo_;
};

class QtListWidgetList : public ListControl {
public:
    explicit QtListWidgetList(QListWidget* list) : list_(list) {}
    int ListCount() const override;
    std::string List(int i) const override;
    void AddItem(const std::string& Text) override;
    void RemoveItem(int i) override;
    void Clear() override;
    // The current item's text; empty when there is none.
    std::string Text() const override;

private:
    QListWidget* list_;
};

} // namespace brooklet
