#pragma once
// What the identifier lists need of a list or combo box: its items by position, adding and
// removing an item, and the combo's current text. The ui adapts its list widgets to it; the
// core, the tests and the benchmarks use the plain list below.
#include <string>
#include <vector>

namespace brooklet {

class ListControl {
public:
    virtual ~ListControl() = default;
    virtual int ListCount() const = 0;
    // Item i, from 0; empty for a position that holds no item.
    virtual std::string List(int i) const = 0;
    // Adds an item behind the others, or in its place when the control sorts itself.
    virtual void AddItem(const std::string& Text) = 0;
    virtual void RemoveItem(int i) = 0;
    virtual void Clear() = 0;
    // The combo's current text; a plain list gives its current item, or nothing.
    virtual std::string Text() const = 0;
};

// A list held in memory.
class StringList : public ListControl {
public:
    StringList() = default;
    explicit StringList(std::vector<std::string> items) : items(std::move(items)) {}

    int ListCount() const override { return static_cast<int>(items.size()); }
    std::string List(int i) const override;
    void AddItem(const std::string& Text) override { items.push_back(Text); }
    void RemoveItem(int i) override;
    void Clear() override { items.clear(); }
    std::string Text() const override { return text; }

    std::vector<std::string> items;
    std::string text;
};

} // namespace brooklet
