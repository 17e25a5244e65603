#include "sequence/sequence_renumbering.h"

#include "sequence/system_sequence_table.h"

#include <algorithm>
#include <cstdint>

namespace zolt {
namespace {

bool IsBranch(const Grid& rows, int row, const CommandTypeLookup& typeOf) {
    return typeOf(vb::Trim(rows.Text(row, sequence_column::Command))) == command_type::LineNumber;
}

void ShiftParameter(Grid& rows, int row, double by) {
    const double target = vb::Val(rows.Text(row, sequence_column::Parameter));
    rows.Set(row, sequence_column::Parameter, Value(vb::NumberText(target + by)));
}

} // namespace

bool IsShortNumber(const std::string& text) {
    return vb::IsNumeric(std::string_view(text)) && text.size() < 5;
}

void RenumberLines(Grid& rows, int fromRow) {
    for (int row = std::max(fromRow, 1); row <= rows.Rows(); ++row)
        rows.Set(row, sequence_column::Line, Value(static_cast<std::int16_t>(row)));
}

void FollowInsertedLine(Grid& rows, int row, const CommandTypeLookup& typeOf) {
    RenumberLines(rows, row);
    for (int r = 1; r <= rows.Rows(); ++r) {
        const std::string parameter = rows.Text(r, sequence_column::Parameter);
        if (IsBranch(rows, r, typeOf) && vb::IsNumeric(std::string_view(parameter)) &&
            vb::Val(parameter) >= row)
            ShiftParameter(rows, r, 1);
    }
}

void FollowDeletedLine(Grid& rows, int row, const CommandTypeLookup& typeOf) {
    RenumberLines(rows);
    for (int r = 1; r <= rows.Rows(); ++r) {
        const std::string parameter = rows.Text(r, sequence_column::Parameter);
        if (IsBranch(rows, r, typeOf) && IsShortNumber(parameter) && vb::Val(parameter) > row)
            ShiftParameter(rows, r, -1);
    }
}

CommandCompletion CompleteCommandPrefix(const std::vector<std::string>& sortedNames,
                                        const std::string& previousText,
                                        const std::string& prefix) {
    CommandCompletion result;
    if (prefix.empty()) {
        result.found = true;
        return result;
    }
    const std::string key = vb::UCase(prefix);
    for (const auto& name : sortedNames) {
        if (vb::UCase(name).starts_with(key)) {
            result.found = true;
            result.text = name;
            result.selStart = static_cast<int>(prefix.size());
            result.selLength = static_cast<int>(name.size() - prefix.size());
            return result;
        }
    }
    result.text = previousText;
    result.selStart = static_cast<int>(previousText.size());
    return result;
}

} // namespace zolt
