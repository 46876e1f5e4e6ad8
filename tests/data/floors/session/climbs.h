#pragma once
// A session file that climbs to the editing floor: the floor check must refuse it.
#include "editing/tables.h"
