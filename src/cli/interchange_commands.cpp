#include "cli/interchange_commands.h"

#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/file_options.h"
#include "cli/program_files.h"
#include "core/netlist_operations.h"
#include "core/ports/clock.h"
#include "core/program_state.h"
#include "core/project.h"
#include "file/program_file.h"
#include "interchange/drawing_export.h"
#include "interchange/drawing_import.h"
#include "interchange/open_formats.h"

#include <fstream>
#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

const SystemClock kClock;

// As the desktop's File > Import: the drawing becomes a new netlist of the open program.
void importDrawing(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 2, 2, "import-drawing PATH NETLIST");
    interchange::ImportDrawingAsNetlist(s.state(), args[0], vb::UCase(vb::Trim(args[1])));
}

struct ExportArgs {
    std::string program;
    std::string netlist = kMain;
    std::string wireviz;
    std::string fromTo;
};

bool parse(const std::vector<std::string>& args, ExportArgs& parsed) {
    return ParseFileAndOptions(args, parsed.program,
                               {{"--netlist", &parsed.netlist},
                                {"--wireviz", &parsed.wireviz},
                                {"--fromto", &parsed.fromTo}}) &&
           parsed.wireviz.empty() != parsed.fromTo.empty();
}

} // namespace

int ImportToFile(const std::string& in, const std::string& outPath,
                 const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                 std::ostream& err) {
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    file::ProgramFormats formats;
    interchange::RegisterImportableFormats(formats, kClock, dataDirectory);
    const WorkingImage image(in);
    const bool done = file::OpenByFormat(session.state(), formats, in).result == Answer::Yes &&
                      WriteProgram(session.state(), outPath) == Answer::Yes;
    (done ? out : err) << events.str();
    return done ? 0 : 1;
}

int ExportCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  SettingsStore& settings, std::ostream& out, std::ostream& err) {
    ExportArgs parsed;
    if (!parse(args, parsed)) {
        err << "usage: zolt-cli export FILE [--netlist NAME] (--wireviz OUT.yml | --fromto "
               "OUT.csv)\n";
        return 2;
    }
    const ProgramNetlist read =
        LoadProgramNetlist(parsed.program, parsed.netlist, dataDirectory, settings, err);
    if (!read.netlist)
        return 2;
    const CNetList* netlist = read.netlist;
    const auto drawing =
        interchange::DrawingOfNetlist(*netlist, *read.program->project()->MainNetlist);
    std::vector<std::string> notes;
    const bool wireviz = !parsed.wireviz.empty();
    const std::string text = wireviz ? interchange::WireVizText(drawing, notes)
                                     : interchange::FromToText(drawing, notes);
    const std::string& path = wireviz ? parsed.wireviz : parsed.fromTo;
    std::ofstream file(path, std::ios::binary);
    if (!(file << text) || !file.flush()) {
        err << "ERROR: cannot write '" << path << "'\n";
        return 2;
    }
    for (const std::string& note : notes)
        err << "NOTE " << note << '\n';
    out << "EXPORTED " << drawing.wires.size() << " wires of " << netlist->NetlistName << " to "
        << path << '\n';
    return 0;
}

void RegisterInterchangeCommands(BatchSession& session) {
    session.Register("import-drawing", importDrawing);
}

} // namespace zolt::cli
