#include "plots/plot_selection.h"

#include "base/text.h"
#include "editing/identifier_lists.h"

namespace brooklet {
namespace {

const char* const SelectionTitle = "Graphics Output";

bool sameItem(const std::string& a, const std::string& b) {
    return toUpper(trim(a)) == toUpper(trim(b));
}

int findItem(const ListControl& List, const std::string& Item) {
    for (int i = 0; i < List.ListCount(); ++i)
        if (sameItem(List.List(i), Item))
            return i;
    return -1;
}

// The last Count characters, or the whole text when it is shorter.
std::string right(const std::string& text, size_t count) {
    return text.size() <= count ? text : text.substr(text.size() - count);
}

void setSubArea(const Session& session, PlotRequestRow& row, const std::string& name) {
    row.T[3] = name;
    FindSubAreaField(session, name, row.T[4]);
}

// A location of the Multiple list: "name - Upstream", "name - Downstream", a sub-area or
// "Outlet".
void listedLocation(const Session& session, const std::string& item, PlotRequestRow& row) {
    if (trim(right(item, 10)) == "- Upstream" || trim(right(item, 12)) == "- Downstream") {
        const size_t dash = item.rfind('-');
        row.T[3] = trim(item.substr(0, dash));
        row.T[4] = trim(item.substr(dash + 1));
    } else if (item == "Outlet") {
        row.T[3] = item;
    } else {
        setSubArea(session, row, item);
    }
}

// The one location of the lists: a sub-area, else a reach's end, else the outlet.
void chosenLocation(const Session& session, const PlotChoices& choices, PlotRequestRow& row) {
    if (!trim(choices.SubArea).empty()) {
        setSubArea(session, row, choices.SubArea);
    } else if (!trim(choices.Reach).empty()) {
        row.T[3] = choices.Reach;
        row.T[4] = choices.ReachEnd == 1 ? "Upstream" : "Downstream";
    } else {
        row.T[3] = "Outlet";
    }
}

std::string listed(const PlotChoices& choices, int row) {
    return row >= 1 && row <= int(choices.Multiple.size()) ? choices.Multiple[size_t(row - 1)]
                                                           : std::string();
}

// T1 and T2 of a row: the listed alternate or storm when they vary, else the lists' own.
void stormAndAlternate(const PlotChoices& choices, int r, PlotRequestRow& row) {
    row.T[1] = choices.Varies == 3 ? listed(choices, r) : choices.Alternate;
    row.T[2] = choices.Varies == 2 ? listed(choices, r) : choices.Storm;
}

} // namespace

BoxRequest MultipleSelectionsExceededBox() {
    return {"Maximum Multiple Selections exceeded - current selection ignored",
            "Multiple Selections Exceeded", BoxButtons::Ok, BoxIcon::None};
}

BoxRequest DeleteSelectedItemBox() {
    return {"Delete Current selected item ?", SelectionTitle, BoxButtons::YesNo, BoxIcon::Question};
}

BoxRequest NoPlotDataBox() {
    return {"No data for requested plot found", SelectionTitle, BoxButtons::Ok, BoxIcon::None};
}

std::optional<BoxRequest> ChangeMultiList(ListControl& List1, int& MultiCount, int Action,
                                          const std::string& Item, bool& OK) {
    OK = true;
    if (Action == -1) {
        if (const int i = findItem(List1, Item); i >= 0) {
            List1.RemoveItem(i);
            --MultiCount;
        }
        return std::nullopt;
    }
    if (Action != 1)
        return std::nullopt;
    std::optional<BoxRequest> box;
    if (MultiCount + 1 > MaxMultipleSelections) {
        box = MultipleSelectionsExceededBox();
        OK = false;
    } else if (findItem(List1, Item) < 0) {
        List1.AddItem(Item);
    }
    // Every attempt counts, refused or repeated.
    ++MultiCount;
    return box;
}

void BuildPlotRequest(const PlotChoices& choices, const Session& session, PlotData& plot) {
    plot.MultiStormCount = 1;
    plot.MultiAlternateCount = 1;
    const int listedCount = int(choices.Multiple.size());
    if (choices.GraphicType == 1) {
        plot.PlotKind = OutputHydrographPlot;
        if (choices.Varies == 2)
            plot.MultiStormCount = int16_t(listedCount);
        if (choices.Varies == 3)
            plot.MultiAlternateCount = int16_t(listedCount);
        const int rows = choices.Varies == 1 ? 1 : listedCount;
        plot.newRequest(rows);
        for (int r = 1; r <= rows; ++r) {
            PlotRequestRow& row = plot.PlotRequest[size_t(r)];
            stormAndAlternate(choices, r, row);
            if (choices.Varies == 4)
                listedLocation(session, listed(choices, r), row);
            else
                chosenLocation(session, choices, row);
        }
    } else if (choices.GraphicType == 2) {
        plot.PlotKind = PeakFlowPlot;
        const char* kinds[] = {"", "Subarea", "Reach", "Outlet"};
        std::vector<int> checked;
        for (int i = 1; i <= 3; ++i)
            if (choices.Locations[i])
                checked.push_back(i);
        plot.newRequest(int(checked.size()));
        for (size_t r = 1; r <= checked.size(); ++r) {
            PlotRequestRow& row = plot.PlotRequest[r];
            row.T[1] = choices.Alternate;
            row.T[2] = choices.Storm;
            row.T[3] = kinds[checked[r - 1]];
        }
        plot.FlowUnitLabel =
            choices.FlowUnits == 1 ? session.Units.OutputFlowUnit : session.Units.OutputUnitFlowUnit;
    } else if (choices.GraphicType == 3) {
        plot.PlotKind = TimeAnalysisPlot;
        plot.newRequest(1);
        PlotRequestRow& row = plot.PlotRequest[1];
        stormAndAlternate(choices, 1, row);
        chosenLocation(session, choices, row);
    }
}

} // namespace brooklet
