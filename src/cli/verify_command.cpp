#include "cli/verify_command.h"

#include "cli/file_options.h"
#include "cli/program_files.h"
#include "compare/drawing_check.h"
#include "core/project.h"
#include "interchange/drawing_connections.h"
#include "interchange/drawing_formats.h"

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
                  SettingsStore& settings, std::ostream& out, std::ostream& err) {
    VerifyArgs parsed;
    if (!Parse(args, parsed)) {
        err << "usage: zolt-cli verify FILE [--netlist NAME] --against DOC.csv|.yml|.net\n";
        return 2;
    }
    const ProgramNetlist read =
        LoadProgramNetlist(parsed.program, parsed.netlist, dataDirectory, settings, err);
    if (!read.netlist)
        return 2;
    // The drawing's kind by its file: a from/to list, a WireViz harness, a KiCad netlist.
    const auto drawing = interchange::ReadDrawingConnections(
        parsed.drawing, interchange::DrawingOptionsOf(settings));
    if (!drawing.ok()) {
        err << parsed.drawing << ": " << drawing.error << '\n';
        return 2;
    }
    const auto differences =
        compare::CheckAgainstDrawing(*read.netlist, *read.program->project()->MainNetlist, drawing);
    for (const auto& difference : differences)
        out << compare::ChangeLine(difference) << '\n';
    return differences.empty() ? 0 : 1;
}

} // namespace zolt::cli
