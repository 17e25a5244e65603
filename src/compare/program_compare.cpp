#include "compare/program_compare.h"

#include "compare/netlist_compare.h"
#include "compare/row_compare.h"
#include "compare/sequence_compare.h"
#include "core/project.h"
#include "sequence/system_sequence_table.h"

namespace zolt::compare {
namespace {

std::vector<const CNetList*> Netlists(const Project& project) {
    std::vector<const CNetList*> netlists;
    project.NetlistCollection.ForEach(
        [&](const std::unique_ptr<CNetList>& netlist) { netlists.push_back(netlist.get()); });
    return netlists;
}

CommandTypes TypesOf(const CNetList& main) {
    const auto* dictionary = main.TableAs<CSystemSequenceTable>(table::SequenceList);
    return [dictionary](const std::string& command) {
        return dictionary ? int{dictionary->GetCommandType(command)} : command_type::Unknown;
    };
}

Differences CompareSettings(const Project& before, const Project& after) {
    Differences out;
    auto textOf = [](const Project& project, const std::string& name) {
        const CParameter* p = project.FileParameters.Item(name);
        return p ? p->Val.text() : std::string();
    };
    auto compare = [&](const CParameter& parameter) {
        const std::string was = textOf(before, parameter.Name);
        const std::string now = textOf(after, parameter.Name);
        if (was != now)
            out.push_back({"settings", "File",
                           parameter.Name + " now " + (now.empty() ? "empty" : now) + " (was " +
                               (was.empty() ? "empty" : was) + ")"});
    };
    after.FileParameters.ForEach(compare);
    before.FileParameters.ForEach([&](const CParameter& parameter) {
        if (!after.FileParameters.Contains(parameter.Name))
            compare(parameter);
    });
    return out;
}

Differences CompareMainTables(const CNetList& before, const CNetList& after) {
    Differences out;
    const std::pair<TableId, const char*> tables[] = {{table::Color, "colours"},
                                                      {table::Message, "messages"},
                                                      {table::TestParameter, "test parameters"}};
    for (const auto& [id, where] : tables) {
        const Table* a = before.GetTable(id);
        const Table* b = after.GetTable(id);
        if (a && b)
            Append(out, CompareRows(where, *a, *b));
    }
    const Table* a = before.GetTable(table::Sequence);
    const Table* b = after.GetTable(table::Sequence);
    if (a && b)
        Append(out,
               CompareSequences(a->gridarray(), TypesOf(before), b->gridarray(), TypesOf(after)));
    return out;
}

} // namespace

Differences CompareProjects(const Project& before, const Project& after) {
    Differences out;
    for (const CNetList* netlist : Netlists(before))
        if (!after.FindNetlist(netlist->NetlistName))
            out.push_back({netlist->NetlistName, "Netlists", "netlist removed"});
    for (const CNetList* netlist : Netlists(after)) {
        const CNetList* old = before.FindNetlist(netlist->NetlistName);
        if (!old)
            out.push_back({netlist->NetlistName, "Netlists", "netlist added"});
        else
            Append(out, CompareNetlists(*old, *netlist));
    }
    if (before.MainNetlist && after.MainNetlist)
        Append(out, CompareMainTables(*before.MainNetlist, *after.MainNetlist));
    Append(out, CompareSettings(before, after));
    return out;
}

} // namespace zolt::compare
