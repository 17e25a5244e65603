#include "interchange/from_to_reader.h"

#include "core/value.h"
#include "interchange/csv.h"
#include "interchange/wire_colours.h"

#include <set>
#include <sstream>

namespace zolt::interchange {
namespace {

std::string cellOf(const std::vector<std::string>& row, std::size_t column) {
    return column < row.size() ? vb::Trim(row[column]) : std::string();
}

} // namespace

DrawingRead ReadFromToList(std::string_view text, const DrawingOptions& /*options*/) {
    std::istringstream in{std::string(text)};
    std::vector<std::vector<std::string>> rows;
    std::vector<int> lines;
    DrawingRead read;
    if (!ReadCsv(in, rows, &lines))
        return {{}, "a quote is left open"};
    std::set<std::string> taken;
    for (const auto& row : rows)
        if (!cellOf(row, 4).empty())
            taken.insert(cellOf(row, 4));
    int next = 1;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& row = rows[i];
        if (i == 0 && vb::UCase(cellOf(row, 0)).starts_with("FROM"))
            continue;
        bool blank = true;
        for (const auto& cell : row)
            blank = blank && vb::Trim(cell).empty();
        if (blank)
            continue;
        DrawingWire wire;
        wire.line = lines[i];
        for (std::size_t c = 0; c < 4; ++c)
            if (cellOf(row, c).empty())
                return {{},
                        AtLine(wire.line, "a connection needs from connector, from pin, to "
                                          "connector and to pin")};
        wire.ends = {{cellOf(row, 0), cellOf(row, 1)}, {cellOf(row, 2), cellOf(row, 3)}};
        wire.name = cellOf(row, 4);
        if (wire.name.empty())
            wire.name = FreeWireName(taken, next);
        const WireColours colours = ColoursOfText(cellOf(row, 5));
        wire.base = colours.base;
        wire.stripe = colours.stripe;
        read.drawing.wires.push_back(std::move(wire));
    }
    if (read.drawing.wires.empty())
        return {{}, "the list holds no connection"};
    AddConnectorsOfEnds(read.drawing);
    return read;
}

} // namespace zolt::interchange
