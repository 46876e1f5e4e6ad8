#include "options/identifier_record.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "session/section_table.h"

namespace brooklet {
namespace {

constexpr int HeaderWidth = 40;
constexpr int CodeWidth = 10;

const char* code(bool set) {
    return set ? "1" : "0";
}

} // namespace

IdentifierRecord ReadIdentifierSection(const std::vector<std::string>& lines) {
    IdentifierRecord record;
    if (lines.empty())
        return record;
    const std::string& first = lines[0];
    record.MetricInput = FieldAt(first, 41, CodeWidth) == "1";
    record.MetricOutput = FieldAt(first, 51, CodeWidth) == "1";
    record.MinimumHydrograph = FieldAt(first, 61, CodeWidth);
    record.NoScreenOutput = FieldAt(first, 71, CodeWidth) == "1";
    if (lines.size() > 1)
        record.Description1 = trim(lines[1]);
    if (lines.size() > 2)
        record.Description2 = trim(lines[2]);
    return record;
}

std::vector<std::string> WriteIdentifierSection(const IdentifierRecord& record) {
    std::string line;
    AppendField(line, sectionHeader(IdentificationSection), HeaderWidth, false);
    AppendField(line, code(record.MetricInput), CodeWidth, false);
    AppendField(line, code(record.MetricOutput), CodeWidth, false);
    AppendField(line, trim(record.MinimumHydrograph), CodeWidth, true);
    AppendField(line, code(record.NoScreenOutput), CodeWidth, false);
    std::vector<std::string> lines{line};
    for (const std::string* description : {&record.Description1, &record.Description2})
        if (!trim(*description).empty())
            lines.push_back(*description);
    return lines;
}

std::string InputFlowUnit(bool english) {
    return english ? "cfs" : "cu m/sec";
}

void SetInputUnitWords(Session& session, bool english) {
    UnitWords& units = session.Units;
    session.EnglishUnits = english;
    units.AreaUnit = english ? "sq mi" : "sq km";
    units.UnitFlowUnit = english ? "csm" : "cu m/sec/sq km";
    units.SmallAreaUnit = english ? "sq ft" : "sq m";
    units.FlowUnit = InputFlowUnit(english);
    units.LengthUnit = english ? "ft" : "m";
    units.DepthUnit = english ? "in" : "mm";
    units.DepthRateUnit = english ? "in/sec" : "mm/sec";
    units.VolumeUnit = english ? "ac ft" : "ha m";
    units.VelocityUnit = english ? "ft/sec" : "m/sec";
    units.SectionAreaUnit = english ? "cu ft/ft len" : "cu m/m len";
}

void SetOutputUnitWords(UnitWords& units, bool english) {
    units.OutputFlowUnit = english ? "cfs" : "cms";
    units.OutputUnitFlowUnit = english ? "csm" : "m^3/sec/sq km";
    units.OutputAreaUnit = english ? "sq mi" : "sq km";
}

} // namespace brooklet
