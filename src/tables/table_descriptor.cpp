#include "tables/table_descriptor.h"

#include "core/parameters.h"

#include <algorithm>
#include <stdexcept>

namespace zolt {

ColumnSpec TypedColumn(CFieldDef field) {
    return {.field = std::move(field)};
}

ColumnSpec HiddenColumn() {
    return {.shown = ColumnShown::Never};
}

std::vector<ColumnSpec> ColumnsFromList(std::span<const std::string_view> captions,
                                        std::span<const ColumnAt> columns) {
    std::vector<ColumnSpec> made;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].column != static_cast<int>(i))
            throw std::logic_error("column " + std::to_string(columns[i].column) +
                                   " listed in place " + std::to_string(i));
        made.push_back(columns[i].definition);
        made.back().caption = std::string(captions[i]);
    }
    return made;
}

const ColumnSpec& TableSpec::Column(int column) const {
    return columns.at(static_cast<std::size_t>(column));
}

std::vector<std::string> TableSpec::Captions() const {
    std::vector<std::string> captions;
    for (const ColumnSpec& column : columns)
        captions.push_back(column.caption);
    return captions;
}

std::vector<int> TableSpec::ColumnsOfKind(CellKind kind) const {
    std::vector<int> found;
    for (int c = 0; c < ColumnCount(); ++c)
        if (Column(c).kind == kind)
            found.push_back(c);
    return found;
}

bool TableSpec::HasColumnShown(ColumnShown shown) const {
    return std::any_of(columns.begin(), columns.end(),
                       [shown](const ColumnSpec& column) { return column.shown == shown; });
}

bool ShownBySettings(const ColumnSpec& column, CParamList& params) {
    switch (column.shown) {
    case ColumnShown::Never:
        return false;
    case ColumnShown::ByParameter:
        return column.parameter && params.Number(*column.parameter) != 0;
    default:
        return true;
    }
}

bool ShownBySettings(const TableButton& button, CParamList& params) {
    return !button.parameter || params.Number(*button.parameter) != 0;
}

} // namespace zolt
