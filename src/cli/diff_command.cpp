#include "cli/diff_command.h"

#include "cli/compiled_image.h"
#include "cli/json_writer.h"
#include "cli/program_files.h"
#include "compare/image_compare.h"
#include "compare/program_compare.h"
#include "compile/program_image.h"
#include "core/value.h"
#include "file/file_bytes.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <span>

namespace zolt::cli {
namespace {

bool IsImage(const std::string& path) {
    return vb::UCase(std::filesystem::path(path).extension().string()) == ".BIN";
}

std::optional<compare::Differences> CompareFiles(const std::string& a, const std::string& b,
                                                 const std::string& dataDirectory,
                                                 SettingsStore& settings, std::ostream& err) {
    if (IsImage(a) != IsImage(b)) {
        err << "ERROR: a compiled program compares only with another compiled program\n";
        return std::nullopt;
    }
    if (IsImage(a)) {
        const auto before = ReadImageFile(a, err);
        const auto after = before ? ReadImageFile(b, err) : std::nullopt;
        if (!after)
            return std::nullopt;
        return compare::CompareImages(*before, *after);
    }
    const ReadProgram before(a, dataDirectory, settings, err);
    if (!before.project())
        return std::nullopt;
    const ReadProgram after(b, dataDirectory, settings, err);
    if (!after.project())
        return std::nullopt;
    return compare::CompareProjects(*before.project(), *after.project());
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
                SettingsStore& settings, std::ostream& out, std::ostream& err) {
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
    const auto differences = CompareFiles(paths[0], paths[1], dataDirectory, settings, err);
    if (!differences)
        return 2;
    if (json)
        PrintJson(*differences, out);
    else
        for (const auto& difference : *differences)
            out << compare::ChangeLine(difference) << '\n';
    return differences->empty() ? 0 : 1;
}

} // namespace zolt::cli
