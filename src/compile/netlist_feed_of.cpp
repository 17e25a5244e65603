#include "compile/netlist_feed_of.h"

#include "core/project.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "fixture/fixture_table.h"
#include "tables/color_table.h"

#include <array>
#include <optional>
#include <utility>

namespace zolt::compile {
namespace {

constexpr const char* kTypeMismatch = "Type mismatch";
constexpr const char* kSubscript = "Subscript out of range";

constexpr std::array<std::pair<const char*, const char*>, 7> kKindCodes = {{
    {"DIODE", "DIOM"},
    {"RESISTOR", "RESM"},
    {"P_CAPACITOR", "PCAP"},
    {"K_RESISTOR", "KEL"},
    {"KG_RESISTOR", "KELG"},
    {"CAPACITOR", "CAP"},
    {"UNET", "UNET"},
}};

const Grid& gridOf(const CNetList& netlist, TableId id) {
    static const Grid empty;
    const Table* table = netlist.GetTable(id);
    return table ? table->gridarray() : empty;
}

std::int32_t numberOf(const std::string& text) {
    return static_cast<std::int32_t>(vb::Val(text));
}

// A color cell with "(none)" and "0" as no color, and a color number as its name,
// which is what an analyzer prints about a wire.
std::string colorOf(const Grid& grid, int row, int column, const CColorTable* colors) {
    std::string text = grid.Text(row, column);
    if (text == "(none)" || text == "0")
        return {};
    if (colors && vb::IsNumeric(std::string_view(text)))
        if (std::string name = colors->GetColors(static_cast<int>(vb::Val(text))); !name.empty())
            return name;
    return text;
}

std::optional<std::int32_t> longOf(const std::string& text) {
    return vb::CLng(Value(text));
}

// "<board>-<point>": false for a test point that is no such pair.
bool readFixture(const Project& project, const CNetList& netlist, NetlistFeed& feed) {
    namespace col = fixture_column;
    const auto* fixture = netlist.TableAs<CFixtureTable>(table::Fixture);
    const Grid& points = fixture && fixture->gridMain()
                             ? gridOf(*project.MainNetlist, table::Fixture)
                             : gridOf(netlist, table::Fixture);
    for (int r = 1; r <= points.Rows(); ++r) {
        const std::string s = points.Text(r, col::TestPoint);
        if (s.size() < 4)
            return false;
        const auto board = longOf(s.substr(0, s.size() - 4));
        const auto point = board ? longOf(s.substr(s.size() - 3)) : std::nullopt;
        if (!point)
            return false;
        feed.fixture.push_back(
            {*board, *point, points.Text(r, col::Connector), points.Text(r, col::Pin)});
    }
    return true;
}

void readConnectors(const CNetList& netlist, const FeedSettings& settings, NetlistFeed& feed) {
    namespace col = connector_column;
    const Grid& rows = gridOf(netlist, table::Connector);
    for (int r = 1; r <= rows.Rows(); ++r) {
        const auto lamp = [&](int column) {
            const std::string text = rows.Text(r, column);
            return !settings.lampPin || text.empty() ? -1 : numberOf(text);
        };
        feed.connectors.push_back({rows.Text(r, col::Connector),
                                   numberOf(rows.Text(r, col::PinsQty)),
                                   numberOf(rows.Text(r, col::SwitchesQty)), lamp(col::LampBoard),
                                   lamp(col::LampPoint), rows.Text(r, col::Grid)});
    }
}

void readSwitches(const CNetList& netlist, NetlistFeed& feed) {
    namespace col = switches_column;
    const Grid& rows = gridOf(netlist, table::Switches);
    for (int r = 1; r <= rows.Rows(); ++r) {
        // The switch's place among its connector's switches so far.
        std::int16_t ordinal = 0;
        for (int q = 1; q <= r; ++q)
            if (rows.Text(q, col::Connector) == rows.Text(r, col::Connector))
                ++ordinal;
        feed.switches.push_back({rows.Text(r, col::Connector), rows.Text(r, col::SwitchName),
                                 rows.Text(r, col::SwitchCommons), ordinal});
    }
}

void readWiring(const Project& project, const CNetList& netlist, NetlistFeed& feed) {
    const auto* colors =
        project.MainNetlist ? project.MainNetlist->TableAs<CColorTable>(table::Color) : nullptr;
    const Grid& groups = gridOf(netlist, table::Groups);
    for (int r = 1; r <= groups.Rows(); ++r) {
        namespace col = groups_column;
        feed.groups.push_back({groups.Text(r, col::Group), groups.Text(r, col::Connector),
                               groups.Text(r, col::Pin), colorOf(groups, r, col::BaseColor, colors),
                               colorOf(groups, r, col::StripeColor, colors)});
    }
    const Grid& wires = gridOf(netlist, table::Wire);
    for (int r = 1; r <= wires.Rows(); ++r) {
        namespace col = wire_column;
        feed.wires.push_back({wires.Text(r, col::Wire), colorOf(wires, r, col::BaseColor, colors),
                              colorOf(wires, r, col::StripeColor, colors)});
    }
    const Grid& pins = gridOf(netlist, table::Pin);
    for (int r = 1; r <= pins.Rows(); ++r) {
        namespace col = pin_column;
        std::string wire = pins.Text(r, col::Wire);
        if (wire.empty() || wire == "(none)")
            wire = kUnconnected;
        feed.pins.push_back({pins.Text(r, col::Connector), pins.Text(r, col::Pin), wire});
    }
    const Grid& splices = gridOf(netlist, table::Splice);
    for (int r = 1; r <= splices.Rows(); ++r) {
        namespace col = splice_column;
        feed.splices.push_back(
            {numberOf(splices.Text(r, col::Number)), splices.Text(r, col::Wire)});
    }
}

bool readComponents(const Project& project, const CNetList& netlist, NetlistFeed& feed) {
    namespace col = component_column;
    const Grid& rows = gridOf(netlist, table::Component);
    for (int r = 1; r <= rows.Rows(); ++r) {
        const std::string name = rows.Text(r, col::DeviceType);
        std::string code;
        if (HasDeviceKindCode(name)) {
            code = DeviceKindCode(name);
        } else {
            // The row's position in the device list, not the name's: kept as it always was.
            const CComponent* device = project.DeviceList.Item(static_cast<std::size_t>(r));
            if (!device)
                return false;
            code = device->ComponentName;
        }
        feed.components.push_back({code, numberOf(rows.Text(r, col::Number)),
                                   rows.Text(r, col::Wire1), rows.Text(r, col::Wire2),
                                   numberOf(rows.Text(r, col::Parameter))});
    }
    return true;
}

void readReversibles(const CNetList& netlist, NetlistFeed& feed) {
    namespace col = reversible_column;
    const Grid& rows = gridOf(netlist, table::Reversible);
    for (int r = 1; r <= rows.Rows(); ++r)
        feed.reversibles.push_back({numberOf(rows.Text(r, col::Number)),
                                    rows.Text(r, col::Connector1), rows.Text(r, col::Pin1),
                                    rows.Text(r, col::Connector2), rows.Text(r, col::Pin2)});
}

} // namespace

std::string DeviceKindCode(const std::string& componentName) {
    for (const auto& [name, code] : kKindCodes)
        if (componentName == name)
            return code;
    return componentName;
}

bool HasDeviceKindCode(const std::string& componentName) {
    for (const auto& entry : kKindCodes)
        if (componentName == entry.first)
            return true;
    return false;
}

FeedOutcome FeedOf(const Project& project, const CNetList& netlist, const FeedSettings& settings) {
    FeedOutcome out;
    out.feed.name = netlist.NetlistName;
    if (!readFixture(project, netlist, out.feed)) {
        out.error = kTypeMismatch;
        return out;
    }
    readConnectors(netlist, settings, out.feed);
    if (settings.switches)
        readSwitches(netlist, out.feed);
    readWiring(project, netlist, out.feed);
    if (!readComponents(project, netlist, out.feed))
        out.error = kSubscript;
    else
        readReversibles(netlist, out.feed);
    return out;
}

} // namespace zolt::compile
