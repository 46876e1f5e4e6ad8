// The run options of the identification line hold the codes its editor offers and a minimum
// hydrograph value its field check accepts.
#include "check/check_rules.h"

namespace brooklet {

void CheckRunOptions(const RuleContext& context, Findings& findings) {
    const IdentificationRecord& options = context.records.identification;
    if (!options.present)
        return;
    auto add = [&](const std::string& field, int box, const std::string& message) {
        addFinding(findings, Severity::Warning, IdentificationSection, "", field, options.line, message).box =
            box;
    };
    auto checkCode = [&](const std::string& code, const std::string& field, int box,
                         const std::string& read) {
        if (!(code.empty() || code == "0" || code == "1"))
            add(field, box,
                "The " + field + " is \"" + code + "\", where only 0 or 1 count; it is read as " + read +
                    ". Choose the option you mean.");
    };
    checkCode(options.inputUnits, "Input Units Code", 1, "English");
    checkCode(options.outputUnits, "Output Units Code", 2, "English");
    checkCode(options.screenOutput, "Screen Output Code", 4, "Screen Output");
    if (!passesAtLeast(options.minimumValue, 0))
        addFinding(findings, Severity::Error, IdentificationSection, "", "Minimum Hydrograph Value",
                   options.line,
                   "The Minimum Hydrograph Value is \"" + options.minimumValue +
                       "\", which is not a number of 0 or more. Enter the smallest flow of interest.")
            .box = 3;
}

} // namespace brooklet
