#include "tables/field_def.h"

#include "core/parameters.h"
#include "core/ports/ui.h"
#include "tables/data_validation.h"

namespace zolt {
namespace {

std::string EncodeUtf8(char32_t c) {
    std::string out;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

char32_t DecodeFirst(std::string_view s) {
    if (s.empty())
        return 0;
    const auto b0 = static_cast<unsigned char>(s[0]);
    if (b0 < 0x80 || s.size() < 2)
        return b0;
    const auto b1 = static_cast<unsigned char>(s[1]) & 0x3Fu;
    if (b0 < 0xE0)
        return ((b0 & 0x1Fu) << 6) | b1;
    if (s.size() < 3)
        return b0;
    const auto b2 = static_cast<unsigned char>(s[2]) & 0x3Fu;
    if (b0 < 0xF0)
        return ((b0 & 0x0Fu) << 12) | (b1 << 6) | b2;
    if (s.size() < 4)
        return b0;
    const auto b3 = static_cast<unsigned char>(s[3]) & 0x3Fu;
    return ((b0 & 0x07u) << 18) | (b1 << 12) | (b2 << 6) | b3;
}

int CharacterCount(std::string_view text) {
    int n = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++n;
    return n;
}

} // namespace

bool CFieldDef::UpperCase(CParamList& params) const {
    switch (UpperCaseMode) {
    case 1:
        return true;
    case 2:
        return params.Number("UpperCase") != 0;
    default:
        return false;
    }
}

int CFieldDef::Check(const Value& value, CParamList& params) const {
    switch (FieldType) {
    case field_type::Text:
        return CheckText(value, Required, MaxLength, params);
    case field_type::Integer:
    case field_type::Decimal:
        return CheckNumber(value, Required, MinValue, MaxValue);
    default:
        return 0;
    }
}

std::string CFieldDef::Format(const Value& value) const {
    switch (FieldType) {
    case field_type::Text:
        return value.text();
    case field_type::Integer:
        return std::to_string(ToLong(value));
    default:
        return {};
    }
}

int CFieldDef::KeyPress(char32_t& key, std::string_view text, CParamList& params, Ui& ui) const {
    if (key < U' ' || ReadOnly())
        return 0;
    bool refused = false;
    const std::string typed = EncodeUtf8(key);
    switch (FieldType) {
    case field_type::Text:
        if (UpperCase(params))
            key = DecodeFirst(vb::UCase(typed));
        refused = key == U'~' || key == U' ';
        break;
    case field_type::Integer:
        refused = !vb::IsNumeric(std::string_view(typed)) || key == U'.';
        break;
    case field_type::Decimal:
        refused = !vb::IsNumeric(std::string_view(typed)) && key != U'.';
        break;
    default:
        break;
    }
    // The grid offers no way to type a negative number.
    if ((FieldType == field_type::Integer || FieldType == field_type::Decimal) && key == U'-')
        refused = true;
    if (CharacterCount(text) >= MaxLength)
        refused = true;
    if (!refused)
        return 0;
    key = 0;
    if (BeepOnReject)
        ui.Beep();
    return kKeyRefused;
}

CFieldDef NewFieldDef(int fieldType, bool required, int maxLength, std::optional<Value> minValue,
                      std::optional<Value> maxValue, std::optional<int> upperCaseMode) {
    CFieldDef def;
    def.FieldType = fieldType;
    def.Required = required;
    def.MaxLength = maxLength;
    if (minValue)
        def.MinValue = *minValue;
    if (maxValue)
        def.MaxValue = *maxValue;
    if (upperCaseMode)
        def.UpperCaseMode = *upperCaseMode;
    return def;
}

} // namespace zolt
