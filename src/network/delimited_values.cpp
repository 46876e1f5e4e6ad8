#include "network/delimited_values.h"

#include "session/text_file.h"

namespace brooklet {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

const std::string ClosingRecord = "\"\"";

DelimitedReader::DelimitedReader(std::string bytes)
    : bytes_(std::move(bytes)), pos_(byteOrderMarkLength(bytes_)) {}

bool DelimitedReader::atLineEnd() const {
    return pos_ >= bytes_.size() || isLineEnd(bytes_[pos_]);
}

void DelimitedReader::passLineEnd() {
    if (pos_ >= bytes_.size())
        return;
    if (bytes_[pos_] == '\r' && pos_ + 1 < bytes_.size() && bytes_[pos_ + 1] == '\n')
        pos_ += 2;
    else
        ++pos_;
}

void DelimitedReader::passBlanks() {
    while (pos_ < bytes_.size() && isBlank(bytes_[pos_]))
        ++pos_;
}

bool DelimitedReader::atEnd() {
    if (afterComma_)
        return false;
    // Lines of blanks give no value.
    while (pos_ < bytes_.size() && (isBlank(bytes_[pos_]) || isLineEnd(bytes_[pos_])))
        ++pos_;
    return pos_ >= bytes_.size();
}

std::string DelimitedReader::readItem() {
    if (atEnd())
        return std::string();
    afterComma_ = false;
    passBlanks();
    std::string value;
    if (pos_ < bytes_.size() && bytes_[pos_] == '"') {
        const size_t start = ++pos_;
        while (pos_ < bytes_.size() && bytes_[pos_] != '"' && !isLineEnd(bytes_[pos_]))
            ++pos_;
        value = bytes_.substr(start, pos_ - start);
        if (pos_ < bytes_.size() && bytes_[pos_] == '"')
            ++pos_;
        while (!atLineEnd() && bytes_[pos_] != ',')
            ++pos_;
    } else {
        const size_t start = pos_;
        while (!atLineEnd() && bytes_[pos_] != ',')
            ++pos_;
        size_t end = pos_;
        while (end > start && isBlank(bytes_[end - 1]))
            --end;
        value = bytes_.substr(start, end - start);
    }
    if (pos_ < bytes_.size() && bytes_[pos_] == ',') {
        ++pos_;
        afterComma_ = true;
    } else {
        passLineEnd();
    }
    return value;
}

void DelimitedReader::skipLine() {
    if (!afterComma_)
        return;
    afterComma_ = false;
    while (!atLineEnd())
        ++pos_;
    passLineEnd();
}

std::string QuotedRecord(const std::vector<std::string>& values) {
    std::string record;
    for (size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            record += ',';
        record += '"';
        record += values[i];
        record += '"';
    }
    return record;
}

} // namespace brooklet
