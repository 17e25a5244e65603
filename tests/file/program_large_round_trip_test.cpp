#include "core/netlist_operations.h"
#include "file/program_file.h"
#include "program_builders.h"

#include <gtest/gtest.h>

namespace zolt::test {
namespace {

std::string numbered(const std::string& prefix, int n) {
    return prefix + std::to_string(n);
}

// Every table a file read stores in bulk, a few thousand rows in each of
// several netlists: texts with blanks around them, empty, non-ASCII and
// no-color cells, the limits of the numbers.
void fillLarge(Session& s, int rows) {
    for (int n = 1; n <= 3; ++n)
        AddNetlist(s.state, numbered("LOOM ", n));
    std::int32_t nl = 0;
    s.state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        const std::string net = netlist->NetlistName;
        for (int r = 1; r <= rows; ++r) {
            const std::string wire = numbered(r % 7 == 0 ? " W" : "W", r);
            s.addRow(table::Fixture,
                     {numbered(std::to_string(r / 128 % 16) + "-", 100 + r % 28),
                      numbered("J", r / 20), numbered("", r % 20 + 1), L(r), L(nl)},
                     net);
            s.addRow(table::Pin,
                     {numbered("J", r / 20), numbered("", r % 20 + 1), wire, L(r), L(nl)}, net);
            s.addRow(table::Wire,
                     {wire, r % 3 == 0 ? Value("(none)") : Value("RED "),
                      r % 5 == 0 ? Value("") : Value("WH\xC3\x84T"), L(r), L(nl)},
                     net);
            s.addRow(table::Groups,
                     {numbered("G", r % 50), numbered("J", r / 20), numbered("", r % 20 + 1),
                      "(none)", "BLU", L(r), L(nl)},
                     net);
            if (r % 10 == 0) {
                s.addRow(
                    table::Connector,
                    {numbered("J", r / 10), I(20), I(r % 2), I(-1), I(32767), " A ", L(r), L(nl)},
                    net);
                s.addRow(table::Component,
                         {"RES", I(r), wire, numbered("W", r + 1), I(-32768), I(5), I(5), "", L(-r),
                          L(nl)},
                         net);
                s.addRow(table::Splice, {I(r), wire, L(r), L(nl)}, net);
                s.addRow(table::Reversible, {I(r), "J1", "1", "J2", "2", L(r), L(nl)}, net);
                s.addRow(table::Switches, {"SW", numbered("J", r), "2", L(r), L(nl)}, net);
                s.addRow(table::Code, {net, "CONT", numbered("W", r), "", L(r), L(nl)}, net);
            }
        }
        ++nl;
    });
}

std::string bytesOf(ProgramState& state, const std::string& name) {
    return file::ProgramFileBytes(state, name).value_or("<failed>");
}

// A file written, read and written again gives the same bytes, and every
// table's cells come back as they went out.
TEST(ProgramFile, ALargeGeneratedProgramRoundTripsByteForByte) {
    Session source;
    fillLarge(source, 3000);
    // The texts the user typed with blanks lose them on the first read.
    const std::string first = bytesOf(source.state, "large.zlf");
    ASSERT_GT(first.size(), 1'000'000u);

    Session once;
    ASSERT_EQ(file::ReadProgramBytes(once.state, first, "large.zlf"), Answer::Yes);
    const std::string second = bytesOf(once.state, "large.zlf");
    Session twice;
    ASSERT_EQ(file::ReadProgramBytes(twice.state, second, "large.zlf"), Answer::Yes);
    EXPECT_TRUE(bytesOf(twice.state, "large.zlf") == second) << "the second write differs";

    EXPECT_EQ(once.grid(table::Pin, "LOOM 3").Rows(), 3000);
    EXPECT_EQ(once.grid(table::Pin, "LOOM 2").Text(7, 2), "W7");
    EXPECT_EQ(once.grid(table::Connector, "LOOM 1").Text(1, 5), "A");
    EXPECT_EQ(once.grid(table::Wire, "LOOM 1").Text(1, 2), "WH\xC3\x84T");
    for (const std::string net : {"MAIN", "LOOM 1", "LOOM 2", "LOOM 3"})
        for (TableId id :
             {table::Fixture, table::Pin, table::Wire, table::Groups, table::Connector,
              table::Component, table::Splice, table::Reversible, table::Switches, table::Code}) {
            SCOPED_TRACE(net + " table " + std::to_string(static_cast<int>(id)));
            EXPECT_TRUE(once.grid(id, net) == twice.grid(id, net));
        }
}

} // namespace
} // namespace zolt::test
