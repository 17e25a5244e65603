#include "sequence/system_sequence_table.h"

#include "core/table_kinds.h"

#include <algorithm>

namespace zolt {

CSystemSequenceTable::CSystemSequenceTable(ProgramState& state)
    : Table(state, table::SequenceList, kColumns) {}

void CSystemSequenceTable::AddRecord_v1(int row, const std::string& name, const std::string& flag,
                                        const std::string& type, const std::string& low,
                                        const std::string& high, const std::string& description,
                                        const std::string& version) {
    indexed_ = false;
    Grid& grid = gridarray();
    grid.Set(row, Name, Value(name));
    grid.Set(row, Flag, Value(flag));
    grid.Set(row, Type, Value(type));
    grid.Set(row, Low, Value(low));
    grid.Set(row, High, Value(high));
    grid.Set(row, Description, Value(description));
    grid.Set(row, Version, Value(version));
}

void CSystemSequenceTable::AddRecord_v1(int row, const std::vector<Value>& fields) {
    const auto text = [&](std::size_t i) { return i < fields.size() ? fields[i].text() : ""; };
    AddRecord_v1(row, text(0), text(1), text(2), text(3), text(4), text(5), text(6));
}

int CSystemSequenceTable::FindCommand(const std::string& name) const {
    if (!indexed_) {
        index_.clear();
        const Grid& grid = gridarray();
        for (int row = 1; row <= grid.Rows(); ++row)
            index_.emplace(vb::UCase(vb::Trim(grid.Text(row, Name))), row);
        indexed_ = true;
    }
    const auto it = index_.find(vb::UCase(vb::Trim(name)));
    return it == index_.end() ? 0 : it->second;
}

void CSystemSequenceTable::ReDimGrid(int rows, int columns) {
    indexed_ = false;
    Table::ReDimGrid(rows, columns);
}

void CSystemSequenceTable::Destroy() {
    indexed_ = false;
    Table::Destroy();
}

std::string CSystemSequenceTable::cellOf(const std::string& name, int column) const {
    const int row = FindCommand(name);
    return row == 0 ? std::string() : gridarray().Text(row, column);
}

std::int16_t CSystemSequenceTable::GetCommandType(const std::string& name) const {
    const int row = FindCommand(name);
    if (row == 0)
        return command_type::Unknown;
    return vb::CInt(gridarray().At(row, Type)).value_or(command_type::Unknown);
}

std::string CSystemSequenceTable::GetCommandDescription(const std::string& name) const {
    return cellOf(name, Description);
}

bool CSystemSequenceTable::IsMacro(const std::string& name) const {
    const int type = GetCommandType(name);
    return type == command_type::Macro || type == command_type::MacroWithText;
}

std::string CSystemSequenceTable::GetCommandLow(const std::string& name) const {
    return cellOf(name, Low);
}

std::string CSystemSequenceTable::GetCommandHigh(const std::string& name) const {
    return cellOf(name, High);
}

void CSystemSequenceTable::FillValueItems(std::vector<CommandItem>& list) const {
    list.clear();
    const Grid& grid = gridarray();
    list.reserve(static_cast<std::size_t>(grid.Rows()));
    for (int row = 1; row <= grid.Rows(); ++row)
        list.push_back({vb::Trim(grid.Text(row, Name)), vb::Trim(grid.Text(row, Description))});
}

std::vector<std::string> SortedCommandNames(const CSystemSequenceTable& dictionary) {
    std::vector<CommandItem> items;
    dictionary.FillValueItems(items);
    std::vector<std::string> names;
    names.reserve(items.size());
    for (auto& item : items)
        names.push_back(std::move(item.name));
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace zolt
