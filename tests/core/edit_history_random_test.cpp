// Random edits, undos and redos across netlists: the project must always equal
// a fresh replay of the edits that survive, byte for byte in its program file,
// and undoing everything must give back the file it started from.
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/program_session.h"
#include "fixture/fixture_commands.h"
#include "tables/table_editor.h"

#include <gtest/gtest.h>
#include <random>

namespace zolt {
namespace {

using test::Session;

struct Op {
    // clang-format off
    enum class Kind { Add, Edit, Insert, Delete, Paste, Clear, AutoGen, NetAdd, NetRename, NetDelete, Param };
    // clang-format on
    Kind kind = Kind::Add;
    std::string netlist;
    TableId table = table::Connector;
    std::vector<int> rows;
    std::vector<std::string> values;
};

DataTable& tableOf(Session& s, const Op& op) {
    return *s.state.project().FindNetlist(op.netlist)->TableAs<DataTable>(op.table);
}

std::string join(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& p : parts)
        text += (text.empty() ? "" : "~") + p;
    return text;
}

void apply(Session& s, const Op& op) {
    using Kind = Op::Kind;
    std::string active = op.netlist;
    if (op.kind == Kind::AutoGen || op.kind == Kind::NetRename)
        ActivateNetlist(s.state, active);
    switch (op.kind) {
    case Kind::Add:
        TableEditor(tableOf(s, op)).AddRow(op.values);
        break;
    case Kind::Edit:
        TableEditor(tableOf(s, op)).EditCells(op.rows[0], op.rows[1], op.values);
        break;
    case Kind::Insert:
        TableEditor(tableOf(s, op)).InsertRow(op.rows[0], op.values);
        break;
    case Kind::Delete:
        TableEditor(tableOf(s, op)).DeleteLines(op.rows);
        break;
    case Kind::Paste: {
        TableEditor editor(tableOf(s, op));
        const std::string copied = join(editor.CopyLines({op.rows.begin() + 1, op.rows.end()}));
        editor.Paste(copied, op.rows[0]);
        break;
    }
    case Kind::Clear:
        s.ui.QueueFirst(Answer::Ok);
        TableEditor(tableOf(s, op)).ClearTable();
        break;
    case Kind::AutoGen:
        AutoGenCommand(s.state, true);
        break;
    case Kind::NetAdd:
        s.addNetlist(op.values[0]);
        break;
    case Kind::NetRename:
        s.renameNetlist(op.values[0]);
        break;
    case Kind::NetDelete:
        DeleteNetList(s.state, op.netlist);
        break;
    case Kind::Param:
        s.state.params().SetVal(param::DwellTime, Value(std::stod(op.values[0])));
        break;
    }
}

// Draws an edit that fits the project as it stands.
Op draw(Session& s, std::mt19937& random, int& names) {
    auto pick = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<std::string> netlists;
    s.state.project().NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& n) { netlists.push_back(n->NetlistName); });
    Op op;
    op.kind = static_cast<Op::Kind>(pick(11));
    op.netlist = netlists[static_cast<std::size_t>(pick(static_cast<int>(netlists.size())))];
    const TableId tables[] = {table::Connector, table::Wire, table::Pin};
    op.table = tables[pick(3)];
    const int rows = tableOf(s, op).gridarray().Rows();
    const auto row = [&] { return 1 + pick(std::max(rows, 1)); };
    const auto cells = [&] {
        const std::string n = std::to_string(1 + pick(6));
        if (op.table == table::Connector)
            return std::vector<std::string>{"J" + n, std::to_string(4 + pick(8))};
        if (op.table == table::Wire)
            return std::vector<std::string>{"W" + n};
        return std::vector<std::string>{"J" + n, std::to_string(1 + pick(4)),
                                        "W" + std::to_string(1 + pick(6))};
    };
    switch (op.kind) {
    case Op::Kind::Add:
        op.values = cells();
        break;
    case Op::Kind::Edit:
        op.rows = {row(), 0};
        op.values = cells();
        break;
    case Op::Kind::Insert:
        op.rows = {row()};
        op.values = cells();
        break;
    case Op::Kind::Delete:
    case Op::Kind::Paste:
        op.rows = {row(), row(), row()};
        break;
    case Op::Kind::NetAdd:
        op.values = {"N" + std::to_string(++names)};
        break;
    case Op::Kind::NetRename:
        op.values = {"R" + std::to_string(++names)};
        [[fallthrough]];
    case Op::Kind::NetDelete:
        if (op.netlist == kMain)
            op.kind = Op::Kind::Param;
        break;
    default:
        break;
    }
    if (op.kind == Op::Kind::Param)
        op.values = {std::to_string(pick(50) / 10.0)};
    return op;
}

// The program file's bytes and the tabs: what must match.
std::string project(Session& s) {
    std::string text =
        file::ProgramFileBytes(s.state, "/nonexistent/Random.zlf").value_or("(none)");
    for (int i = 0; i < s.frame.TabCount(); ++i)
        text += "|" + s.frame.TabCaption(i);
    return text;
}

void seed(Session& s) {
    s.addNetlist("DOOR");
    for (const std::string netlist : {"MAIN", "DOOR"})
        for (int n = 1; n <= 3; ++n) {
            const std::string k = std::to_string(n);
            s.addRow(table::Connector, {Value("J" + k), Value("8")}, netlist);
            s.addRow(table::Wire, {Value("W" + k)}, netlist);
            s.addRow(table::Pin, {Value("J" + k), Value("1"), Value("W" + k)}, netlist);
        }
}

class RandomEdits : public testing::TestWithParam<unsigned> {};

TEST_P(RandomEdits, TheProjectEqualsAReplayOfTheSurvivingEdits) {
    Session s;
    seed(s);
    s.state.SetDirty(false); // as if just saved
    EditHistory& history = s.state.history();
    history.Reset();
    const std::string start = project(s);

    std::mt19937 random(GetParam());
    std::vector<Op> done;
    std::vector<Op> undone;
    int names = 0;
    for (int i = 0; i < 120; ++i) {
        const unsigned roll = random() % 100;
        if (roll < 20) {
            if (history.Undo()) {
                undone.push_back(done.back());
                done.pop_back();
            }
        } else if (roll < 30) {
            if (history.Redo()) {
                done.push_back(undone.back());
                undone.pop_back();
            }
        } else {
            const Op op = draw(s, random, names);
            apply(s, op);
            if (history.Record()) {
                done.push_back(op);
                undone.clear();
            }
        }
        ASSERT_EQ(history.CanUndo(), !done.empty()) << "step " << i;
    }

    Session replay;
    seed(replay);
    for (const Op& op : done)
        apply(replay, op);
    const std::string end = project(s);
    EXPECT_EQ(end, project(replay)) << done.size() << " edits survive";

    while (history.Undo()) {
    }
    EXPECT_EQ(project(s), start);
    EXPECT_FALSE(s.state.IsDirty()) << "back at the state the history started from";
    for (std::size_t i = 0; i < done.size(); ++i)
        ASSERT_TRUE(history.Redo());
    EXPECT_EQ(project(s), end) << "the surviving edits redone";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1u, 25u),
                         [](const testing::TestParamInfo<unsigned>& info) {
                             return "Seed" + std::to_string(info.param);
                         });

} // namespace
} // namespace zolt
