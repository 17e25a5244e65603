#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace zolt {

// One cell of a table's row store: empty, text, 16-bit, 32-bit or double, as the
// analyzer's data has always been kept. Conversions follow the classic BASIC
// run-time rules the tables were written against.
class Value {
public:
    using Storage =
        std::variant<std::monostate, std::string, std::int16_t, std::int32_t, double, bool>;

    Value() = default;
    Value(std::string text) : data_(std::move(text)) {}
    // Texts are made in place: no temporary string is moved in.
    Value(const char* text) : data_(std::in_place_type<std::string>, text) {}
    Value(std::string_view text) : data_(std::in_place_type<std::string>, text) {}
    Value(std::int16_t n) : data_(n) {}
    Value(std::int32_t n) : data_(n) {}
    Value(double n) : data_(n) {}
    // Booleans read "True"/"False" as text and -1/0 as numbers.
    Value(bool b) : data_(b) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
    bool isText() const { return std::holds_alternative<std::string>(data_); }
    bool isNumber() const { return !isNull() && !isText(); }
    bool isBool() const { return std::holds_alternative<bool>(data_); }
    const Storage& storage() const { return data_; }

    // The text of the value; empty for null.
    std::string text() const;
    // The number the value stands for: a text goes through the numeric test, so
    // a text that is not numeric gives nullopt, as does null.
    std::optional<double> number() const;

    bool operator==(const Value&) const = default;

private:
    Storage data_;
};

namespace vb {

// True when the whole text, blanks around it allowed, reads as a number.
bool IsNumeric(std::string_view text);
bool IsNumeric(const Value& value);
// The number at the start of the text (blanks anywhere are skipped); 0 when none.
double Val(std::string_view text);
// The shortest text of a number, as the run time prints it ("0.5", "1E+20").
std::string NumberText(double n);
// Conversions that round half to even and fail on overflow or on a non-numeric value.
std::optional<std::int16_t> CInt(const Value& value);
std::optional<std::int32_t> CLng(const Value& value);
std::optional<double> CDbl(const Value& value);
// Removes leading and trailing blanks (spaces only, like the run time).
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
// Upper and lower case over the Latin letters of the program's code page.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
// The run time's binary text comparison: equal only when the same to the letter.
inline bool TextEquals(std::string_view a, std::string_view b) {
    return a == b;
}
// Comparison of two values as the run time's `=` does it: numbers (and numeric
// texts against numbers) by value, texts to the letter, null only to null.
bool LooseEquals(const Value& a, const Value& b);
// Case-blind comparison, as keys of a collection are compared.
bool TextEqualsNoCase(std::string_view a, std::string_view b);

} // namespace vb
} // namespace zolt
