#include "tables/data_validation.h"

#include "core/parameters.h"
#include "core/ports/ui.h"
#include "core/switch_type.h"
#include "tables/field_def.h"

#include <set>

namespace zolt {
namespace {

bool IsBlank(const Value& value) {
    return value.isNull() || vb::Trim(value.text()).empty();
}

std::string_view TrimView(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

// Compares a cell with a text without building a string for text cells: the
// hot path of every uniqueness test.
bool CellEquals(const Value& cell, std::string_view value) {
    if (const auto* text = std::get_if<std::string>(&cell.storage())) {
        // Most cells carry no blanks at their ends: compare them as they are.
        if (!text->empty() && text->front() != ' ' && text->back() != ' ')
            return std::string_view(*text) == value;
        return TrimView(*text) == value;
    }
    if (cell.isNull())
        return value.empty();
    return vb::Trim(cell.text()) == value;
}

} // namespace

ErrorCode CheckText(const Value& value, bool required, std::optional<int> maxLength,
                    CParamList& params) {
    if (IsBlank(value))
        return required ? code::Required : code::None;
    if (!maxLength)
        return code::None;
    const std::string trimmed = vb::Trim(value.text());
    // Counted in characters, not bytes.
    int length = 0;
    for (const char c : trimmed)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++length;
    if (length <= *maxLength)
        return code::None;
    // With one common per switch, names carry their common and may run long.
    if (GetSwitchType(params) == SwitchType::OneCommonPerSwitch)
        return code::None;
    return code::TooLong;
}

ErrorCode CheckNumber(const Value& value, bool required, const Value& minValue,
                      const Value& maxValue) {
    if (IsBlank(value))
        return required ? code::NotNumeric : code::None;
    if (!vb::IsNumeric(value))
        return code::NotNumeric;
    const double number = value.number().value_or(0.0);
    if (number < minValue.number().value_or(-2147483648.0))
        return code::BelowMinimum;
    const auto maximum = vb::CLng(maxValue);
    if (number > static_cast<double>(maximum.value_or(2147483647)))
        return code::AboveMaximum;
    return code::None;
}

int CountMatches(const Grid& grid, std::initializer_list<Match> conditions,
                 std::optional<int> exceptRow) {
    const int except = exceptRow.value_or(-1);
    int count = 0;
    for (int row = 1; row <= grid.Rows(); ++row) {
        if (row == except)
            continue;
        bool all = true;
        for (const Match& m : conditions)
            if (!CellEquals(grid.At(row, m.column), m.value)) {
                all = false;
                break;
            }
        if (all)
            ++count;
    }
    return count;
}

int CountDistinct(const Grid& grid, std::string_view value, int matchColumn,
                  std::string_view newValue, int keyColumn, int /*found*/) {
    std::set<std::string, std::less<>> keys;
    keys.emplace(newValue);
    for (int row = 1; row <= grid.Rows(); ++row)
        if (CellEquals(grid.At(row, matchColumn), value))
            keys.emplace(vb::Trim(grid.Text(row, keyColumn)));
    return static_cast<int>(keys.size());
}

std::int32_t ToLong(const Value& value) {
    if (!vb::IsNumeric(value))
        return 0;
    return vb::CLng(value).value_or(0);
}

std::string NullToText(const Value& value) {
    return value.isNull() ? std::string() : value.text();
}

bool HasValue(const Value& value) {
    return !value.isNull() && !value.text().empty();
}

std::string ErrorText(ErrorCode errorCode, const CFieldDef* field, const std::string& arg1,
                      const std::string& arg2) {
    switch (errorCode) {
    case code::TooLong:
        return field ? "Entered data exceeds Maximum allowed Length of " +
                           std::to_string(field->MaxLength) + " char!"
                     : "Entered data exceeds Maximum allowed Length!";
    case code::Duplicate:
        return "Value already Exists! Enter a unique value.";
    case code::Required:
        return "Valid value must be entered!";
    case code::NotNumeric:
        return "Numeric value must be Entered!";
    case code::BelowMinimum:
        return field ? "Number must be Greater Than or Equal To " + field->MinValue.text() + "!"
                     : "Number is Below the Lower Limit!";
    case code::AboveMaximum:
        return field ? "Number must be Less Than or Equal To " + field->MaxValue.text() + "!"
                     : "Number is Above the Upper Limit!";
    case code::InvalidNumber:
        return "Invalid Number!";
    case code::TooManyPins:
        return "This Pin Exceeds the Maximum Number of Pins defined for this Connector !";
    case code::DuplicateTestPin:
        return "No Duplicate Test Pin Locations!";
    case code::BadTestPin:
        return "Invalid Test Pin Format or Value!";
    case code::NoConnector:
        return "Connector Name Does Not Exist!";
    case code::TooManyConnectorPins:
        return "Number of Pins Exceeded Quantity Defined in Connectors Table!";
    case code::GroupRequired:
        return "Group ID is a Required Field!";
    case code::ConnectorRequired:
        return "Connector Name is a Required Field!";
    case code::PinRequired:
        return "Pin Number is a Required Field!";
    case code::DuplicatePin:
        return "No Duplicate Connector/Pin Designations!";
    case code::DuplicateSwitch:
        return "No Duplicate Switch Names!";
    case code::NoWire:
        return "Wire Does Not Exist!";
    case code::NoComponent:
        return "Component Does Not Exist!";
    case code::WireUsedTwice:
        return "Wire Can Not Appear More than Twice!";
    case code::BadNetlist:
        return "Enter Valid Netlist!";
    case code::NoInstruction:
        return "Sequential Instruction Does Not Exist!";
    case code::BadParameter:
        return "Enter Valid Parameter!";
    case code::ParameterBelowRange:
    case code::ParameterAboveRange:
        return "Parameter must be from " + arg1 + " to " + arg2;
    case code::NoMessage:
        return "Message Does Not Exist!";
    case code::BranchToItself:
        return "Can Not Branch to Itself!";
    case code::WireIsDouble:
        return "Wire Already Exists as Double!";
    case code::PinWireExists:
        return "Connector/Pin/Wire Exists!";
    case code::PinHasWire:
        return "Connector/Pin Already Contains Wire Definition!";
    case code::PinUnconnected:
        return "Connector/Pin is Unconnected Elsewhere!";
    default:
        return {};
    }
}

void ShowError(Ui& ui, ErrorCode errorCode, const CFieldDef* field, const std::string& arg1,
               const std::string& arg2) {
    ui.Message(ErrorText(errorCode, field, arg1, arg2),
               "ZOLT Error - " + std::to_string(ErrorNumber(errorCode)), Buttons::Ok);
}

std::string NextName(const std::string& text) {
    if (vb::IsNumeric(std::string_view(text)) && text.size() < 5)
        return vb::NumberText(vb::Val(text) + 1);
    if (text.empty())
        return text;
    std::string next = text;
    char& last = next.back();
    if (last != 'Z' && last != 'z')
        last = static_cast<char>(last + 1);
    return next;
}

std::string RefusedRecordsText(const std::string& limitText, int first, int last) {
    const std::string records =
        first == last ? "Record:" + std::to_string(first)
                      : "Records:" + std::to_string(first) + " to " + std::to_string(last);
    return limitText + ".\n" + records + " not added.";
}

} // namespace zolt
