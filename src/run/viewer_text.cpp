#include "run/viewer_text.h"

#include "session/text_file.h"

namespace brooklet {

std::string ViewerText(const std::string& bytes) {
    std::string text;
    text.reserve(bytes.size());
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        text += reader.nextLine();
        text += '\n';
    }
    const bool lastLineOpen = !bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r';
    if (lastLineOpen && !text.empty())
        text.pop_back();
    return text;
}

std::vector<PrintStep> FilePrintSteps(const std::string& bytes) {
    const std::string margin(5, ' ');
    std::vector<PrintStep> steps;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string_view line = reader.nextLine();
        const auto formFeed = line.find('\f');
        if (formFeed == 0) {
            steps.push_back({true, {}});
            continue;
        }
        steps.push_back({false, margin + std::string(line)});
        if (formFeed != std::string_view::npos)
            steps.push_back({true, {}});
    }
    return steps;
}

} // namespace brooklet
