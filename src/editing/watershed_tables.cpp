#include "editing/watershed_tables.h"

#include "editing/numbers.h"

#include <algorithm>
#include <unordered_map>

namespace brooklet {
namespace {

const std::string& emptyText() {
    static const std::string empty;
    return empty;
}

bool validAlternate(const WatershedTables& tables, int alternate) {
    return alternate >= 1 && alternate <= tables.AlternateCount;
}

// Keeps the per-alternate counts one entry longer than the alternates (index 0 unused).
void sizeAlternateCounts(WatershedTables& tables, int alternates) {
    const size_t size = size_t(std::max(alternates, 1)) + 1;
    tables.AlternateSubAreaCount.resize(size, 0);
    tables.AlternateReachCount.resize(size, 0);
}

// A new entry behind the alternate's others, every field empty. When it lies beyond the row
// bound, every alternate gets the larger bound.
int addAlternateEntry(TextArray3D& store, int& count, int alternate) {
    const int row = ++count;
    if (row > store.n3())
        RedimPreserve3D(store, store.n1(), store.n2(), row);
    for (int field = 1; field <= store.n1(); ++field)
        store.set(field, alternate, row, std::string());
    return row;
}

// Land use records first..last go to the same positions of the other store, which grows to hold
// them.
void copyLandUse(const TextTable& from, TextTable& to, int first, int last) {
    to.ensureRows(last);
    for (int position = first; position <= last && position <= from.rows(); ++position)
        for (int field = 1; field <= LandUseFields; ++field)
            to(field, position) = from(field, position);
}

} // namespace

// TextArray3D

void TextArray3D::redim(int n1, int n2, int n3) {
    n1_ = std::max(n1, 0);
    n2_ = std::max(n2, 0);
    n3_ = std::max(n3, 0);
    planes_.assign(size_t(n2_), std::vector<std::string>());
}

void TextArray3D::redimPreserve(int n1, int n2, int n3) {
    n1 = std::max(n1, 0);
    n2 = std::max(n2, 0);
    n3 = std::max(n3, 0);
    if (n1 != n1_) {
        for (auto& plane : planes_) {
            const size_t rows = n1_ == 0 ? 0 : plane.size() / size_t(n1_);
            std::vector<std::string> resized(rows * size_t(n1));
            const int kept = std::min(n1, n1_);
            for (size_t row = 0; row < rows; ++row)
                for (int field = 0; field < kept; ++field)
                    resized[row * size_t(n1) + size_t(field)] =
                        std::move(plane[row * size_t(n1_) + size_t(field)]);
            plane = std::move(resized);
        }
        n1_ = n1;
    }
    planes_.resize(size_t(n2));
    n2_ = n2;
    if (n3 < n3_) {
        const size_t limit = size_t(n3) * size_t(n1_);
        for (auto& plane : planes_)
            if (plane.size() > limit)
                plane.resize(limit);
    }
    n3_ = n3;
}

const std::string& TextArray3D::operator()(int field, int alternate, int row) const {
    if (field < 1 || field > n1_ || alternate < 1 || alternate > n2_ || row < 1 || row > n3_)
        return emptyText();
    const auto& plane = planes_[size_t(alternate - 1)];
    const size_t at = size_t(row - 1) * size_t(n1_) + size_t(field - 1);
    return at < plane.size() ? plane[at] : emptyText();
}

void TextArray3D::set(int field, int alternate, int row, const std::string& text) {
    if (field < 1 || field > n1_ || alternate < 1 || alternate > n2_ || row < 1 || row > n3_)
        return;
    auto& plane = planes_[size_t(alternate - 1)];
    const size_t at = size_t(row - 1) * size_t(n1_) + size_t(field - 1);
    if (at >= plane.size()) {
        if (text.empty())
            return;
        plane.resize(size_t(row) * size_t(n1_));
    }
    plane[at] = text;
}

void TextArray3D::copyAlternate(int from, int to) {
    if (from < 1 || from > n2_ || to < 1 || to > n2_ || from == to)
        return;
    planes_[size_t(to - 1)] = planes_[size_t(from - 1)];
}

bool TextArray3D::operator==(const TextArray3D& other) const {
    if (n1_ != other.n1_ || n2_ != other.n2_ || n3_ != other.n3_)
        return false;
    for (int alternate = 1; alternate <= n2_; ++alternate) {
        const auto& a = planes_[size_t(alternate - 1)];
        const auto& b = other.planes_[size_t(alternate - 1)];
        const size_t common = std::min(a.size(), b.size());
        if (!std::equal(a.begin(), a.begin() + std::ptrdiff_t(common), b.begin()))
            return false;
        // Texts beyond what one side has written must be empty on the other.
        const auto& longer = a.size() > b.size() ? a : b;
        for (size_t i = common; i < longer.size(); ++i)
            if (!longer[i].empty())
                return false;
    }
    return true;
}

void RedimPreserve3D(TextArray3D& Array, int N1, int N2, int N3) {
    Array.redimPreserve(N1, N2, N3);
}

// Sub-area tables

void resetSubAreaTables(WatershedTables& tables) {
    tables.SubAreaTable.redim(SubAreaFields, 1);
    tables.LandUseStore.redim(LandUseFields, 1);
    tables.LandUseFirst.assign(2, 0);
    tables.LandUseLast.assign(2, 0);
    tables.SubAreaRowIds.assign(2, 0);
    tables.SubAreaCount = 0;
}

int addSubAreaRow(WatershedTables& tables) {
    const int row = ++tables.SubAreaCount;
    tables.SubAreaTable.ensureRows(row);
    if (tables.LandUseFirst.size() < size_t(row) + 1) {
        tables.LandUseFirst.resize(size_t(row) + 1, 0);
        tables.LandUseLast.resize(size_t(row) + 1, 0);
    }
    if (tables.SubAreaRowIds.size() < size_t(row) + 1)
        tables.SubAreaRowIds.resize(size_t(row) + 1, 0);
    tables.LandUseFirst[size_t(row)] = 0;
    tables.LandUseLast[size_t(row)] = 0;
    tables.SubAreaRowIds[size_t(row)] = tables.NextSubAreaRowId++;
    return row;
}

int addLandUseRow(WatershedTables& tables, int row, const std::string& name, const std::string& soil,
                  const std::string& area) {
    const int position = ++tables.LandUseStoreCount;
    tables.LandUseStore.ensureRows(position);
    tables.LandUseStore(1, position) = name;
    tables.LandUseStore(2, position) = soil;
    tables.LandUseStore(3, position) = area;
    if (row >= 1 && size_t(row) < tables.LandUseFirst.size()) {
        if (tables.LandUseFirst[size_t(row)] == 0)
            tables.LandUseFirst[size_t(row)] = position;
        tables.LandUseLast[size_t(row)] = position;
    }
    return position;
}

void deleteSubAreaRow(WatershedTables& tables, int row) {
    if (row < 1 || row > tables.SubAreaCount)
        return;
    for (int later = row; later < tables.SubAreaCount; ++later)
        tables.SubAreaTable.copyRow(later + 1, later);
    // Each later sub-area keeps its own land use records: their positions move up with it.
    tables.LandUseFirst.erase(tables.LandUseFirst.begin() + row);
    tables.LandUseLast.erase(tables.LandUseLast.begin() + row);
    if (size_t(row) < tables.SubAreaRowIds.size())
        tables.SubAreaRowIds.erase(tables.SubAreaRowIds.begin() + row);
    --tables.SubAreaCount;
    if (tables.SubAreaCount > 0) {
        tables.SubAreaTable.resizeRows(tables.SubAreaCount);
        tables.LandUseFirst.resize(size_t(tables.SubAreaCount) + 1);
        tables.LandUseLast.resize(size_t(tables.SubAreaCount) + 1);
        tables.SubAreaRowIds.resize(size_t(tables.SubAreaCount) + 1);
    }
}

int subAreaRowOf(const WatershedTables& tables, int rowId) {
    for (int row = 1; row <= tables.SubAreaCount && size_t(row) < tables.SubAreaRowIds.size(); ++row)
        if (rowId != 0 && tables.SubAreaRowIds[size_t(row)] == rowId)
            return row;
    return 0;
}

std::vector<int> subAreaRowsOf(const WatershedTables& tables, const std::vector<int>& rowIds) {
    std::unordered_map<int, int> rowOfId;
    rowOfId.reserve(size_t(tables.SubAreaCount));
    for (int row = 1; row <= tables.SubAreaCount && size_t(row) < tables.SubAreaRowIds.size(); ++row)
        rowOfId[tables.SubAreaRowIds[size_t(row)]] = row;
    std::vector<int> rows(rowIds.size(), 0);
    for (size_t k = 1; k < rowIds.size(); ++k) {
        const auto found = rowOfId.find(rowIds[k]);
        if (rowIds[k] != 0 && found != rowOfId.end())
            rows[k] = found->second;
    }
    return rows;
}

bool loadSubAreasFromAlternate(WatershedTables& tables, int CurrentAlternate) {
    if (!validAlternate(tables, CurrentAlternate))
        return false;
    resetSubAreaTables(tables);
    const int count = tables.AlternateSubAreaCount[size_t(CurrentAlternate)];
    for (int row = 1; row <= count; ++row) {
        addSubAreaRow(tables);
        for (int field = 1; field <= SubAreaFields; ++field)
            tables.SubAreaTable(field, row) = tables.AlternateSubAreas(field, CurrentAlternate, row);
        const int first = alternateLandUseFirst(tables, CurrentAlternate, row);
        const int last = alternateLandUseLast(tables, CurrentAlternate, row);
        tables.LandUseFirst[size_t(row)] = first;
        tables.LandUseLast[size_t(row)] = last;
        if (first <= 0)
            continue;
        copyLandUse(tables.AlternateLandUse, tables.LandUseStore, first, last);
    }
    return true;
}

bool storeSubAreasInAlternate(WatershedTables& tables, int CurrentAlternate) {
    if (!validAlternate(tables, CurrentAlternate))
        return false;
    auto& store = tables.AlternateSubAreas;
    if (tables.SubAreaCount > store.n3())
        RedimPreserve3D(store, AlternateSubAreaFields, store.n2(), tables.SubAreaCount);
    tables.AlternateSubAreaCount[size_t(CurrentAlternate)] = tables.SubAreaCount;
    for (int row = 1; row <= tables.SubAreaCount; ++row) {
        for (int field = 1; field <= SubAreaFields; ++field)
            store.set(field, CurrentAlternate, row, tables.SubAreaTable(field, row));
        const int first = tables.LandUseFirst[size_t(row)];
        const int last = tables.LandUseLast[size_t(row)];
        store.set(AlternateLandUseFirstField, CurrentAlternate, row, std::to_string(first));
        store.set(AlternateLandUseLastField, CurrentAlternate, row, std::to_string(last));
        if (first <= 0)
            continue;
        copyLandUse(tables.LandUseStore, tables.AlternateLandUse, first, last);
    }
    return true;
}

bool loadReachesFromAlternate(const WatershedTables& tables, int CurrentAlternate, TextTable& ReachTable,
                              int& ReachCount) {
    if (!validAlternate(tables, CurrentAlternate))
        return false;
    const int count = tables.AlternateReachCount[size_t(CurrentAlternate)];
    ReachTable.redim(ReachFields, std::max(count, 1));
    ReachCount = 0;
    if (count <= 0)
        return true;
    ReachCount = count;
    for (int row = 1; row <= count; ++row)
        for (int field = 1; field <= ReachFields; ++field)
            ReachTable(field, row) = tables.AlternateReaches(field, CurrentAlternate, row);
    return true;
}

bool storeReachesInAlternate(WatershedTables& tables, int CurrentAlternate, const TextTable& ReachTable,
                             int ReachCount) {
    if (!validAlternate(tables, CurrentAlternate))
        return false;
    auto& store = tables.AlternateReaches;
    if (ReachCount > store.n3())
        RedimPreserve3D(store, ReachFields, store.n2(), ReachCount);
    tables.AlternateReachCount[size_t(CurrentAlternate)] = ReachCount;
    const int fields = std::min(ReachFields, ReachTable.fields());
    for (int row = 1; row <= ReachCount && row <= ReachTable.rows(); ++row)
        for (int field = 1; field <= fields; ++field)
            store.set(field, CurrentAlternate, row, ReachTable(field, row));
    return true;
}

// Alternate store

void resetAlternateStore(WatershedTables& tables) {
    tables.AlternateCount = 0;
    tables.LandUseStoreCount = 0;
    tables.AlternateNames.redim(AlternateNameFields, 1);
    tables.AlternateSubAreas.redim(AlternateSubAreaFields, 1, 1);
    tables.AlternateReaches.redim(ReachFields, 1, 1);
    tables.AlternateLandUse.redim(LandUseFields, 1);
    tables.AlternateSubAreaCount.assign(2, 0);
    tables.AlternateReachCount.assign(2, 0);
}

int addAlternate(WatershedTables& tables, const std::string& name, const std::string& description) {
    const int alternate = ++tables.AlternateCount;
    tables.AlternateNames.ensureRows(alternate);
    tables.AlternateNames(1, alternate) = name;
    tables.AlternateNames(2, alternate) = description;
    if (alternate > tables.AlternateSubAreas.n2())
        RedimPreserve3D(tables.AlternateSubAreas, AlternateSubAreaFields, alternate,
                        tables.AlternateSubAreas.n3());
    if (alternate > tables.AlternateReaches.n2())
        RedimPreserve3D(tables.AlternateReaches, ReachFields, alternate, tables.AlternateReaches.n3());
    sizeAlternateCounts(tables, alternate);
    tables.AlternateSubAreaCount[size_t(alternate)] = 0;
    tables.AlternateReachCount[size_t(alternate)] = 0;
    return alternate;
}

int addAlternateSubArea(WatershedTables& tables, int alternate) {
    if (!validAlternate(tables, alternate))
        return 0;
    const int row = addAlternateEntry(tables.AlternateSubAreas,
                                      tables.AlternateSubAreaCount[size_t(alternate)], alternate);
    tables.AlternateSubAreas.set(AlternateLandUseFirstField, alternate, row, "0");
    tables.AlternateSubAreas.set(AlternateLandUseLastField, alternate, row, "0");
    return row;
}

int addAlternateReach(WatershedTables& tables, int alternate) {
    if (!validAlternate(tables, alternate))
        return 0;
    return addAlternateEntry(tables.AlternateReaches, tables.AlternateReachCount[size_t(alternate)],
                             alternate);
}

int addAlternateLandUse(WatershedTables& tables, int alternate, int entry, const std::string& name,
                        const std::string& soil, const std::string& area) {
    const int position = ++tables.LandUseStoreCount;
    tables.AlternateLandUse.ensureRows(position);
    tables.AlternateLandUse(1, position) = name;
    tables.AlternateLandUse(2, position) = soil;
    tables.AlternateLandUse(3, position) = area;
    if (validAlternate(tables, alternate) && entry >= 1) {
        auto& store = tables.AlternateSubAreas;
        if (alternateLandUseFirst(tables, alternate, entry) == 0)
            store.set(AlternateLandUseFirstField, alternate, entry, std::to_string(position));
        store.set(AlternateLandUseLastField, alternate, entry, std::to_string(position));
    }
    return position;
}

void deleteAlternate(WatershedTables& tables, int alternate) {
    if (!validAlternate(tables, alternate))
        return;
    for (int later = alternate; later < tables.AlternateCount; ++later) {
        tables.AlternateNames.copyRow(later + 1, later);
        tables.AlternateSubAreaCount[size_t(later)] = tables.AlternateSubAreaCount[size_t(later) + 1];
        tables.AlternateReachCount[size_t(later)] = tables.AlternateReachCount[size_t(later) + 1];
        tables.AlternateSubAreas.copyAlternate(later + 1, later);
        tables.AlternateReaches.copyAlternate(later + 1, later);
    }
    const int count = --tables.AlternateCount;
    if (count > 0) {
        tables.AlternateNames.resizeRows(count);
        RedimPreserve3D(tables.AlternateSubAreas, AlternateSubAreaFields, count,
                        tables.AlternateSubAreas.n3());
        RedimPreserve3D(tables.AlternateReaches, ReachFields, count, tables.AlternateReaches.n3());
        tables.AlternateSubAreaCount.resize(size_t(count) + 1);
        tables.AlternateReachCount.resize(size_t(count) + 1);
    } else {
        tables.AlternateNames.redim(AlternateNameFields, 1);
        tables.AlternateSubAreas.redim(AlternateSubAreaFields, 1, 1);
        tables.AlternateReaches.redim(ReachFields, 1, 1);
        tables.AlternateSubAreaCount.assign(2, 0);
        tables.AlternateReachCount.assign(2, 0);
    }
}

int alternateLandUseFirst(const WatershedTables& tables, int alternate, int entry) {
    return static_cast<int>(
        leadingNumber(tables.AlternateSubAreas(AlternateLandUseFirstField, alternate, entry)));
}

int alternateLandUseLast(const WatershedTables& tables, int alternate, int entry) {
    return static_cast<int>(
        leadingNumber(tables.AlternateSubAreas(AlternateLandUseLastField, alternate, entry)));
}

int findAlternate(const WatershedTables& tables, const std::string& name) {
    const std::string wanted = toUpper(trim(name));
    for (int alternate = 1; alternate <= tables.AlternateCount; ++alternate)
        if (toUpper(trim(tables.AlternateNames(1, alternate))) == wanted)
            return alternate;
    return 0;
}

int findAlternateEntry(const WatershedTables& tables, int alternate, int Kind, const std::string& text,
                       bool ignoreCase) {
    if (!validAlternate(tables, alternate))
        return 0;
    const auto key = [ignoreCase](const std::string& name) {
        return ignoreCase ? toUpper(trim(name)) : trim(name);
    };
    const std::string wanted = key(text);
    const TextArray3D& store = Kind == 1 ? tables.AlternateSubAreas : tables.AlternateReaches;
    const int count = Kind == 1 ? tables.AlternateSubAreaCount[size_t(alternate)]
                                : tables.AlternateReachCount[size_t(alternate)];
    for (int row = count; row >= 1; --row)
        if (key(store(1, alternate, row)) == wanted)
            return row;
    return 0;
}

void deleteAlternateEntry(WatershedTables& tables, int alternate, int Kind, int row) {
    if (!validAlternate(tables, alternate))
        return;
    TextArray3D& store = Kind == 1 ? tables.AlternateSubAreas : tables.AlternateReaches;
    int& count = Kind == 1 ? tables.AlternateSubAreaCount[size_t(alternate)]
                           : tables.AlternateReachCount[size_t(alternate)];
    if (row < 1 || row > count)
        return;
    --count;
    if (count <= 0)
        return;
    // Every later entry moves up, reaches as sub-areas: a bound taken from the number of
    // alternates would repeat one reach and lose the last.
    for (int moved = row; moved <= count; ++moved)
        for (int field = 1; field <= store.n1(); ++field)
            store.set(field, alternate, moved, store(field, alternate, moved + 1));
}

void fillAlternateEntries(const WatershedTables& tables, int CurrentAlternate, int Kind, ListControl& List) {
    List.Clear();
    if (!validAlternate(tables, CurrentAlternate))
        return;
    if (Kind == 1) {
        const int count = tables.AlternateSubAreaCount[size_t(CurrentAlternate)];
        for (int row = 1; row <= count; ++row)
            List.AddItem(tables.AlternateSubAreas(1, CurrentAlternate, row));
    } else {
        const int count = tables.AlternateReachCount[size_t(CurrentAlternate)];
        for (int row = 1; row <= count; ++row)
            List.AddItem(tables.AlternateReaches(1, CurrentAlternate, row));
    }
}

} // namespace brooklet
