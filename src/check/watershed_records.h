#pragma once
// The records of every section, read the way each section's editor reads them, into plain
// entries that the check rules walk. Every entry keeps the line of its record, so a finding can
// say where it stands. Texts are the trimmed fields; nothing is converted here.
#include <array>
#include <string>
#include <vector>

#include "check/check_input.h"

namespace brooklet {

// A field with the line of the record it stands in.
struct LineText {
    std::string text;
    int line = 0;
};

struct LandArea {
    std::string name, soilGroup, area;
    int line = 0;
};

struct SubAreaEntry {
    std::string id, reach, gage, area, curveNumber, tc;
    std::array<std::string, 5> codes;
    int line = 0;
    std::vector<LandArea> landAreas;
    // The detail records of the time of concentration: keyword and fields from column 31.
    struct Detail {
        std::string keyword;
        std::array<std::string, 5> fields;
        int line = 0;
    };
    std::vector<Detail> details;
};

struct ReachEntry {
    std::string id, receiving, crossSection, structure, channelLength, valleyLength;
    std::array<std::string, 6> codes;
    int line = 0;
    LineText baseFlow;
    // The split flow record: reach, cross section, starting and ending flow, drainage area.
    std::array<std::string, 5> split;
    int splitLine = 0;
};

struct AlternateEntry {
    std::string id;
    int line = 0;
    std::vector<SubAreaEntry> subAreas;
    std::vector<ReachEntry> reaches;
};

struct StormEntry {
    std::string id, gage, start, rainfall, rainTable, condition, twoYear;
    int line = 0;
};

// A named table of the tabular sections: its identifier record's fields and its rows (a rating
// point record, or one value of a value record, per row).
struct TableEntry {
    std::string id;
    std::vector<std::string> fields; // the identifier record's fields behind the identifier
    int line = 0;
    struct Row {
        std::vector<std::string> values;
        int line = 0;
    };
    std::vector<Row> rows;
};

struct IdentificationRecord {
    std::string inputUnits, outputUnits, minimumValue, screenOutput;
    int line = 0;
    bool present = false;
};

struct WatershedRecords {
    std::vector<SubAreaEntry> subAreas;
    std::vector<ReachEntry> reaches;
    std::vector<AlternateEntry> alternates;
    std::vector<StormEntry> storms;
    std::vector<TableEntry> structures;    // fields: starting elevation; rows: elevation, discharge, storage
    std::vector<TableEntry> crossSections; // fields: bankfull, low ground, stream, station; rows of 5
    std::vector<TableEntry> rainTables;    // fields: time increment; one value a row
    std::vector<TableEntry> inputHydrographs; // fields: reach, storm, start, increment, area, base flow
    TableEntry unitHydrograph;                // one value a row
    IdentificationRecord identification;
    std::vector<KnownLandUse> localLandUses; // the rows of the "LOCAL LAND USE:" section
    int headerLine[SectionCount + 1] = {};
};

WatershedRecords ReadWatershedRecords(const CheckInput& input);

} // namespace brooklet
