#include "cli/batch_session.h"
#include "cli/commands.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "fixture/fixture_commands.h"
#include "tables/connector_table.h"

#include <ostream>

namespace zolt::cli {
namespace {

// `autogen`: the main frame's command; its question takes the next queued answer.
void autogen(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 0, "autogen");
    AutoGenCommand(s.RequireProject());
}

int functionKey(const std::string& word) {
    static const std::pair<const char*, int> keys[] = {
        {"F5", key::F5}, {"F6", key::F6}, {"F7", key::F7}, {"F8", key::F8}};
    for (const auto& [name, number] : keys)
        if (vb::TextEqualsNoCase(word, name))
            return number;
    throw CommandError("unknown key '" + word + "' (F5, F6, F7 or F8)");
}

// `key TABLE ROW KEY [VALUE...]`: a function key of a table window on a row;
// the values are typed from where the key leaves the caret.
void keyCommand(BatchSession& s, const BatchSession::Args& args) {
    const std::string usage = "key Fixture ROW F5|F6|F7|F8 [VALUE...]";
    if (args.size() < 3)
        throw CommandError("usage: " + usage);
    if (TableNumberOf(args[0]) != table::Fixture)
        throw CommandError("key: only the Fixture window has keys here; usage: " + usage);
    ProgramState& state = s.RequireProject();
    const int row = ParseInt(args[1], "row");
    const int key = functionKey(args[2]);
    const std::vector<std::string> values(args.begin() + 3, args.end());
    const auto result = FixtureKey(state, row, key, values);
    s.out() << "CODE " << (result ? std::to_string(*result) : std::string("NONE")) << '\n';
}

} // namespace

void RegisterFixtureCommands(BatchSession& session) {
    session.Register("autogen", autogen);
    session.Register("key", keyCommand);
}

} // namespace zolt::cli
