#include "tables/structure_rating.h"

namespace brooklet {

const RatingLayout StructureRatingLayout{
    "STRUCTURE RATING:",
    {{10, 0, false}, {10, 1, false}, {10, 2, true}},
    {{20, 0, false}, {10, 1, true}, {10, 2, true}, {10, 3, true}},
    21,
    30,
};

} // namespace brooklet
