#include "compare/row_places.h"

#include "compare/connections.h"
#include "compare/row_compare.h"
#include "core/netlist.h"
#include "core/project.h"
#include "core/table_columns.h"
#include "core/value.h"

#include <functional>
#include <vector>

namespace zolt::compare {
namespace {

using RowTest = std::function<bool(const Grid&, int)>;

std::vector<const CNetList*> MainFirst(const Project& project) {
    std::vector<const CNetList*> netlists;
    if (project.MainNetlist)
        netlists.push_back(project.MainNetlist);
    project.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        if (netlist.get() != project.MainNetlist)
            netlists.push_back(netlist.get());
    });
    return netlists;
}

std::optional<int> FindRow(const CNetList& netlist, TableId table, const RowTest& test) {
    const Table* rows = netlist.GetTable(table);
    for (int r = 1; rows && r <= rows->gridarray().Rows(); ++r)
        if (test(rows->gridarray(), r))
            return r;
    return std::nullopt;
}

std::optional<EditPlace> FindPlace(const std::vector<const CNetList*>& netlists, TableId table,
                                   const RowTest& test) {
    for (const CNetList* netlist : netlists)
        if (const auto row = FindRow(*netlist, table, test))
            return EditPlace{netlist->NetlistName, table, *row, *row};
    return std::nullopt;
}

bool Same(const Grid& rows, int row, int column, const std::string& text) {
    return vb::UCase(Cell(rows, row, column)) == vb::UCase(text);
}

RowTest IsComponent(const std::string& name) {
    return [name = vb::UCase(name)](const Grid& rows, int r) {
        return vb::UCase(Cell(rows, r, component_column::DeviceType) +
                         Cell(rows, r, component_column::Number)) == name;
    };
}

EditPlace TableOnly(const CNetList& netlist, TableId table) {
    return EditPlace{netlist.NetlistName, table, 0, 0};
}

std::string FirstWord(const std::string& text, std::size_t from = 0) {
    const auto end = text.find_first_of(" :", from);
    return text.substr(from, end == std::string::npos ? std::string::npos : end - from);
}

std::string Without(const std::string& text, const std::string& prefix) {
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

// A connection is told by its first cavity ("J1-4 now joins …", "missing J1-4 to
// J2-3"); a cavity the program lacks is found by the other end.
std::optional<EditPlace> ConnectionPlace(const std::vector<const CNetList*>& netlists,
                                         const std::string& text) {
    const std::string rest = Without(Without(text, "missing "), "extra ");
    const std::string from = FirstWord(rest);
    std::optional<EditPlace> found;
    for (const std::string& pin : {from, FirstWord(Without(rest, from + " to "))}) {
        const auto place = FindPlace(netlists, table::Pin, [&](const Grid& rows, int r) {
            return vb::UCase(PinName(Cell(rows, r, pin_column::Connector),
                                     Cell(rows, r, pin_column::Pin))) == vb::UCase(pin);
        });
        if (place)
            return place;
    }
    return std::nullopt;
}

// "J1-2 to J3-4: colour …": the Wires row of the wire at the first cavity.
std::optional<EditPlace> WirePlace(const std::vector<const CNetList*>& netlists,
                                   const std::string& text) {
    const auto pin = ConnectionPlace(netlists, text);
    if (!pin)
        return std::nullopt;
    const CNetList* netlist = netlists.front();
    const std::string wire =
        Cell(netlist->GetTable(table::Pin)->gridarray(), pin->firstRow, pin_column::Wire);
    const auto row = FindRow(*netlist, table::Wire, [&](const Grid& rows, int r) {
        return Same(rows, r, wire_column::Wire, wire);
    });
    return row ? EditPlace{netlist->NetlistName, table::Wire, *row, *row} : pin;
}

std::optional<EditPlace> ConnectorPlace(const std::vector<const CNetList*>& netlists,
                                        const std::string& text) {
    std::string name = FirstWord(text);
    if (name == "connector")
        name = FirstWord(Without(Without(text, "connector "), "now "));
    return FindPlace(netlists, table::Connector, [&](const Grid& rows, int r) {
        return Same(rows, r, connector_column::Connector, name);
    });
}

// "+ J1 3 …" is a row of this program; "- …" one of the other's only.
EditPlace ListedRowPlace(const CNetList& netlist, TableId table, const std::string& text) {
    const std::string row = Without(text, "+ ");
    const Table* shown = netlist.GetTable(table);
    if (row == text || !shown)
        return TableOnly(netlist, table);
    const auto columns = ShownColumnsOf(*shown);
    const auto found = FindRow(
        netlist, table, [&](const Grid& rows, int r) { return RowText(rows, r, columns) == row; });
    return found ? EditPlace{netlist.NetlistName, table, *found, *found}
                 : TableOnly(netlist, table);
}

// "+12 CONTINUITY MAIN" or "12 GOTO 3 now reaches …": the line of this program.
EditPlace LinePlace(const CNetList& main, const std::string& text) {
    const std::string number = FirstWord(text, text.starts_with('+') ? 1 : 0);
    if (text.starts_with('-'))
        return SequencePlace(0);
    const auto row = FindRow(main, table::Sequence, [&](const Grid& rows, int r) {
        const std::string shown = Cell(rows, r, sequence_column::Line);
        return shown.empty() ? std::to_string(r) == number : shown == number;
    });
    return SequencePlace(row.value_or(0));
}

} // namespace

std::optional<EditPlace> PinPlace(const Project& project, const std::string& pin) {
    return ConnectionPlace(MainFirst(project), pin);
}

std::optional<EditPlace> ComponentPlace(const Project& project, const std::string& name) {
    return FindPlace(MainFirst(project), table::Component, IsComponent(name));
}

std::optional<EditPlace> SwitchPlace(const Project& project, const std::string& connector,
                                     const std::string& name) {
    return FindPlace(MainFirst(project), table::Switches, [&](const Grid& rows, int r) {
        return Same(rows, r, switches_column::Connector, connector) &&
               Same(rows, r, switches_column::SwitchName, name);
    });
}

EditPlace SequencePlace(int row) {
    // MAIN's table shows under every tab: no tab is named, so none is switched.
    return EditPlace{"", table::Sequence, row, row};
}

std::optional<EditPlace> PlaceOf(const Project& project, const Difference& difference) {
    if (!project.MainNetlist || difference.where == "settings")
        return std::nullopt;
    if (difference.where == "sequence")
        return LinePlace(*project.MainNetlist, difference.text);
    const CNetList* netlist = project.FindNetlist(difference.where);
    const bool mainTable = difference.where == "colours" || difference.where == "messages" ||
                           difference.where == "test parameters";
    if (mainTable)
        netlist = project.MainNetlist;
    if (!netlist) // a netlist only the other program has
        return std::nullopt;
    const std::vector<const CNetList*> own{netlist};
    const std::string& text = difference.text;
    if (difference.table == "Netlists")
        return TableOnly(*netlist, table::Connector);
    if (difference.table == "Connections")
        return ConnectionPlace(own, text).value_or(TableOnly(*netlist, table::Pin));
    if (difference.table == "Wire")
        return WirePlace(own, text).value_or(TableOnly(*netlist, table::Wire));
    const auto table = TableIndexOf(difference.table);
    if (!table)
        return std::nullopt;
    if (*table == table::Connector)
        return ConnectorPlace(own, text).value_or(TableOnly(*netlist, *table));
    if (*table == table::Component)
        return FindPlace(own, *table, IsComponent(FirstWord(text)))
            .value_or(TableOnly(*netlist, *table));
    return ListedRowPlace(*netlist, *table, text);
}

} // namespace zolt::compare
