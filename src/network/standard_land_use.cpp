#include "network/standard_land_use.h"

namespace brooklet {
namespace {

// Name and curve numbers of groups A, B, C and D. The rangeland rows of the herbaceous,
// oak-aspen, pinyon-juniper and sagebrush covers have no curve number for group A.
const char* const Rows[StandardLandUseRows][LandUseColumns] = {
    {"Open Space (Poor)", "68", "79", "86", "89"},
    {"Open Space (Fair)", "49", "69", "79", "84"},
    {"Open Space (Good)", "39", "61", "74", "80"},
    {"Impervious", "98", "98", "98", "98"},
    {"Roads (Paved)", "98", "98", "98", "98"},
    {"Roads (Paved w/ditch)", "83", "89", "92", "93"},
    {"Roads (Gravel)", "76", "85", "89", "91"},
    {"Roads (Dirt)", "72", "82", "87", "89"},
    {"Urban Desert (Natural)", "63", "77", "85", "88"},
    {"Urban Desert (Artificial)", "96", "96", "96", "96"},
    {"Urban (85% imp)", "89", "92", "94", "95"},
    {"Urban (72% imp)", "81", "88", "91", "93"},
    {"Residential (65% imp)", "77", "85", "90", "92"},
    {"Residential (38% imp)", "61", "75", "83", "87"},
    {"Residential (30% imp)", "57", "72", "81", "86"},
    {"Residential (25% imp)", "54", "70", "80", "85"},
    {"Residential (20% imp)", "51", "68", "79", "84"},
    {"Residential (12% imp)", "46", "65", "77", "82"},
    {"Urban (Newly graded)", "77", "86", "91", "94"},
    {"Fallow (Bare)", "77", "86", "91", "94"},
    {"Fallow (CR - Poor)", "76", "85", "90", "93"},
    {"Fallow (CR - Good)", "74", "83", "88", "90"},
    {"Row Crop (SR - Poor)", "72", "81", "88", "91"},
    {"Row Crop (SR - Good)", "67", "78", "85", "89"},
    {"Row Crop (SR + CR - Poor)", "71", "80", "87", "90"},
    {"Row Crop (SR + CR - Good)", "64", "75", "82", "85"},
    {"Row Crop (C - Poor)", "70", "79", "84", "88"},
    {"Row Crop (C - Good)", "65", "75", "82", "86"},
    {"Row Crop (C + CR - Poor)", "69", "78", "83", "87"},
    {"Row Crop (C + CR - Good)", "64", "74", "81", "85"},
    {"Row Crop (C & T - Poor)", "66", "74", "80", "82"},
    {"Row Crop (C & T - Good)", "62", "71", "78", "81"},
    {"Row Crop (C & T + CR - Poor)", "65", "73", "79", "81"},
    {"Row Crop (C & T + CR - Good)", "61", "70", "77", "80"},
    {"Small Grain (SR - Poor)", "65", "76", "84", "88"},
    {"Small Grain (SR - Good)", "63", "75", "83", "87"},
    {"Small Grain (SR + CR - Poor)", "64", "75", "83", "86"},
    {"Small Grain (SR + CR - Good)", "60", "72", "80", "84"},
    {"Small Grain (C - Poor)", "63", "74", "82", "85"},
    {"Small Grain (C - Good)", "61", "73", "81", "84"},
    {"Small Grain (C + CR - Poor)", "62", "73", "81", "84"},
    {"Small Grain (C + CR - Good)", "60", "72", "80", "83"},
    {"Small Grain (C & T - Poor)", "61", "72", "79", "82"},
    {"Small Grain (C & T - Good)", "59", "70", "78", "81"},
    {"Small Grain (C & T + CR - Poor)", "60", "71", "78", "81"},
    {"Small Grain (C & T + CR - Good)", "58", "69", "77", "80"},
    {"Close Seeded (SR - Poor)", "66", "77", "85", "89"},
    {"Close Seeded (SR - Good)", "58", "72", "81", "85"},
    {"Close Seeded (C - Poor)", "64", "75", "83", "85"},
    {"Close Seeded (C - Good)", "55", "69", "78", "83"},
    {"Close Seeded (C & T - Poor)", "63", "73", "80", "83"},
    {"Close Seeded (C & T - Good)", "51", "67", "76", "80"},
    {"Pasture (Poor)", "68", "79", "86", "89"},
    {"Pasture (Fair)", "49", "69", "79", "84"},
    {"Pasture (Good)", "39", "61", "74", "80"},
    {"Meadow", "30", "58", "71", "78"},
    {"Brush (Poor)", "48", "67", "77", "83"},
    {"Brush (Fair)", "35", "56", "70", "77"},
    {"Brush (Good)", "30", "48", "65", "73"},
    {"Woods - Grass (Poor)", "57", "73", "82", "86"},
    {"Woods - Grass (Fair)", "43", "65", "76", "82"},
    {"Woods - Grass (Good)", "32", "58", "72", "79"},
    {"Woods (Poor)", "45", "66", "77", "83"},
    {"Woods (Fair)", "36", "60", "73", "79"},
    {"Woods (Good)", "30", "55", "70", "77"},
    {"Farmstead", "59", "74", "82", "86"},
    {"Range (Herbaceous - Poor)", "", "80", "87", "93"},
    {"Range (Herbaceous - Fair)", "", "71", "81", "89"},
    {"Range (Herbaceous - Good)", "", "62", "74", "85"},
    {"Range (Oak-Aspen - Poor)", "", "66", "74", "79"},
    {"Range (Oak-Aspen - Fair)", "", "48", "57", "63"},
    {"Range (Oak-Aspen - Good)", "", "30", "41", "48"},
    {"Range (Pinyon-Juniper - Poor)", "", "75", "85", "89"},
    {"Range (Pinyon-Juniper - Fair)", "", "58", "73", "80"},
    {"Range (Pinyon-Juniper - Good)", "", "41", "61", "71"},
    {"Range (Sagebrush - Poor)", "", "67", "80", "85"},
    {"Range (Sagebrush - Fair)", "", "51", "63", "70"},
    {"Range (Sagebrush - Good)", "", "35", "47", "55"},
    {"Range (Desert Shrub - Poor)", "63", "77", "85", "88"},
    {"Range (Desert Shrub - Fair)", "55", "72", "81", "86"},
    {"Range (Desert Shrub - Good)", "49", "68", "79", "84"},
};

} // namespace

void LoadStandardLandUse(StandardLandUseTable& StandardLandUse) {
    for (size_t row = 0; row < StandardLandUse.cells_.size(); ++row)
        for (size_t column = 0; column < LandUseColumns; ++column)
            StandardLandUse.cells_[row][column] = Rows[row][column];
}

const StandardLandUseTable& StandardLandUse() {
    static const StandardLandUseTable table = [] {
        StandardLandUseTable filled;
        LoadStandardLandUse(filled);
        return filled;
    }();
    return table;
}

} // namespace brooklet
