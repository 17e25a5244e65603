#include "cli/batch_session.h"
#include "cli/commands.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "fixture/fixture_commands.h"
#include "tables/data_table.h"

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
    throw CommandError("KEY must be F5, F6, F7 or F8");
}

// `key Fixture ROW KEY [VALUE...]`: the fixture window's keys, which act on a
// stored row as well as on the new-row line, and whose F8 generates the table.
void fixtureKey(BatchSession& s, const BatchSession::Args& args) {
    ProgramState& state = s.RequireProject();
    const int row = ParseInt(args[1], "ROW");
    const int key = functionKey(args[2]);
    const auto result = FixtureKey(state, row, key, {args.begin() + 3, args.end()});
    if (result)
        s.out() << "CODE " << ErrorNumber(*result) << '\n';
    else
        s.out() << "NO KEY\n";
}

} // namespace

void RegisterFixtureCommands(BatchSession& session) {
    session.Register("autogen", autogen);
    // The fixture takes its own road through `key`; other tables keep theirs.
    BatchSession::Handler generic = session.Registered("key");
    session.Register("key", [generic](BatchSession& s, const BatchSession::Args& args) {
        if (args.size() >= 3 && TableIndexOf(args[0]) == table::Fixture)
            fixtureKey(s, args);
        else if (generic)
            generic(s, args);
        else
            throw CommandError("usage: key Fixture ROW F5|F6|F7|F8 [VALUE...]");
    });
}

} // namespace zolt::cli
