// Random edits, undos and redos across netlists: the project must always equal
// a fresh replay of the edits that survive, byte for byte in its program file,
// and undoing everything must give back the file it started from.
#include "core/netlist_operations.h"
#include "core/table_kinds.h"
#include "file/program_file.h"
#include "file/program_session.h"
#include "fixture/fixture_commands.h"
#include "tables/table_editor.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace zolt {
namespace {

using test::Session;

// An edit, applied to a session; the replay applies the same edits to another.
using Edit = std::function<void(Session&)>;

DataTable& tableOf(Session& s, const std::string& netlist, TableId table) {
    return *s.state.project().FindNetlist(netlist)->TableAs<DataTable>(table);
}

std::string join(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& p : parts)
        text += (text.empty() ? "" : "~") + p;
    return text;
}

// Draws an edit that fits the project as it stands: rows, pastes and clears of
// three tables, fixture generation, netlists added, renamed and deleted, a setting.
Edit draw(Session& s, std::mt19937& random, int& names) {
    auto pick = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<std::string> netlists;
    s.state.project().NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& n) { netlists.push_back(n->NetlistName); });
    int kind = pick(11);
    const std::string netlist =
        netlists[static_cast<std::size_t>(pick(static_cast<int>(netlists.size())))];
    const TableId tables[] = {table::Connector, table::Wire, table::Pin};
    const TableId table = tables[pick(3)];
    const int rows = tableOf(s, netlist, table).gridarray().Rows();
    const auto row = [&] { return 1 + pick(std::max(rows, 1)); };
    const auto cells = [&] {
        const std::string n = std::to_string(1 + pick(6));
        if (table == table::Connector)
            return std::vector<std::string>{"J" + n, std::to_string(4 + pick(8))};
        if (table == table::Wire)
            return std::vector<std::string>{"W" + n};
        return std::vector<std::string>{"J" + n, std::to_string(1 + pick(4)),
                                        "W" + std::to_string(1 + pick(6))};
    };
    const auto editor = [netlist, table](Session& t) {
        return TableEditor(tableOf(t, netlist, table));
    };
    const auto activated = [netlist](Session& t) {
        std::string name = netlist;
        ActivateNetlist(t.state, name);
    };
    if ((kind == 8 || kind == 9) && netlist == kMain)
        kind = 10;
    switch (kind) {
    case 0:
        return [editor, values = cells()](Session& t) { editor(t).AddRow(values); };
    case 1: {
        const int at = row();
        return [editor, at, values = cells()](Session& t) { editor(t).EditCells(at, 0, values); };
    }
    case 2: {
        const int at = row();
        return [editor, at, values = cells()](Session& t) { editor(t).InsertRow(at, values); };
    }
    case 3: {
        const int a = row(), b = row(), c = row();
        return [editor, lines = std::vector<int>{a, b, c}](Session& t) {
            editor(t).DeleteLines(lines);
        };
    }
    case 4: {
        const int at = row(), b = row(), c = row();
        return [editor, at, lines = std::vector<int>{b, c}](Session& t) {
            TableEditor e = editor(t);
            e.Paste(join(e.CopyLines(lines)), at);
        };
    }
    case 5:
        return [editor](Session& t) {
            t.ui.QueueFirst(Answer::Ok);
            editor(t).ClearTable();
        };
    case 6:
        return [activated](Session& t) {
            activated(t);
            AutoGenCommand(t.state, true);
        };
    case 7:
        return [name = "N" + std::to_string(++names)](Session& t) { t.addNetlist(name); };
    case 8:
        return [activated, name = "R" + std::to_string(++names)](Session& t) {
            activated(t);
            t.renameNetlist(name);
        };
    case 9:
        return [netlist](Session& t) { DeleteNetList(t.state, netlist); };
    default:
        return [dwell = pick(50) / 10.0](Session& t) {
            t.state.params().SetVal(param::DwellTime, Value(dwell));
        };
    }
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
    std::vector<Edit> done;
    std::vector<Edit> undone;
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
            const Edit edit = draw(s, random, names);
            edit(s);
            if (history.Record()) {
                done.push_back(edit);
                undone.clear();
            }
        }
        ASSERT_EQ(history.CanUndo(), !done.empty()) << "step " << i;
    }

    Session replay;
    seed(replay);
    for (const Edit& edit : done)
        edit(replay);
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
