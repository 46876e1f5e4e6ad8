#pragma once
// The watershed tables in memory: the sub-area table with its land use records, which the
// sub-area window and its two calculators share, the rain gage table, and the alternate store
// that holds whole variants of the sub-area and reach data. They live in the program context
// and are re-created by the window that next uses them.
#include <string>
#include <vector>

#include "editing/list_control.h"
#include "editing/text_table.h"

namespace brooklet {

constexpr int SubAreaFields = 25;
constexpr int AlternateSubAreaFields = 27;
constexpr int AlternateLandUseFirstField = 26;
constexpr int AlternateLandUseLastField = 27;
constexpr int ReachFields = 20;
constexpr int LandUseFields = 3;
constexpr int AlternateNameFields = 2;

// A table of texts with three indexes from 1: field (1..n1), alternate (1..n2), row (1..n3).
// The bounds are those the store was given; each alternate keeps only the rows it has written,
// so that raising the row bound for every alternate, as the store does when one alternate
// outgrows it, costs nothing. A text never written is empty.
class TextArray3D {
public:
    TextArray3D() = default;
    TextArray3D(int n1, int n2, int n3) { redim(n1, n2, n3); }

    int n1() const { return n1_; }
    int n2() const { return n2_; }
    int n3() const { return n3_; }

    // New bounds, every text empty.
    void redim(int n1, int n2, int n3);
    // New bounds; texts whose indexes lie within the old and the new bounds are kept.
    void redimPreserve(int n1, int n2, int n3);

    const std::string& operator()(int field, int alternate, int row) const;
    void set(int field, int alternate, int row, const std::string& text);
    // Alternate `to` takes every text of alternate `from`; `from` keeps them.
    void copyAlternate(int from, int to);

    bool operator==(const TextArray3D& other) const;
    bool operator!=(const TextArray3D& other) const { return !(*this == other); }

private:
    int n1_ = 0, n2_ = 0, n3_ = 0;
    // Per alternate (index alternate - 1): the rows written so far, n1 texts a row.
    std::vector<std::vector<std::string>> planes_;
};

// The store grows through the same routine as every three-index table.
void RedimPreserve3D(TextArray3D& Array, int N1, int N2, int N3);

// The rain gages of the storm section and their 2-year rainfall, indexed from 1.
struct RainfallTable {
    std::vector<std::string> RainfallIds{std::string(), std::string()};
    std::vector<float> Rainfall2Yr{0.0f, 0.0f};
    int RainfallCount = 0;
};

struct WatershedTables {
    // The current sub-area data: 25 fields a row, rows 1 to SubAreaCount.
    TextTable SubAreaTable{SubAreaFields, 1};
    int SubAreaCount = 0;
    // Per sub-area row (index from 1): first and last position of its land use records; 0 for none.
    std::vector<int> LandUseFirst{0, 0};
    std::vector<int> LandUseLast{0, 0};
    // Per sub-area row (index from 1): a number that no other row of the program's run has had,
    // so a calculator finds the rows it was opened on again after rows were deleted or the
    // tables were loaded anew.
    std::vector<int> SubAreaRowIds{0, 0};
    int NextSubAreaRowId = 1;
    // Name, soil group and area of each land use record.
    TextTable LandUseStore{LandUseFields, 1};
    // Positions in use; shared by LandUseStore and AlternateLandUse.
    int LandUseStoreCount = 0;
    RainfallTable Rainfall;
    // The row handed to a calculator when it is opened.
    int CalculatorSubArea = 0;

