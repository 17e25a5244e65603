#include "cli/verify_command.h"

#include "cli/file_options.h"
#include "cli/program_files.h"
#include "compare/drawing_check.h"
#include "core/project.h"
#include "file/program_file.h"
#include "interchange/drawing_connections.h"

#include <filesystem>
#include <ostream>

namespace zolt::cli {
namespace {

struct VerifyArgs {
    std::string program;
    std::string netlist = "MAIN";
    std::string drawing;
};

bool Parse(const std::vector<std::string>& args, VerifyArgs& parsed) {
    return ParseFileAndOptions(args, parsed.program,
                               {{"--netlist", &parsed.netlist}, {"--against", &parsed.drawing}}) &&
           !parsed.drawing.empty();
}

} // namespace

int VerifyCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  std::ostream& out, std::ostream& err) {
    VerifyArgs parsed;
    if (!Parse(args, parsed)) {
        err << "usage: zolt-cli verify FILE [--netlist NAME] --against DOC.csv|.yml|.net\n";
        return 2;
    }
    std::error_code ec;
    if (!std::filesystem::is_regular_file(parsed.program, ec)) {
        err << "ERROR: cannot read '" << parsed.program << "'\n";
        return 2;
    }
    const ProgramNetlist read =
        LoadProgramNetlist(parsed.program, parsed.netlist, dataDirectory, err);
    if (!read.netlist)
        return 2;
    const CNetList* netlist = read.netlist;
    const auto& loaded = read.loaded;
    // The drawing's kind by its file: a from/to list, a WireViz harness, a KiCad netlist.
    const auto drawing = interchange::ReadDrawingConnections(parsed.drawing, {});
    if (!drawing.ok()) {
        err << parsed.drawing << ": " << drawing.error << '\n';
        return 2;
    }
    const auto differences =
        compare::CheckAgainstDrawing(*netlist, *loaded.project->MainNetlist, drawing);
    for (const auto& difference : differences)
        out << compare::ChangeLine(difference) << '\n';
    return differences.empty() ? 0 : 1;
}

} // namespace zolt::cli
