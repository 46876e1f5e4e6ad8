#include "editing/field_checks.h"

#include "editing/numbers.h"

#include <optional>

namespace brooklet {
namespace {

// The steps all numeric checks share: blank handling and the numeric test. Returns the
// value as single precision when the text is to be compared, nothing when the check is over.
std::optional<float> checkedSingle(bool AllowBlank, const std::string& Text, bool& Valid) {
    Valid = true;
    const std::string text = trim(Text);
    if (text.empty()) {
        if (AllowBlank)
            return std::nullopt;
        Valid = false;
        return std::nullopt;
    }
    // A text beyond the range of a single-precision real fails like a text that is no number.
    const auto value = toSingle(text);
    if (!value)
        Valid = false;
    return value;
}

} // namespace

void ValidText(int MinLen, int MaxLen, const std::string& Text, bool& Valid, std::string& Cleaned) {
    Valid = true;
    Cleaned = trim(Text);
    if (static_cast<int>(Cleaned.size()) < MinLen)
        Valid = false;
    if (static_cast<int>(Cleaned.size()) > MaxLen)
        Cleaned = Text.substr(0, static_cast<size_t>(std::max(MaxLen, 0)));
}

void ValidInteger(bool AllowBlank, double Min, double Max, const std::string& Text, bool& Valid,
                  int16_t& IntValue) {
    Valid = true;
    const std::string text = trim(Text);
    if (text.empty()) {
        if (AllowBlank)
            return;
        Valid = false;
        return;
    }
    const auto value = toInteger16(text);
    if (!value) {
        Valid = false;
        return;
    }
    IntValue = *value;
    if (*value < Min || *value > Max)
        Valid = false;
}

void ValidRealAtLeast(bool AllowBlank, double Min, const std::string& Text, bool& Valid) {
    const auto value = checkedSingle(AllowBlank, Text, Valid);
    if (value && *value < static_cast<float>(Min))
        Valid = false;
}

void ValidRealAbove(bool AllowBlank, double Min, const std::string& Text, bool& Valid) {
    const auto value = checkedSingle(AllowBlank, Text, Valid);
    if (value && *value <= static_cast<float>(Min))
        Valid = false;
}

void ValidNumber(bool AllowBlank, const std::string& Text, bool& Valid) {
    Valid = true;
    const std::string text = trim(Text);
    if (text.empty()) {
        Valid = AllowBlank;
        return;
    }
    Valid = isNumericText(text);
}

void ValidRealRange(bool AllowBlank, double Min, double Max, const std::string& Text, bool& Valid) {
    const auto value = checkedSingle(AllowBlank, Text, Valid);
    if (value && (*value < static_cast<float>(Min) || *value > static_cast<float>(Max)))
        Valid = false;
}

namespace {

// The innermost watch of this thread, none when nobody listens.
thread_local FieldFitWatch* activeWatch = nullptr;

} // namespace

FieldFitWatch::FieldFitWatch() : outer_(activeWatch) {
    activeWatch = this;
}

FieldFitWatch::~FieldFitWatch() {
    activeWatch = outer_;
}

void FieldFitWatch::noteOverflow(const std::string& Value, int Width) {
    FieldFitWatch* watch = activeWatch;
    if (!watch)
        return;
    if (watch->overflows_++ == 0) {
        watch->firstValue_ = Value;
        watch->firstWidth_ = Width;
    }
}

bool AppendField(std::string& Record, const std::string& Value, int Width, bool AddPoint) {
    std::string text = Value;
    if (AddPoint)
        EnsureDecimalPoint(text, Width);
    const bool fits = static_cast<int>(text.size()) <= Width;
    if (!fits)
        FieldFitWatch::noteOverflow(text, Width);
    PadField(Width, text);
    Record += text;
    return fits;
}

bool FieldFits(const std::string& Value, int Width, bool AddPoint) {
    std::string text = Value;
    if (AddPoint)
        EnsureDecimalPoint(text, Width);
    return static_cast<int>(text.size()) <= Width;
}

std::string FieldTooLongNote(const std::string& Value, int Width) {
    return "The value " + trim(Value) + " is " + std::to_string(Value.size()) +
           " characters long, but its field in the record holds only " + std::to_string(Width) +
           "; nothing is written until it is shortened.";
}

void EnsureDecimalPoint(std::string& Text, int Width) {
    Text = trim(Text);
    if (!Text.empty() && Text.find('.') == std::string::npos && static_cast<int>(Text.size()) < Width)
        Text += '.';
}

void PadField(int Width, std::string& Text) {
    if (static_cast<int>(Text.size()) < Width)
        Text.append(static_cast<size_t>(Width) - Text.size(), ' ');
}

namespace {

std::string_view columnsOf(const std::string& Record, int FirstColumn, int Width) {
    const size_t start = static_cast<size_t>(FirstColumn - 1);
    if (FirstColumn < 1 || Width <= 0 || start >= Record.size())
        return {};
    return std::string_view(Record).substr(start, static_cast<size_t>(Width));
}

} // namespace

std::string FieldAt(const std::string& Record, int FirstColumn, int Width) {
    return trim(columnsOf(Record, FirstColumn, Width));
}

std::string FieldAsItStands(const std::string& Record, int FirstColumn, int Width) {
    return std::string(columnsOf(Record, FirstColumn, Width));
}

} // namespace brooklet
