#pragma once
// The checks every entry window runs on a typed field, and the writer of fixed-column fields.
// A check never shows anything: it sets Valid, and the window paints the field.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace brooklet {

void ValidText(int MinLen, int MaxLen, const std::string& Text, bool& Valid, std::string& Cleaned);
void ValidInteger(bool AllowBlank, double Min, double Max, const std::string& Text, bool& Valid,
                  int16_t& IntValue);
void ValidRealAtLeast(bool AllowBlank, double Min, const std::string& Text, bool& Valid);
void ValidRealAbove(bool AllowBlank, double Min, const std::string& Text, bool& Valid);
void ValidNumber(bool AllowBlank, const std::string& Text, bool& Valid);
void ValidRealRange(bool AllowBlank, double Min, double Max, const std::string& Text, bool& Valid);

// Appends Value, left-justified and blank-padded to Width, to Record; with AddPoint a number
// gets its trailing point when the field has room. A value wider than the field is not cut: it
// shifts every later column of the record, so the result tells whether the value fit, and a
// FieldFitWatch hears of every value that did not.
bool AppendField(std::string& Record, const std::string& Value, int Width, bool AddPoint);
// Whether Value, placed as AppendField places it, stays within Width columns.
bool FieldFits(const std::string& Value, int Width, bool AddPoint);
// What a window says of a value wider than its field.
std::string FieldTooLongNote(const std::string& Value, int Width);

// While it lives, notes the values that AppendField on this thread could not fit, so that a
// caller that has a whole section built by its codec learns of a shifted record before it
// writes one. Watches nest: the innermost hears.
class FieldFitWatch {
public:
    FieldFitWatch();
    ~FieldFitWatch();
    FieldFitWatch(const FieldFitWatch&) = delete;
    FieldFitWatch& operator=(const FieldFitWatch&) = delete;

    bool allFit() const { return overflows_ == 0; }
    int overflows() const { return overflows_; }
    // The first value that did not fit, and the width of its field.
    const std::string& firstValue() const { return firstValue_; }
    int firstWidth() const { return firstWidth_; }

    // Called by AppendField.
    static void noteOverflow(const std::string& Value, int Width);

private:
    FieldFitWatch* outer_;
    int overflows_ = 0;
    std::string firstValue_;
    int firstWidth_ = 0;
};
void EnsureDecimalPoint(std::string& Text, int Width);
void PadField(int Width, std::string& Text);

// The trimmed text of a fixed-column field, columns counted from 1; empty when the record
// is shorter than the first column.
std::string FieldAt(const std::string& Record, int FirstColumn, int Width);
// The same columns as they stand, blanks included; shorter when the record ends within them.
std::string FieldAsItStands(const std::string& Record, int FirstColumn, int Width);

// A three-dimensional table with bounds 1..N1, 1..N2, 1..N3.
template <typename T> class Array3D {
public:
    Array3D() = default;
    Array3D(int n1, int n2, int n3) : n1_(n1), n2_(n2), n3_(n3), cells_(size_t(n1) * n2 * n3) {}
    int n1() const { return n1_; }
    int n2() const { return n2_; }
    int n3() const { return n3_; }
    T& operator()(int i, int j, int k) { return cells_[index(i, j, k)]; }
    const T& operator()(int i, int j, int k) const { return cells_[index(i, j, k)]; }

private:
    size_t index(int i, int j, int k) const { return (size_t(i - 1) * n2_ + (j - 1)) * n3_ + (k - 1); }
    int n1_ = 0, n2_ = 0, n3_ = 0;
    std::vector<T> cells_;
};

// Gives the table new bounds and keeps every element whose indexes lie within the old and the
// new bounds; new elements are empty.
template <typename T> void RedimPreserve3D(Array3D<T>& Array, int N1, int N2, int N3) {
    Array3D<T> resized(N1, N2, N3);
    for (int i = 1; i <= std::min(N1, Array.n1()); ++i)
        for (int j = 1; j <= std::min(N2, Array.n2()); ++j)
            for (int k = 1; k <= std::min(N3, Array.n3()); ++k)
                resized(i, j, k) = std::move(Array(i, j, k));
    Array = std::move(resized);
}

} // namespace brooklet
