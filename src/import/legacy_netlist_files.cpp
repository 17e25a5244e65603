#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "import/legacy_fields.h"
#include "import/legacy_importer.h"

#include <fstream>
#include <map>

namespace zolt::import {

namespace fs = std::filesystem;
namespace field = legacy_field;

namespace {

// The kind codes of `.dev` turned back into device names.
std::string deviceName(const std::string& code) {
    static const std::map<std::string, std::string> names = {
        {"DIOM", "DIODE"},     {"RESM", "RESISTOR"},    {"PCAP", "P_CAPACITOR"},
        {"KEL", "K_RESISTOR"}, {"KELG", "KG_RESISTOR"}, {"UNET", "UNET"},
        {"CAP", "CAPACITOR"}};
    const auto found = names.find(code);
    return found == names.end() ? code : found->second;
}

// Switch types as the old connector layout named its commons.
constexpr int kCommonPerConnector = 2;
constexpr int kCommonPerSwitch = 3;

} // namespace

void LegacyImporter::importNetlistFiles(CNetList& netlist, const std::string& base) {
    if (members_.Has(base + ".wep"))
        convertWep(base);
    readConnectors(netlist, base);
    readSwitches(netlist, base);
    readGroups(netlist, base);
    readFixture(netlist, base);
    for (const char* extension : {".cir", ".spl", ".end", ".dev", ".rev"})
        readSimpleTable(netlist, base, extension);
}

// `.wep` blocks ("BLK name pins", then "PIN pins", "LMP board point", "POL n",
// "WED n") become `.bft` lines beside it, so that one reader serves both.
void LegacyImporter::convertWep(const std::string& base) {
    const fs::path wep = *members_.Find(base + ".wep");
    struct Block {
        std::string name, pins = "0", board = "-", point = "-";
        int pole = 0, wedge = 0;
    };
    std::vector<Block> blocks;
    for (const std::string& line : ReadMemberLines(wep)) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        using namespace field::wep;
        const std::string keyword = vb::UCase(fields[Keyword]);
        if (keyword == "BLK") {
            blocks.push_back({FieldAt(fields, First), FieldAt(fields, Second)});
            continue;
        }
        if (blocks.empty())
            continue;
        Block& block = blocks.back();
        if (keyword == "PIN")
            block.pins = FieldAt(fields, First);
        else if (keyword == "LMP") {
            block.board = FieldAt(fields, First);
            block.point = FieldAt(fields, Second);
        } else if (keyword == "POL")
            block.pole += LegacyNumber(FieldAt(fields, First));
        else if (keyword == "WED")
            block.wedge += LegacyNumber(FieldAt(fields, First));
    }
    std::ofstream bft(wep.parent_path() / (base + ".BFT"), std::ios::binary | std::ios::trunc);
    for (const Block& b : blocks) {
        const int type = b.pole > 0 ? kCommonPerConnector : b.wedge > 0 ? kCommonPerSwitch : 0;
        const auto orDash = [](const std::string& s) { return s.empty() ? std::string("-") : s; };
        bft << b.name << ' ' << orDash(b.pins) << ' ' << b.pole + b.wedge << ' '
            << (type ? std::to_string(type) : "-") << ' ' << orDash(b.board) << ' '
            << orDash(b.point) << " -\r\n";
    }
    bft.close();
    members_.Add(wep.parent_path(), {base + ".BFT"});
}

// `.bft`: name, pins, switch count, switch type, lamp board, lamp point, grid.
void LegacyImporter::readConnectors(CNetList& netlist, const std::string& base) {
    RowAppender rows(*netlist.GetTable(table::Connector), FileIndexOf(state_, netlist));
    std::set<int> types;
    for (const std::string& line : lines(base + ".bft")) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        using namespace field::bft;
        const std::int16_t switchCount = LegacyNumber(FieldAt(fields, SwitchCount));
        const std::string grid = FieldAt(fields, Grid);
        const std::string board = FieldAt(fields, LampBoard);
        const std::string point = FieldAt(fields, LampPoint);
        if (switchCount > 0) {
            switches_ = true;
            if (const int type = LegacyNumber(FieldAt(fields, SwitchType)); type >= 1 && type <= 3)
                types.insert(type);
        }
        if (!board.empty() || !point.empty())
            lamps_ = true;
        grids_ = grids_ || !grid.empty();
        rows.Append(ConnectorRecord{Value(fields[Name]), Value(LegacyNumber(FieldAt(fields, Pins))),
                                    Value(switchCount), Value(LegacyNumber(board)),
                                    Value(LegacyNumber(point)),
                                    Value(grid.empty() ? std::string("0") : grid)});
        showCount(rows.Count(), "Connector");
    }
    switchTypes_.insert(types.begin(), types.end());
    if (types.size() > 1 && types.count(kCommonPerConnector))
        state_.ui().Message("ZOLT no longer supports multiple switch types with 'One Common per "
                            "Connector'.\nCommons names in the Fixture table beginning with "
                            "'OLD-' will need to be rewired.",
                            "Warning: Changes Required", Buttons::Ok, Icon::Warning);
}

