#pragma once
// Comma-delimited values, as the local land use file and the local soil file keep them: values
// in double quotes or bare, separated by commas, a line per record, and after the last record
// a line holding one empty quoted value.
//
// The reader takes the values one by one with no regard to line ends, so a record may run over
// lines and a line may hold more than one record:
// - blanks and tabs before a value are passed over;
// - a quoted value runs to the next double quote, or to the end of its line when there is none;
//   what follows the closing quote up to the next comma or line end is passed over;
// - a bare value runs to the next comma or line end, trailing blanks and tabs dropped; so a
//   line with no comma is one value, the whole line;
// - a comma at the end of a line announces one more value, an empty one;
// - a line holding nothing but blanks and tabs gives no value.
// Line ends are CR LF, LF or a CR alone.
#include <string>
#include <vector>

namespace brooklet {

class DelimitedReader {
public:
    // A UTF-8 byte-order mark at the start is passed over.
    explicit DelimitedReader(std::string bytes);

    // True when no value is left.
    bool atEnd();
    // The next value; an empty text at the end.
    std::string readItem();
    // Goes on with the next line: the rest of the line of the last value is passed over. After a
    // value that ended its line, nothing is passed over.
    void skipLine();

private:
    bool atLineEnd() const;
    void passLineEnd();
    void passBlanks();

    std::string bytes_;
    size_t pos_ = 0;
    // The last value ended at a comma: one more value follows, if only an empty one.
    bool afterComma_ = false;
};

// One record: every value in double quotes, separated by commas, no line end.
std::string QuotedRecord(const std::vector<std::string>& values);

// The line that closes a file of records: one empty quoted value.
extern const std::string ClosingRecord;

} // namespace brooklet
