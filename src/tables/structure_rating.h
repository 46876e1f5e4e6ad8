#pragma once
// Section 10, the structure ratings: for each structure a table of elevation, discharge and
// storage, rising with the elevation.
//   header      "STRUCTURE RATING:" in cols 1-40
//   identifier  cols 1-10 blank, 11-20 structure identifier, 21-30 starting elevation
//   rating row  cols 1-20 blank, 21-30 elevation, 31-40 discharge, 41-50 storage
// A record with blank cols 11-20 is a rating row only when its elevation is not blank. The
// starting elevation and the rating values get their trailing point on writing; the identifier
// does not.
#include "tables/rating_section.h"

namespace brooklet {

extern const RatingLayout StructureRatingLayout;

inline void ReadStructureRatingSection(const std::vector<std::string>& lines, GridContext& tables) {
    ReadRatingSection(StructureRatingLayout, lines, tables);
}
inline std::vector<std::string> WriteStructureRatingSection(const GridContext& tables) {
    return WriteRatingSection(StructureRatingLayout, tables);
}

} // namespace brooklet