// `.dlb`: connector, switch name, switch common.
void LegacyImporter::readSwitches(CNetList& netlist, const std::string& base) {
    RowAppender rows(*netlist.GetTable(table::Switches), FileIndexOf(state_, netlist));
    for (const std::string& line : lines(base + ".dlb")) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        using namespace field::dlb;
        const std::string common = FieldAt(fields, Common);
        if (!common.empty())
            switchCommons_.insert(vb::UCase(common));
        rows.Append(SwitchRecord{Value(fields[Connector]), Value(FieldAt(fields, SwitchName)),
                                 Value(common)});
        switches_ = true;
        showCount(rows.Count(), "Switch");
    }
}

// `.bar`: group, connector, pin, base color, stripe color.
void LegacyImporter::readGroups(CNetList& netlist, const std::string& base) {
    RowAppender rows(*netlist.GetTable(table::Groups), FileIndexOf(state_, netlist));
    for (const std::string& line : lines(base + ".bar")) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        using namespace field::bar;
        rows.Append(GroupRecord{Value(fields[Group]), Value(FieldAt(fields, Connector)),
                                Value(FieldAt(fields, Pin)), Value(FieldAt(fields, BaseColor)),
                                Value(FieldAt(fields, StripeColor))});
        showCount(rows.Count(), "Group");
    }
}

// `.asn`: test point, connector, pin. The old commons (WED, POL, COM and the
// commons the switches name) are no connectors any more: such a connector is
// kept as "OLD-" and its name, its pins renamed to the new test names W0-n
// (wedge), P0-n (pole), or WC, PC where the pin was itself a common; a common
// used as the pin of a real connector becomes "COM".
void LegacyImporter::readFixture(CNetList& netlist, const std::string& base) {
    RowAppender rows(*netlist.GetTable(table::Fixture), FileIndexOf(state_, netlist));
    std::set<std::string> commons = switchCommons_;
    commons.insert({"WED", "POL", "COM"});
    int wedges = 0;
    int poles = 0;
    for (const std::string& line : lines(base + ".asn")) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        std::string connector = FieldAt(fields, field::asn::Connector);
        std::string pin = FieldAt(fields, field::asn::Pin);
        const std::string upperConnector = vb::UCase(connector);
        const bool pinIsCommon = commons.count(vb::UCase(pin)) > 0;
        if (commons.count(upperConnector)) {
            if (upperConnector == "WED")
                pin = pinIsCommon ? "WC" : "W0-" + std::to_string(++wedges);
            else if (upperConnector == "POL")
                pin = pinIsCommon ? "PC" : "P0-" + std::to_string(++poles);
            connector = "OLD-" + connector;
        } else if (pinIsCommon) {
            pin = "COM";
        }
        rows.Append(
            FixtureRecord{Value(fields[field::asn::TestPoint]), Value(connector), Value(pin)});
        showCount(rows.Count(), "Fixture");
    }
}

// `.cir`, `.spl`, `.end`, `.dev`, `.rev`: one record a line.
void LegacyImporter::readSimpleTable(CNetList& netlist, const std::string& base,
                                     const char* extension) {
    const std::string kind = extension;
    const TableId number = kind == ".cir"   ? table::Wire
                           : kind == ".spl" ? table::Splice
                           : kind == ".end" ? table::Pin
                           : kind == ".dev" ? table::Component
                                            : table::Reversible;
    const char* caption = kind == ".cir"   ? "Wire"
                          : kind == ".spl" ? "Splice"
                          : kind == ".end" ? "Pin"
                          : kind == ".dev" ? "Component"
                                           : "Reversible";
    RowAppender rows(*netlist.GetTable(number), FileIndexOf(state_, netlist));
    for (const std::string& line : lines(base + extension)) {
        const auto f = LegacyFields(line);
        if (f.empty())
            continue;
        if (number == table::Wire) {
            using namespace field::cir;
            rows.Append(WireRecord{Value(f[Wire]), Value(FieldAt(f, BaseColor)),
                                   Value(FieldAt(f, StripeColor))});
        } else if (number == table::Splice) {
            using namespace field::spl;
            rows.Append(SpliceRecord{Value(LegacyNumber(f[Number])), Value(FieldAt(f, Wire))});
        } else if (number == table::Pin) {
            using namespace field::end;
            const std::string wire = FieldAt(f, Wire);
            rows.Append(PinRecord{Value(f[Connector]), Value(FieldAt(f, Pin)),
                                  Value(wire == "*UNC*" ? std::string("(none)") : wire)});
        } else if (number == table::Component) {
            namespace d = field::dev;
            rows.Append(ComponentRecord{
                Value(deviceName(vb::UCase(f[d::Kind]))),
                Value(LegacyNumber(FieldAt(f, d::Number))), Value(FieldAt(f, d::Wire1)),
                Value(FieldAt(f, d::Wire2)), Value(LegacyLong(FieldAt(f, d::Value))),
                Value(LegacyNumber(FieldAt(f, d::LowerTol))),
                Value(LegacyNumber(FieldAt(f, d::UpperTol))), Value(FieldAt(f, d::Parameter))});
        } else {
            using namespace field::rev;
            rows.Append(ReversibleRecord{Value(LegacyNumber(f[Number])),
                                         Value(FieldAt(f, Connector1)), Value(FieldAt(f, Pin1)),
                                         Value(FieldAt(f, Connector2)), Value(FieldAt(f, Pin2))});
        }
        showCount(rows.Count(), caption);
    }
}

} // namespace zolt::import
