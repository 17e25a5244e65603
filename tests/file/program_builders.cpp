#include "program_builders.h"

#include "tables/message_table.h"

namespace zolt::test {
namespace {

std::string numbered(const std::string& prefix, int n) {
    return prefix + std::to_string(n);
}

// Rows a file read stores in bulk: texts with blanks around them, empty,
// non-ASCII and no-color cells, the limits of the numbers.
void pad(Session& s, int rows) {
    std::int32_t nl = 0;
    s.state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        const std::string net = netlist->NetlistName;
        for (int r = 1; r <= rows; ++r) {
            const std::string wire = numbered(r % 7 == 0 ? " W" : "W", r);
            const std::string pin = numbered("", r % 20 + 1);
            const std::string connector = numbered("J", r / 20);
            const std::string point = numbered(std::to_string(r / 128 % 16) + "-", 100 + r % 28);
            const Value base = r % 3 == 0 ? Value("(none)") : Value("RED ");
            const Value stripe = r % 5 == 0 ? Value("") : Value("WH\xC3\x84T");
            // clang-format off
            s.addRow(table::Fixture, {point, connector, pin, L(r), L(nl)}, net);
            s.addRow(table::Pin, {connector, pin, wire, L(r), L(nl)}, net);
            s.addRow(table::Wire, {wire, base, stripe, L(r), L(nl)}, net);
            s.addRow(table::Groups, {numbered("G", r % 50), connector, pin, "(none)", "BLU", L(r), L(nl)}, net);
            if (r % 10 != 0)
                continue;
            s.addRow(table::Connector, {numbered("J", r / 10), I(20), I(r % 2), I(-1), I(32767), " A ", L(r), L(nl)}, net);
            s.addRow(table::Component, {"RES", I(r), wire, numbered("W", r + 1), I(-32768), I(5), I(5), "", L(-r), L(nl)}, net);
            s.addRow(table::Splice, {I(r), wire, L(r), L(nl)}, net);
            s.addRow(table::Reversible, {I(r), "J1", "1", "J2", "2", L(r), L(nl)}, net);
            s.addRow(table::Switches, {"SW", numbered("J", r), "2", L(r), L(nl)}, net);
            s.addRow(table::Code, {net, "CONT", numbered("W", r), "", L(r), L(nl)}, net);
            // clang-format on
        }
        ++nl;
    });
}

} // namespace

void FillProject(Session& s, int padding) {
    AddNetlist(s.state, "HARNESS");
    AddNetlist(s.state, "MANUAL NETLISTS");
    s.state.project().FindNetlist("HARNESS")->NetlistType = 0;
    for (const std::string net : {"MAIN", "HARNESS"}) {
        const int nl = net == "MAIN" ? 0 : 1;
        s.addRow(table::Fixture, {"0-001", "J1", "1", L(1), L(nl)}, net);
        s.addRow(table::Fixture, {"0-002", "J1", "2", L(2), L(nl)}, net);
        s.addRow(table::Connector, {"J1", I(2), I(0), I(1), I(5), "A1", L(1), L(nl)}, net);
        s.addRow(table::Wire, {"W1", "RED", "(none)", L(7), L(nl)}, net);
        s.addRow(table::Wire, {"W2", "(none)", "BLU", L(8), L(nl)}, net);
        s.addRow(table::Component,
                 {"RES", I(1), "W1", "W2", I(32767), I(5), I(10), "P", L(3), L(nl)}, net);
        s.addRow(table::Pin, {"J1", "1", "W1", L(21), L(nl)}, net);
        s.addRow(table::Pin, {"J1", "2", "W2", L(22), L(nl)}, net);
        s.addRow(table::Groups, {"G1", "J1", "1", "RED", "(none)", L(31), L(nl)}, net);
        s.addRow(table::Reversible, {I(1), "J1", "1", "J1", "2", L(4), L(nl)}, net);
        s.addRow(table::Splice, {I(3), "W9", L(5), L(nl)}, net);
        s.addRow(table::Switches, {"SW1", "J1", "2", L(6), L(nl)}, net);
    }
    s.addRow(table::Color, {I(1), "RED", "WHT", L(0)});
    s.addRow(table::Color, {I(2), "BLU", "", L(0)});
    s.addRow(table::Message, {I(1), "INSERT H\xC3\x84RNESS", L(2), L(0)});
    auto* messages = s.state.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    messages->PLabelData().ReDim(20, 4);
    messages->AddPLabelRecord_V1(2, {I(81), "PART NO", L(0), L(0)});
    messages->AddPLabel2Record_V1(1, {I(100), "SERIAL", L(0), L(0)});
    s.addRow(table::TestParameter, {I(1), 1.5, -2.25, 1e-3, 12.0, L(1), L(0)});
    s.addRow(table::Sequence, {I(1), "PBEGIN", "1", "", "", L(1), L(0)});
    s.addRow(table::Sequence, {I(2), "CONT", "HARNESS", "", "", L(2), L(0)});
    s.addRow(table::Sequence, {I(3), "PEND", "", "", "", L(3), L(0)});
    s.addRow(table::Code, {"HARNESS", "A", "B", "C", L(1), L(0)});
    s.state.params().SetVal(param::PartNumber, Value("PN-1"));
    s.state.params().SetVal(param::TestVoltage, Value(12.0));
    s.state.project().Assembly.FeatureCodeData = {"FC1,HARNESS", "FC2"};
    s.state.project().Assembly.NetlistInfoList.Add(
        CNetlistInfo{"HARNESS", "Main loom", "ST1", 3, true, false}, "HARNESS");
    s.state.project().Assembly.NetlistInfoList.Add(
        CNetlistInfo{"MANUAL NETLISTS", "", "General", 0, false, true}, "MANUAL NETLISTS");
    s.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{"HARNESS", true}, "HARNESS");
    s.state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{"MANUAL NETLISTS", false},
                                                     "MANUAL NETLISTS");
    pad(s, padding);
}

} // namespace zolt::test
