#include "editing/list_control.h"

namespace brooklet {

std::string StringList::List(int i) const {
    if (i < 0 || i >= ListCount())
        return std::string();
    return items[size_t(i)];
}

void StringList::RemoveItem(int i) {
    if (i < 0 || i >= ListCount())
        return;
    items.erase(items.begin() + i);
}

} // namespace brooklet
