#pragma once
// The runoff curve numbers of the standard land uses: 81 rows, each a land use name and one
// curve number for each hydrologic soil group A, B, C and D. The table is part of the program;
// there is no file behind it. The land use calculator shows the rows in this order, and reads
// its "LAND AREA" records back by a scan that only goes forward through them, so the order is
// part of the data. The local land use merge looks names up in it.
#include <array>
#include <string>

namespace brooklet {

constexpr int StandardLandUseRows = 81;
// Column 0 the name, columns 1 to 4 the curve numbers of groups A to D.
constexpr int LandUseColumns = 5;

class StandardLandUseTable {
public:
    // Cell by row (1 to 81) and column (0 to 4): the name, or a curve number as the text of a
    // whole number ("68"), empty where the land use has none for that group.
    const std::string& operator()(int row, int column) const {
        return cells_[static_cast<size_t>(row - 1)][static_cast<size_t>(column)];
    }
    // True once the table has been filled.
    bool loaded() const { return !cells_[0][0].empty(); }

private:
    friend void LoadStandardLandUse(StandardLandUseTable& StandardLandUse);
    std::array<std::array<std::string, LandUseColumns>, StandardLandUseRows> cells_;
};

// Fills the table; afterwards it is complete.
void LoadStandardLandUse(StandardLandUseTable& StandardLandUse);

// The program's own table, filled on first use and never changed afterwards.
const StandardLandUseTable& StandardLandUse();

} // namespace brooklet
