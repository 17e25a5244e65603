#include "tables/table_descriptor.h"

#include "core/project.h"
#include "core/value.h"

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

namespace {

bool isSet(const Project& project, ParamKey parameter) {
    const CParameter* found = project.FileParameters.Item(vb::LCase(std::string(parameter.Name())));
    return found && found->Val.number().value_or(0.0) != 0;
}

} // namespace

bool ShownBySettings(const ColumnSpec& column, const Project& project) {
    switch (column.shown) {
    case ColumnShown::Never:
        return false;
    case ColumnShown::ByParameter:
        return column.parameter && isSet(project, *column.parameter);
    default:
        return true;
    }
}

bool ShownBySettings(const TableButton& button, const Project& project) {
    return !button.parameter || isSet(project, *button.parameter);
}

} // namespace zolt
