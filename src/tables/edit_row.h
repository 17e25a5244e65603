#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt {

// The row a grid has open for editing: the current texts of its data columns,
// the texts it had when the edit began, and which row of the store it is
// (none while a new row is typed, or an inserted one). Rules read the other
// cells of the row from here.
struct EditRow {
    std::optional<int> row;
    std::vector<std::string> cells;
    std::vector<std::string> original;

    const std::string& Cell(int column) const {
        static const std::string empty;
        return column >= 0 && column < static_cast<int>(cells.size())
                   ? cells[static_cast<std::size_t>(column)]
                   : empty;
    }
    const std::string& Original(int column) const {
        static const std::string empty;
        return column >= 0 && column < static_cast<int>(original.size())
                   ? original[static_cast<std::size_t>(column)]
                   : empty;
    }
    void SetCell(int column, std::string text) {
        if (column < 0)
            return;
        if (column >= static_cast<int>(cells.size()))
            cells.resize(static_cast<std::size_t>(column) + 1);
        cells[static_cast<std::size_t>(column)] = std::move(text);
    }
};

} // namespace zolt
