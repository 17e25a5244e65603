#pragma once

#include "core/value.h"
#include "tables/error_code.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zolt {

class CParamList;
class Ui;

namespace field_type {
inline constexpr int None = 0;
inline constexpr int Text = 1;
inline constexpr int Integer = 2;
inline constexpr int Decimal = 3;
} // namespace field_type

// The code KeyPress gives for a character it refused.
inline constexpr int kKeyRefused = 16;

// The rules of one visible column: what may be typed into it and what a value
// must be to pass.
struct CFieldDef {
    std::int32_t FieldType = field_type::Text;
    bool Required = true;
    std::int32_t MaxLength = 50;
    // 0 never, 1 always, 2 as the "UpperCase" parameter says; anything else never.
    std::int32_t UpperCaseMode = 2;
    Value MinValue = Value(-2147483648.0);
    Value MaxValue = Value(std::int32_t{2147483647});
    bool BeepOnReject = true;

    // A column without room for any character is locked by the grid.
    bool ReadOnly() const { return MaxLength == 0; }
    bool UpperCase(CParamList& params) const;
    // 0 when the value may stand in the column, else the error code.
    ErrorCode Check(const Value& value, CParamList& params) const;
    // The text a number column shows; texts stay as they are.
    std::string Format(const Value& value) const;
    // Filters one typed character (a code point) against the text already in the
    // cell: 0 with `key` possibly changed (upper case), or kKeyRefused with `key` 0.
    int KeyPress(char32_t& key, std::string_view text, CParamList& params, Ui& ui) const;
};

// A field definition with the defaults kept for every argument left out.
CFieldDef NewFieldDef(int fieldType, bool required, int maxLength,
                      std::optional<Value> minValue = std::nullopt,
                      std::optional<Value> maxValue = std::nullopt,
                      std::optional<int> upperCaseMode = std::nullopt);

} // namespace zolt
