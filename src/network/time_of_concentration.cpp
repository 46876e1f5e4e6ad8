#include "network/time_of_concentration.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "editing/watershed_tables.h"
#include "network/sub_area.h"

#include <algorithm>
#include <cmath>

namespace brooklet {

const char* const SheetSurfaces[SheetSurfaceCount] = {
    "A Smooth Surface",           "B Fallow (no residue)",  "C Cultivated < 20% residue",
    "D Cultivated > 20% residue", "E Grass (Range, short)", "F Grass (Dense)",
    "G Grass (Bermuda)",          "H Woods (Light)",        "I Woods (Dense)",
    "J Range (Natural)"};
const char* const ManningTable[SheetSurfaceCount] = {".011", ".05", ".06", ".17", ".15",
                                                     ".24",  ".41", ".4",  ".8",  ".13"};
const char* const ShallowSurfaces[2] = {"Paved", "Unpaved"};

namespace {

double rounded(double value) {
    return roundHalfEven(value, 3);
}

bool blank(const TcBoxes& boxes, int index) {
    return trim(boxes[size_t(index)]).empty();
}

double value(const TcBoxes& boxes, int index) {
    return leadingNumber(boxes[size_t(index)]);
}

// A result as its box shows it; what is no number leaves the box empty.
std::string resultText(double result) {
    return std::isfinite(result) ? NumberText(result) : std::string();
}

// The first letter of a box's text; 0 for an empty text.
char firstLetter(const std::string& text) {
    return text.empty() ? '\0' : text[0];
}

bool sheetComplete(const TcBoxes& boxes) {
    if (blank(boxes, RainfallBox) || blank(boxes, 12) || blank(boxes, 13))
        return false;
    if (blank(boxes, 14) && blank(boxes, SheetSurfaceBox))
        return false;
    return value(boxes, RainfallBox) > 0;
}

bool computeSheet(TcBoxes& boxes) {
    if (!sheetComplete(boxes)) {
        boxes[SheetTimeBox].clear();
        return false;
    }
    const char letter = firstLetter(boxes[SheetSurfaceBox]);
    const size_t surface = letter ? SheetSurfaceLetters.find(letter) : std::string::npos;
    const float n =
        float(surface != std::string::npos ? leadingNumber(ManningTable[surface]) : value(boxes, 14));
    boxes[SheetTimeBox] =
        resultText(SheetTravelTime(n, value(boxes, 12), value(boxes, RainfallBox), value(boxes, 13)));
    return true;
}

bool computeShallow(TcBoxes& boxes) {
    if (blank(boxes, 16) || blank(boxes, 17) || blank(boxes, ShallowSurfaceBox)) {
        boxes[ShallowVelocityBox].clear();
        boxes[ShallowTimeBox].clear();
        return false;
    }
    const char letter = firstLetter(boxes[ShallowSurfaceBox]);
    if (letter == 'U' || letter == 'P')
        boxes[ShallowVelocityBox] = resultText(ShallowVelocity(letter == 'P', value(boxes, 17)));
    boxes[ShallowTimeBox] = resultText(TravelTime(value(boxes, 16), value(boxes, ShallowVelocityBox)));
    return true;
}

bool computeChannel(TcBoxes& boxes) {
    if (!blank(boxes, 20) && !blank(boxes, 21) && !blank(boxes, 22) && !blank(boxes, 23))
        boxes[24] = resultText(
            ChannelVelocity(value(boxes, 22), value(boxes, 23), value(boxes, 20), value(boxes, 21)));
    if (blank(boxes, 19) || blank(boxes, 24)) {
        boxes[ChannelTimeBox].clear();
        return false;
    }
    boxes[ChannelTimeBox] = resultText(TravelTime(value(boxes, 19), value(boxes, 24)));
    return true;
}

} // namespace

double SheetTravelTime(float n, double length, double rainfall, double slope) {
    const double numerator = 0.007 * std::pow(double(n) * length, 0.8);
    return rounded(numerator / (std::pow(rainfall, 0.5) * std::pow(slope, 0.4)));
}

double ShallowVelocity(bool paved, double slope) {
    return rounded((paved ? 20.3282 : 16.1345) * std::pow(slope, 0.5));
}

double TravelTime(double length, double velocity) {
    return rounded(length / velocity / 3600);
}

double ChannelVelocity(double endArea, double wettedPerimeter, double slope, double n) {
    const double twoThirds = 2.0 / 3.0;
    return rounded(1.49 * std::pow(endArea / wettedPerimeter, twoThirds) * std::pow(slope, 0.5) / n);
}

void ComputeTcSegment(TcBoxes& boxes, int index) {
    bool complete = false;
    if (index >= 12 && index <= SheetSurfaceBox)
        complete = computeSheet(boxes);
    else if (index >= 16 && index <= ShallowSurfaceBox)
        complete = computeShallow(boxes);
    else if (index >= 19 && index <= 24)
        complete = computeChannel(boxes);
    else
        return;
    // A segment that is not there counts 0. The sum is shown in as many digits as the double
    // has, not rounded.
    boxes[TotalTimeBox] = complete
                              ? ExactNumberText(value(boxes, SheetTimeBox) + value(boxes, ShallowTimeBox) +
                                                value(boxes, ChannelTimeBox))
                              : std::string();
}

double SheetLengthLimit(bool EnglishUnits) {
    return EnglishUnits ? 100 : 30.5;
}

bool TcValueAccepted(int index, const std::string& text, bool EnglishUnits) {
    bool valid = true;
    if (index == 12)
        ValidRealRange(true, 0, SheetLengthLimit(EnglishUnits), text, valid);
    else if (index == 14 || index == 21)
        ValidRealRange(true, 0.0005, 1, text, valid);
    else
        ValidRealAbove(true, 0, text, valid);
    return valid;
}

std::string SurfaceListText(const std::string& code, const std::string& letters, const char* const* items) {
    // The code is looked for as a whole in the letters; an empty code finds the blank in front.
    const size_t place = letters.find(code);
    if (place == std::string::npos)
        return code;
    return place == 0 ? std::string(" ") : std::string(items[place - 1]);
}

TextTable BuildTcTable(const WatershedTables& tables) {
    TextTable TcTable(TcFields, std::max(tables.SubAreaCount, 1));
    for (int row = 1; row <= tables.SubAreaCount; ++row) {
        TcTable(1, row) = tables.SubAreaTable(1, row);
        for (int field = SheetFirstField; field <= ChannelLastField; ++field)
            TcTable(field, row) = tables.SubAreaTable(field, row);
        TcTable(SheetSurfaceBox, row) =
            SurfaceListText(TcTable(SheetSurfaceBox, row), " " + SheetSurfaceLetters, SheetSurfaces);
        TcTable(ShallowSurfaceBox, row) =
            SurfaceListText(TcTable(ShallowSurfaceBox, row), " " + ShallowSurfaceLetters, ShallowSurfaces);
    }
    return TcTable;
}

void ReturnTcTable(const TextTable& TcTable, const std::vector<int>& RowIds, WatershedTables& tables) {
    const std::vector<int> rows = subAreaRowsOf(tables, RowIds);
    for (int tcRow = 1; tcRow <= TcTable.rows() && size_t(tcRow) < rows.size(); ++tcRow) {
        const int row = rows[size_t(tcRow)];
        if (row <= 0)
            continue;
        for (int field = SheetFirstField; field <= ChannelLastField; ++field) {
            const std::string& text = TcTable(field, tcRow);
            tables.SubAreaTable(field, row) =
                (field == SheetSurfaceBox || field == ShallowSurfaceBox) ? text.substr(0, 1) : text;
        }
    }
}

std::optional<std::string> RainfallOfGage(const WatershedTables& tables, const std::string& gage) {
    const RainfallTable& rainfall = tables.Rainfall;
    if (rainfall.RainfallCount < 1)
        return std::nullopt;
    const std::string wanted = toUpper(trim(gage));
    for (int entry = 1; entry <= rainfall.RainfallCount; ++entry)
        if (toUpper(trim(rainfall.RainfallIds[size_t(entry)])) == wanted)
            return NumberText(rainfall.Rainfall2Yr[size_t(entry)]);
    return std::string();
}

} // namespace brooklet
