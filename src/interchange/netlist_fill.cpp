#include "interchange/netlist_fill.h"

#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "import/import_support.h"
#include "tables/color_table.h"
#include "tables/data_table.h"
#include "tables/data_validation.h"

#include <stdexcept>

namespace zolt::interchange {
namespace {

// A row the tables refused, with the drawing's line.
struct Refused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// One cell of a row `checked` returned, by its column.
Value cell(const std::vector<std::string>& cells, int column) {
    return Value(cells.at(static_cast<std::size_t>(column)));
}

class NetlistFiller {
public:
    NetlistFiller(ProgramState& state, CNetList& netlist)
        : netlist_(netlist),
          colours_(state.project().MainNetlist->TableAs<CColorTable>(table::Color)),
          index_(import::FileIndexOf(state, netlist)) {}

    void Fill(const Drawing& drawing) {
        {
            import::RowAppender rows = appender(table::Connector);
            rows.Reserve(static_cast<int>(drawing.connectors.size()));
            for (const DrawingConnector& c : drawing.connectors) {
                const auto cells = checked(rows, c.line, {c.name, std::to_string(c.pins)});
                rows.Append(import::ConnectorRecord{cell(cells, connector_column::Connector),
                                                    cell(cells, connector_column::PinsQty),
                                                    Value("0"), Value("0"), Value("0"),
                                                    Value("0")});
            }
        }
        {
            import::RowAppender rows = appender(table::Wire);
            rows.Reserve(static_cast<int>(drawing.wires.size()));
            for (const DrawingWire& w : drawing.wires) {
                const auto cells = checked(
                    rows, w.line, {w.name, colour(w.base, w.line), colour(w.stripe, w.line)});
                rows.Append(import::WireRecord{cell(cells, wire_column::Wire),
                                               cell(cells, wire_column::BaseColor),
                                               cell(cells, wire_column::StripeColor)});
            }
        }
        {
            import::RowAppender rows = appender(table::Pin);
            std::size_t ends = 0;
            for (const DrawingWire& w : drawing.wires)
                ends += w.ends.size();
            rows.Reserve(static_cast<int>(ends));
            for (const DrawingWire& w : drawing.wires)
                for (const Cavity& end : w.ends) {
                    const auto cells = checked(rows, w.line, {end.connector, end.pin, w.name});
                    rows.Append(import::PinRecord{cell(cells, pin_column::Connector),
                                                  cell(cells, pin_column::Pin),
                                                  cell(cells, pin_column::Wire)});
                }
        }
        {
            import::RowAppender rows = appender(table::Splice);
            for (const DrawingSplice& s : drawing.splices)
                for (const std::string& wire : s.wires) {
                    const auto cells = checked(rows, s.line, {std::to_string(s.number), wire});
                    rows.Append(import::SpliceRecord{cell(cells, splice_column::Number),
                                                     cell(cells, splice_column::Wire)});
                }
        }
        {
            import::RowAppender rows = appender(table::Component);
            for (const DrawingComponent& c : drawing.components) {
                const auto cells = checked(
                    rows, c.line,
                    {c.kind, std::to_string(c.number), c.wire1, c.wire2, c.value, "", "", "0"});
                rows.Append(import::ComponentRecord{
                    cell(cells, component_column::DeviceType),
                    cell(cells, component_column::Number), cell(cells, component_column::Wire1),
                    cell(cells, component_column::Wire2), cell(cells, component_column::Value),
                    cell(cells, component_column::LowerTol),
                    cell(cells, component_column::UpperTol),
                    cell(cells, component_column::Parameter)});
            }
        }
    }

private:
    // Written with a trailing return type: a line that starts with "import::"
    // reads to the formatter as a module import.
    auto appender(TableId id) -> import::RowAppender {
        Table* table = netlist_.GetTable(id);
        if (!table)
            throw Refused("the netlist has no " + TableCaption(id) + " table");
        return import::RowAppender(*table, index_);
    }

    // The number the Color table gives a colour name, the colour added when
    // it is new; "(none)" for no colour.
    std::string colour(const std::string& name, int line) {
        if (name.empty())
            return kNoColor;
        if (!colours_)
            throw Refused(AtLine(line, "the program has no Color table"));
        int id = colours_->GetColorID(name);
        if (id == 0) {
            if (!colours_->HasRoomForColor())
                throw Refused(AtLine(line, "no room in the Color table for " + name));
            id = colours_->AddNewColor(name);
        }
        return std::to_string(id);
    }

    // The cells of a new row as the table's record check leaves them; a
    // refusal names the table, the column and what it held.
    std::vector<std::string> checked(import::RowAppender& rows, int line,
                                     std::vector<std::string> cells) {
        auto* table = dynamic_cast<DataTable*>(&rows.table());
        if (!table)
            throw Refused(AtLine(line, "a table that takes no rows"));
        EditRow edit = table->NewEditRow();
        for (int c = 0; c < static_cast<int>(cells.size()); ++c)
            edit.SetCell(c, cells[static_cast<std::size_t>(c)]);
        int column = 0;
        const ErrorCode found = table->CheckRecord(column, check_mode::Silent, edit);
        if (found != code::None) {
            const CFieldDef* field = table->FieldDef(column + 1);
            std::string why = ErrorText(found, field);
            if (why.empty())
                why = "refused (" + std::to_string(ErrorNumber(found)) + ")";
            throw Refused(AtLine(
                line, TableCaption(table->tableIndex()) + ", " +
                          table->Descriptor().columns[static_cast<std::size_t>(column)].caption +
                          " \"" + edit.Cell(column) + "\": " + why));
        }
        edit.cells.resize(cells.size());
        return edit.cells;
    }

    CNetList& netlist_;
    CColorTable* colours_;
    std::int32_t index_;
}; // namespace

} // namespace

std::string FillNetlist(ProgramState& state, CNetList& netlist, const Drawing& drawing) {
    try {
        NetlistFiller(state, netlist).Fill(drawing);
    } catch (const Refused& refused) {
        return refused.what();
    }
    return {};
}

} // namespace zolt::interchange
