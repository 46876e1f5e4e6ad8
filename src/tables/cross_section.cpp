#include "tables/cross_section.h"

namespace brooklet {

const RatingLayout CrossSectionLayout{
    "STREAM CROSS SECTION:",
    {{10, 0, false},
     {10, 1, false},
     {10, 2, true},
     {10, 0, false},
     {10, 3, true},
     {10, 4, true},
     {10, 5, true}},
    {{20, 0, false}, {10, 1, true}, {10, 2, true}, {10, 3, true}, {10, 4, true}, {10, 5, true}},
    21,
    70,
};

} // namespace brooklet
