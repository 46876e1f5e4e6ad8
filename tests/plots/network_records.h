#pragma once
// Records of the stream reach and sub-area sections, as the input file holds them.
#include <string>
#include <vector>

#include "editing/field_checks.h"

namespace brooklet::test {

// Ten-column fields from column 1.
inline std::string networkRecord(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields)
        AppendField(line, field, 10, false);
    return line;
}
inline std::string reach(const std::string& name, const std::string& down,
                         const std::string& structure = "") {
    return networkRecord({"", name, down, "XS1", structure, "100.", "100."});
}
inline std::string subArea(const std::string& name, const std::string& down) {
    return networkRecord({"", name, down, "GAGE", "1.2", "75.", "0.5"});
}
inline std::string splitFlow(const std::string& target) {
    return networkRecord({"", "", "SPLIT FLOW", target, "XS2", "10.", "20.", "0.5"});
}

} // namespace brooklet::test
