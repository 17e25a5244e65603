#include "tables/field_def.h"

#include "core/parameters.h"
#include "core/ports/ui.h"
#include "core/utf8.h"
#include "tables/data_validation.h"

namespace zolt {
bool CFieldDef::UpperCase(CParamList& params) const {
    switch (UpperCaseMode) {
    case 1:
        return true;
    case 2:
        return params.Number(param::UpperCase) != 0;
    default:
        return false;
    }
}

ErrorCode CFieldDef::Check(const Value& value, CParamList& params) const {
    switch (FieldType) {
    case field_type::Text:
        return CheckText(value, Required, MaxLength, params);
    case field_type::Integer:
    case field_type::Decimal:
        return CheckNumber(value, Required, MinValue, MaxValue);
    default:
        return code::None;
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
    const std::string typed = utf8::Encode(key);
    switch (FieldType) {
    case field_type::Text:
        if (UpperCase(params))
            key = utf8::CodePoints(vb::UCase(typed)).front();
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
    if (utf8::Length(text) >= MaxLength)
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
