#pragma once
// The plot selection's core: the Multiple list with its counter of attempts, the request of an
// output plot built from the choices of the window, and the window's boxes.
#include <optional>
#include <string>
#include <vector>

#include "editing/list_control.h"
#include "editing/plot_data.h"
#include "session/messages.h"
#include "session/section_table.h"

namespace brooklet {

// The most entries the Multiple list takes: the plot draws up to ten series.
constexpr int MaxMultipleSelections = 10;

BoxRequest MultipleSelectionsExceededBox();
BoxRequest DeleteSelectedItemBox();
BoxRequest NoPlotDataBox();

// Action 1 adds Item to List1 unless an item equal to it (trimmed, case not counting) stands
// there; Action -1 removes that item. MultiCount counts the attempts to add, whether or not an
// item was added, and drops by one for each removal through this routine; an attempt beyond
// the tenth is refused with OK False and the box returned.
std::optional<BoxRequest> ChangeMultiList(ListControl& List1, int& MultiCount, int Action,
                                          const std::string& Item, bool& OK);

// The choices of the plot selection window as its controls hold them; 0 where no option of a
// group is chosen.
struct PlotChoices {
    int GraphicType = 0;                              // 1 hydrograph, 2 peak flow, 3 time analysis
    int Varies = 0;                                   // 1 none, 2 storm, 3 alternate, 4 location
    int FlowUnits = 0;                                // 1 the flow unit, 2 flow per area
    bool Locations[4] = {false, false, false, false}; // 1 sub-areas, 2 reaches, 3 the outlet
    int ReachEnd = 0;                                 // 1 upstream, 2 downstream
    std::string Storm, Alternate, SubArea, Reach;
    bool Outlet = false;
    std::vector<std::string> Multiple;
};

// The request of the chosen plot, rows and counts, with the arrays at their least size.
void BuildPlotRequest(const PlotChoices& choices, const Session& session, PlotData& plot);

} // namespace brooklet
