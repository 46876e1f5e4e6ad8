#pragma once
// The lists of identifiers that the windows offer in their combo boxes, gathered by scanning
// the work files as they stand, so that a list always tells what the files hold. Each scan
// passes over the first line of a work file, its section header. A missing work file is an
// empty section. Every routine adds through AddUnique and leaves clearing to the caller.
#include <array>
#include <string>

#include "editing/list_control.h"
#include "editing/watershed_tables.h"
#include "session/section_table.h"

namespace brooklet {

// The rain tables every storm may name without defining them, in the order they are offered.
extern const std::array<std::string, 10> StandardRainTables;

// Adds the trim of Text unless an item equals it, trimmed and case not counting; the first
// spelling stays.
void AddUnique(ListControl& List, const std::string& Text);
// Removes the first item exactly equal to the combo's text.
void RemoveCurrentFromList(ListControl& Combo);

// Columns 31-40 of the first sub-area line whose columns 11-20 are Name; Result is left as it
// was when there is none.
void FindSubAreaField(const Session& session, const std::string& Name, std::string& Result);

// Alternate names; with AddBlank an item of ten blanks behind them.
void FillAlternateList(const Session& session, ListControl& List, bool AddBlank);
// Input hydrograph names.
void FillInputHydrographList(const Session& session, ListControl& List);
// Every reach named anywhere: by input hydrographs, reaches and their split flows, sub-areas
// and the reach lists of alternates; with NoOutlet, without the outlet.
void FillReachList(const Session& session, ListControl& List, bool NoOutlet);
// Hydrograph names: those of input hydrographs, then the storms.
void FillHydrographNameList(const Session& session, ListControl& List);
// Rain gages of the storms; builds the rain gage table on the way. Then the rain gages that
// sub-areas name.
void FillStormRainList(const Session& session, RainfallTable& Rainfall, ListControl& List);
// Rain tables: with AddStandard the standard ones first, then those of the rainfall
// distribution section and those that storms name, standard names left out.
void FillRainTableList(const Session& session, bool AddStandard, ListControl& List);
// Structures with a rating, then those that reaches name.
void FillStructureList(const Session& session, ListControl& List);
// Sub-areas, then the sub-areas of alternates.
void FillAreaReachList(const Session& session, ListControl& List);
// Cross sections, then those the reach section names.
void FillCrossSectionList(const Session& session, ListControl& List);

} // namespace brooklet
