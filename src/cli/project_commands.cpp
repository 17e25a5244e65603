#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/project_dump.h"
#include "cli/script_words.h"
#include "core/netlist_operations.h"

#include <ostream>

namespace zolt::cli {
namespace {

void newProject(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 0, "new");
    NewProject(s.state());
    FillDefaultTestParameters(s.state());
    LoadProgramData(s);
}

void netlist(BatchSession& s, const BatchSession::Args& args) {
    const std::string usage = "netlist add|rename|delete|activate NAME [NEW]";
    RequireArgs(args, 2, 3, usage);
    ProgramState& state = s.RequireProject();
    const std::string& verb = args[0];
    if (verb == "add") {
        RequireArgs(args, 2, 2, "netlist add NAME");
        s.ui().QueueFirst(ScriptedUi::TextAnswer{args[1]});
        NewNetlistCommand(state);
    } else if (verb == "rename") {
        RequireArgs(args, 3, 3, "netlist rename NAME NEW");
        const int tab = FindNetlistTab(state, args[1]);
        if (tab < 0)
            throw CommandError("no tab named '" + args[1] + "'");
        if (const CNetList* named = state.project().FindNetlist(args[1]);
            named && IsFixedNetlist(state, *named))
            throw CommandError("Rename does not apply to " + named->NetlistName);
        state.frame().SetCurrentTab(tab);
        s.ui().QueueFirst(ScriptedUi::TextAnswer{args[2]});
        RenameNetlistCommand(state);
    } else if (verb == "delete") {
        RequireArgs(args, 2, 2, "netlist delete NAME");
        s.ui().QueueFirst(ScriptedUi::TextAnswer{args[1]});
        DeleteNetlistCommand(state);
    } else if (verb == "activate") {
        RequireArgs(args, 2, 2, "netlist activate NAME");
        std::string name = args[1];
        ActivateNetlist(state, name);
    } else {
        throw CommandError("usage: " + usage);
    }
}

void param(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 2, 3, "param set KEY VALUE | param get KEY");
    CParamList& params = s.state().params();
    if (args[0] == "set" && args.size() == 3) {
        if (!params.IsParam(args[1], true))
            return;
        CParameter& p = params.GetParam(args[1]);
        // A value of the key's type is stored as that type, anything else as typed.
        if (!p.SetValue(p.Type, Value(args[2])))
            p.Val = Value(args[2]);
    } else if (args[0] == "get" && args.size() == 2) {
        const std::string value = params.Val(args[1]).text(); // may show its box first
        s.out() << "VALUE " << Quoted(value) << '\n';
    } else {
        throw CommandError("usage: param set KEY VALUE | param get KEY");
    }
}

void answer(BatchSession& s, const BatchSession::Args& args) {
    if (args.empty())
        throw CommandError("usage: answer WORD...");
    static const std::pair<const char*, Answer> buttons[] = {
        {"ok", Answer::Ok},        {"cancel", Answer::Cancel}, {"yes", Answer::Yes},
        {"no", Answer::No},        {"abort", Answer::Abort},   {"retry", Answer::Retry},
        {"ignore", Answer::Ignore}};
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (s.WasQuoted(i)) {
            s.ui().Queue(ScriptedUi::TextAnswer{args[i]});
            continue;
        }
        bool known = false;
        for (const auto& [word, value] : buttons)
            if (vb::TextEqualsNoCase(args[i], word)) {
                s.ui().Queue(value);
                known = true;
            }
        if (!known)
            throw CommandError("unknown answer '" + args[i] +
                               "' (ok, cancel, yes, no, or a quoted text)");
    }
}

void dump(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 0, "dump");
    s.out() << DumpProject(s.RequireProject());
}

} // namespace

void RegisterProjectCommands(BatchSession& session) {
    session.Register("new", newProject);
    session.Register("netlist", netlist);
    session.Register("param", param);
    session.Register("answer", answer);
    session.Register("dump", dump);
}

} // namespace zolt::cli
