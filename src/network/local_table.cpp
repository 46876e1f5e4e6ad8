#include "network/local_table.h"

#include "editing/numbers.h"
#include "session/section_table.h"

namespace brooklet {

WriteOptions LocalFileWriting(const Session& session) {
    return WriteOptions{true, session.WorkFolder};
}

void LocalTable::reset(int previousAtLoad) {
    Rows.redim(LocalTableFields, 1);
    Count = 0;
    Selected = 0;
    Previous = previousAtLoad;
}

int LocalTable::addRow(const std::string& Name) {
    ++Count;
    Rows.ensureRows(Count);
    Rows(1, Count) = Name;
    return Count;
}

int LocalTable::addRow(const FiveTexts& texts) {
    const int added = addRow(texts[0]);
    for (int field = 2; field <= LocalTableFields; ++field)
        Rows(field, added) = texts[static_cast<size_t>(field - 1)];
    return added;
}

int LocalTable::findLast(const std::string& Name) const {
    const std::string wanted = trim(Name);
    for (int row = Count; row >= 1; --row)
        if (trim(Rows(1, row)) == wanted)
            return row;
    return 0;
}

void LocalTable::emptyRow(int row) {
    if (row >= 1 && row <= Count)
        Rows.fillRow(row, std::string());
}

std::string CutName(const std::string& Text, size_t Length) {
    const std::string trimmed = trim(Text);
    if (trimmed.size() > Length)
        return trimmed.substr(0, Length);
    return Text;
}

FiveTexts LocalTable::row(int row) const {
    FiveTexts texts;
    for (int field = 1; field <= LocalTableFields; ++field)
        texts[static_cast<size_t>(field - 1)] = Rows(field, row);
    return texts;
}

} // namespace brooklet
