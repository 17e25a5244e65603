#include "compare/from_to_list.h"

#include "compare/connections.h"
#include "core/value.h"

#include <algorithm>
#include <utility>

namespace zolt::compare {
namespace {

// The fields of a line of the list, in the order they come.
enum Field : std::size_t { FromConnector, FromPin, ToConnector, ToPin, Wire, Colour };

bool Blank(const std::vector<std::string>& row) {
    return std::all_of(row.begin(), row.end(),
                       [](const std::string& cell) { return vb::Trim(cell).empty(); });
}

std::string CellOf(const std::vector<std::string>& row, std::size_t column) {
    // Drawings come from many tools; names are compared as the tables store them.
    return column < row.size() ? vb::UCase(vb::Trim(row[column])) : std::string();
}

} // namespace

FromToList ReadFromToRows(const std::vector<std::vector<std::string>>& rows) {
    FromToList list;
    bool first = true;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& row = rows[i];
        const int line = static_cast<int>(i) + 1;
        if (Blank(row))
            continue;
        if (std::exchange(first, false) && CellOf(row, FromConnector).starts_with("FROM"))
            continue;
        DrawingConnection connection;
        connection.line = line;
        const std::string cells[] = {CellOf(row, FromConnector), CellOf(row, FromPin),
                                     CellOf(row, ToConnector), CellOf(row, ToPin)};
        if (std::any_of(std::begin(cells), std::end(cells),
                        [](const std::string& cell) { return cell.empty(); })) {
            list.error = "line " + std::to_string(line) +
                         ": a connection needs from connector, from pin, to connector and to pin";
            return list;
        }
        connection.from = PinName(cells[FromConnector], cells[FromPin]);
        connection.to = PinName(cells[ToConnector], cells[ToPin]);
        connection.wire = CellOf(row, Wire);
        connection.colour = CellOf(row, Colour);
        list.connections.push_back(std::move(connection));
    }
    if (list.connections.empty())
        list.error = "the list holds no connection";
    return list;
}

} // namespace zolt::compare
