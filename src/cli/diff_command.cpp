#include "cli/diff_command.h"

#include "cli/json_writer.h"
#include "compare/program_compare.h"
#include "file/program_file.h"

#include <filesystem>
#include <optional>
#include <ostream>

namespace zolt::cli {
namespace {

std::optional<file::LoadedProgram> Load(const std::string& path, const std::string& dataDirectory,
                                        std::ostream& err) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        err << "ERROR: cannot read '" << path << "'\n";
        return std::nullopt;
    }
    auto loaded = file::LoadProgramFile(path, dataDirectory);
    if (!loaded.ok()) {
        err << path << ": " << loaded.error << '\n';
        return std::nullopt;
    }
    return loaded;
}

void PrintJson(const compare::Differences& differences, std::ostream& out) {
    out << "{\"same\": " << (differences.empty() ? "true" : "false") << ", \"differences\": [";
    for (std::size_t i = 0; i < differences.size(); ++i) {
        const auto& d = differences[i];
        out << (i ? ",\n  " : "\n  ") << "{\"where\": " << JsonString(d.where)
            << ", \"table\": " << JsonString(d.table) << ", \"text\": " << JsonString(d.text)
            << '}';
    }
    out << (differences.empty() ? "]}\n" : "\n]}\n");
}

} // namespace

int DiffCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                std::ostream& out, std::ostream& err) {
    std::vector<std::string> paths;
    bool json = false;
    for (const auto& arg : args) {
        if (arg == "--json")
            json = true;
        else
            paths.push_back(arg);
    }
    if (paths.size() != 2) {
        err << "usage: zolt-cli diff A B [--json]\n";
        return 2;
    }
    const auto before = Load(paths[0], dataDirectory, err);
    if (!before)
        return 2;
    const auto after = Load(paths[1], dataDirectory, err);
    if (!after)
        return 2;
    const auto differences = compare::CompareProjects(*before->project, *after->project);
    if (json)
        PrintJson(differences, out);
    else
        for (const auto& difference : differences)
            out << compare::ChangeLine(difference) << '\n';
    return differences.empty() ? 0 : 1;
}

} // namespace zolt::cli
