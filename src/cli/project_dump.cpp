#include "cli/project_dump.h"

#include "cli/json_writer.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/path_names.h"
#include "file/program_file.h"

#include <cmath>
#include <filesystem>

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

std::string tableKey(TableId n) {
    return n == table::Code ? "Code" : GetTableName(n);
}

std::string number(double n) {
    return std::isfinite(n) ? vb::NumberText(n) : "null";
}

std::string flag(bool b) {
    return b ? "true" : "false";
}

std::uintmax_t imageSize(const ProgramState& state) {
    if (state.document().CurrentFile.empty())
        return 0;
    std::error_code ec;
    const auto size =
        std::filesystem::file_size(file::CompanionPath(state.document().CurrentFile, ".bin"), ec);
    return ec ? 0 : size;
}

std::string header(const ProgramState& state, const file::ReadFacts* facts) {
    const file::FileHeader written;
    const file::FileHeader& h = facts ? facts->header : written;
    std::string out = "  \"title\": " + JsonString(h.Title) + ",\n";
    out += "  \"version\": " + JsonString(h.Version) + ",\n";
    out += "  \"compiledDate\": " + number(state.project().CompiledDate) + ",\n";
    out += "  \"needsCompile\": " + flag(state.project().NeedsCompile) + ",\n";
    out +=
        "  \"imageSize\": " +
        std::to_string(facts ? static_cast<std::uintmax_t>(facts->imageSize) : imageSize(state)) +
        ",\n";
    return out;
}

std::string assemblyLists(const AssemblyData& lists) {
    std::string out = ",\n  \"featureCodes\": [";
    bool first = true;
    for (const std::string& line : lists.FeatureCodeData) {
        out += (first ? "" : ", ") + JsonString(line);
        first = false;
    }
    out += "],\n  \"netlistInfo\": [";
    first = true;
    lists.NetlistInfoList.ForEach([&](const CNetlistInfo& i) {
        out += (first ? "\n    " : ",\n    ") + std::string("{\"name\": ") + JsonString(i.Name) +
               ", \"description\": " + JsonString(i.Description) +
               ", \"station\": " + JsonString(i.Station) +
               ", \"pattern\": " + std::to_string(i.Pattern) + ", \"ordered\": " + flag(i.Ordered) +
               ", \"partOfMain\": " + flag(i.PartOfMain) + "}";
        first = false;
    });
    out += first ? "]" : "\n  ]";
    out += ",\n  \"assemblyOrder\": [";
    first = true;
    lists.AssemblyOrderList.ForEach([&](const CAssemblyRec& r) {
        out += (first ? "\n    " : ",\n    ") + std::string("{\"name\": ") + JsonString(r.Name) +
               ", \"flag\": " + flag(r.Flag) + "}";
        first = false;
    });
    out += first ? "]" : "\n  ]";
    return out;
}

} // namespace

std::string DumpProject(ProgramState& state, const file::ReadFacts* facts) {
    std::string out = "{\n" + header(state, facts) + "  \"params\": {";
    bool first = true;
    for (const CParameter* p : state.params().All()) {
        out +=
            (first ? "\n    " : ",\n    ") + JsonString(p->Name) + ": " + JsonString(p->Val.text());
        first = false;
    }
    out += "\n  },\n  \"netlistArray\": ";
    out +=
        state.project().MainNetlist ? rows(state.project().MainNetlist->NetlistArray, "  ") : "[]";
    out += ",\n  \"netlists\": [";
    first = true;
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        out += first ? "\n    {" : ",\n    {";
        first = false;
        out += "\n      \"name\": " + JsonString(n->NetlistName) + ",";
        out += "\n      \"index\": " + std::to_string(n->netlistIndex) + ",";
        out += "\n      \"type\": " + std::to_string(n->NetlistType) + ",";
        out += "\n      \"tables\": {";
        bool firstTable = true;
        for (const TableId t : kAllTables) {
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
    out += "\n  ]" + assemblyLists(state.project().Assembly) + "\n}\n";
    return out;
}

} // namespace zolt::cli
