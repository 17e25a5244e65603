#include "cli/batch_session.h"
#include "core/table_kinds.h"
#include "fixture/fixture_table.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zolt::cli {
namespace {

std::string rows(ProgramState& state) {
    std::string out;
    const Grid& grid = state.project().ActiveNetlist->GetTable(table::Fixture)->gridarray();
    for (int r = 1; r <= grid.Rows(); ++r)
        out += grid.Text(r, 0) + " " + grid.Text(r, 1) + " " + grid.Text(r, 2) + ";";
    return out;
}

TEST(FixtureCli, AutogenTakesItsAnswerFromTheQueueAndKeysFillRows) {
    std::ostringstream out;
    BatchSession session(out);
    std::istringstream start("new\n");
    ASSERT_EQ(session.Run(start, out), 0);
    Table& connectors = *session.state().project().MainNetlist->GetTable(table::Connector);
    connectors.AddRecord_v1(1, {Value("J1"), Value("2"), Value("0")});

    std::istringstream cancelled("answer cancel\nautogen\n");
    ASSERT_EQ(session.Run(cancelled, out), 0);
    EXPECT_EQ(rows(session.state()), "");
    std::istringstream script("answer ok\nautogen\nkey Fixture 3 F5 J1 3\nkey fixture 3 F9\n");
    std::ostringstream err;
    EXPECT_EQ(session.Run(script, err), 2);
    EXPECT_NE(err.str().find("KEY must be F5, F6, F7 or F8"), std::string::npos);
    EXPECT_EQ(rows(session.state()), "0-000 J1 1;0-001 J1 2;0-002 J1 3;");
    EXPECT_NE(out.str().find("Auto Generate the Fixture Table?\" -> OK"), std::string::npos);
}

} // namespace
} // namespace zolt::cli
