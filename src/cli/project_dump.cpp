#include "cli/project_dump.h"

#include "cli/json_writer.h"
#include "core/program_state.h"
#include "core/table_kinds.h"

namespace zolt::cli {
namespace {

std::string cell(const Value& v) {
    return v.isNull() ? "null" : JsonString(v.text());
}

std::string rows(const Grid& grid, const std::string& indent) {
    if (grid.Rows() == 0)
        return "[]";
    std::string out = "[";
    for (int r = 1; r <= grid.Rows(); ++r) {
        out += (r > 1 ? ",\n" : "\n") + indent + "  [";
        for (int c = 0; c < grid.Columns(); ++c)
            out += (c ? ", " : "") + cell(grid.At(r, c));
        out += "]";
    }
    return out + "\n" + indent + "]";
}

std::string tableKey(int n) {
    return n == table::Code ? "Code" : GetTableName(n);
}

} // namespace

std::string DumpProject(ProgramState& state) {
    std::string out = "{\n  \"params\": {";
    bool first = true;
    for (const CParameter* p : state.Params().All()) {
        out +=
            (first ? "\n    " : ",\n    ") + JsonString(p->Name) + ": " + JsonString(p->Val.text());
        first = false;
    }
    out += "\n  },\n  \"netlistArray\": ";
    out += state.MainNetlist ? rows(state.MainNetlist->NetlistArray, "  ") : "[]";
    out += ",\n  \"netlists\": [";
    first = true;
    state.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        out += first ? "\n    {" : ",\n    {";
        first = false;
        out += "\n      \"name\": " + JsonString(n->NetlistName) + ",";
        out += "\n      \"index\": " + std::to_string(n->netlistIndex) + ",";
        out += "\n      \"type\": " + std::to_string(n->NetlistType) + ",";
        out += "\n      \"tables\": {";
        bool firstTable = true;
        for (int t = table::First; t <= table::Last; ++t) {
            const Table* tbl = n->GetTable(t);
            // The command dictionary is the program's own; `commands` lists it.
            if (!tbl || t == table::SequenceList)
                continue;
            out += (firstTable ? "\n        " : ",\n        ") + JsonString(tableKey(t)) + ": " +
                   rows(tbl->gridarray(), "        ");
            firstTable = false;
        }
        out += "\n      }\n    }";
    });
    out += "\n  ]\n}\n";
    return out;
}

} // namespace zolt::cli
