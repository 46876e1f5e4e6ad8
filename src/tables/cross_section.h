#pragma once
// Section 7, the stream cross sections: for each cross section its own fields and a rating of
// elevation, discharge, end area, top width and friction slope.
//   header      "STREAM CROSS SECTION:" in cols 1-40
//   identifier  cols 1-10 blank, 11-20 cross section identifier, 21-30 bankfull elevation,
//               31-40 blank (never read), 41-50 low ground elevation, 51-60 stream identifier,
//               61-70 stream station
//   rating row  cols 1-20 blank, 21-30 elevation, 31-40 discharge, 41-50 end area,
//               51-60 top width, 61-70 friction slope
// A record with blank cols 11-20 is a rating row when anything stands in cols 21-70, even with
// a blank elevation. Every field but the identifier gets its trailing point on writing, the
// stream identifier too: a stream name without a point and shorter than its field keeps the
// point it gets.
#include "tables/rating_section.h"

namespace brooklet {

extern const RatingLayout CrossSectionLayout;

inline void ReadCrossSectionSection(const std::vector<std::string>& lines, GridContext& tables) {
    ReadRatingSection(CrossSectionLayout, lines, tables);
}
inline std::vector<std::string> WriteCrossSectionSection(const GridContext& tables) {
    return WriteRatingSection(CrossSectionLayout, tables);
}

} // namespace brooklet