    // The alternate store.
    int AlternateCount = 0;
    // Field 1 the alternate's name, field 2 its description; one row per alternate.
    TextTable AlternateNames{AlternateNameFields, 1};
    // Fields 1 to 25 as SubAreaTable, 26 and 27 the first and last land use position.
    TextArray3D AlternateSubAreas{AlternateSubAreaFields, 1, 1};
    // Fields as the reach table.
    TextArray3D AlternateReaches{ReachFields, 1, 1};
    TextTable AlternateLandUse{LandUseFields, 1};
    // Per alternate (index from 1).
    std::vector<int> AlternateSubAreaCount{0, 0};
    std::vector<int> AlternateReachCount{0, 0};
    // The entry handed to the sub-area or reach window; 0 for a new entry.
    int AlternatePickedRow = 0;
};

// Sub-area tables.

// The state at the sub-area window's load: one empty row in the sub-area table and the land
// use tables, no sub-area. LandUseStoreCount is kept, so later records follow the old count.
void resetSubAreaTables(WatershedTables& tables);
// A new sub-area row with no land use; the tables keep their contents. Gives its row.
int addSubAreaRow(WatershedTables& tables);
// A land use record for the row: the count grows, the store with it. Gives its position.
int addLandUseRow(WatershedTables& tables, int row, const std::string& name, const std::string& soil,
                  const std::string& area);
// Removes a row: later rows move down with their fields, land use positions and identities.
void deleteSubAreaRow(WatershedTables& tables, int row);
// For each row identity (index from 1), the row that has it now; 0 for a row that is gone.
std::vector<int> subAreaRowsOf(const WatershedTables& tables, const std::vector<int>& rowIds);
// The row that has the identity now; 0 when it is gone.
int subAreaRowOf(const WatershedTables& tables, int rowId);

// Alternate mode of the sub-area window: the tables are reset and take the rows of the
// alternate, with their land use records at the same positions. With CurrentAlternate 0
// nothing is touched and false is given back.
bool loadSubAreasFromAlternate(WatershedTables& tables, int CurrentAlternate);
// The rows of the sub-area table go back into the alternate, enlarging the store when the
// table has outgrown it. With CurrentAlternate 0 nothing is touched and false is given back.
bool storeSubAreasInAlternate(WatershedTables& tables, int CurrentAlternate);

// The same for the reach window, whose table the caller owns (20 fields a row).
bool loadReachesFromAlternate(const WatershedTables& tables, int CurrentAlternate, TextTable& ReachTable,
                              int& ReachCount);
bool storeReachesInAlternate(WatershedTables& tables, int CurrentAlternate, const TextTable& ReachTable,
                             int ReachCount);

// Alternate store.

// The state at the alternate window's load: no alternate, one empty row in every table, the
// land use count 0.
void resetAlternateStore(WatershedTables& tables);
// A new alternate behind the others; the tables grow, keeping every value. Gives its index.
int addAlternate(WatershedTables& tables, const std::string& name, const std::string& description);
// A new sub-area or reach entry of the alternate, with no land use. When the alternate
// outgrows the row bound, every alternate gets the larger bound. Gives its row.
int addAlternateSubArea(WatershedTables& tables, int alternate);
int addAlternateReach(WatershedTables& tables, int alternate);
// A land use record for an entry of the alternate, in the land use rows all alternates share.
int addAlternateLandUse(WatershedTables& tables, int alternate, int entry, const std::string& name,
                        const std::string& soil, const std::string& area);
// Removes an alternate: later ones move down with their counts and entries; the tables are cut
// to the count, or go back to one empty row when none remains. Land use rows stay.
void deleteAlternate(WatershedTables& tables, int alternate);
// First and last land use position of an alternate's sub-area entry.
int alternateLandUseFirst(const WatershedTables& tables, int alternate, int entry);
int alternateLandUseLast(const WatershedTables& tables, int alternate, int entry);

// The first alternate whose name is Name, both trimmed and case not counting; 0 for none.
int findAlternate(const WatershedTables& tables, const std::string& name);
// The last sub-area entry (Kind 1) or reach entry (any other Kind) of the alternate whose
// trimmed field 1 is the trimmed Text; with IgnoreCase, case not counting. 0 for none.
int findAlternateEntry(const WatershedTables& tables, int alternate, int Kind, const std::string& text,
                       bool ignoreCase);
// Removes an entry from an alternate: its count falls by one. Later sub-area entries close the
// gap, land use positions with them. Reach rows move up one place only as far as the number of
// alternates, as the alternate window has always done: rows behind that stay where they were.
void deleteAlternateEntry(WatershedTables& tables, int alternate, int Kind, int row);

// The list of an alternate's entries as the alternate window shows them: cleared, then
// field 1 of every sub-area entry (Kind 1) or every reach entry (any other Kind), in order.
void fillAlternateEntries(const WatershedTables& tables, int CurrentAlternate, int Kind, ListControl& List);

} // namespace brooklet
