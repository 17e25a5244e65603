#include "cli/program_files.h"

#include "cli/batch_session.h"
#include "cli/project_dump.h"
#include "core/ports/clock.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/path_names.h"
#include "interchange/open_formats.h"
#include "interchange/other_program.h"

#include <filesystem>
#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

const SystemClock kClock;

} // namespace

file::ProgramFormats OpenFormats(const std::string& dataDirectory) {
    file::ProgramFormats formats;
    interchange::RegisterOpenFormats(formats, kClock, dataDirectory);
    return formats;
}

WorkingImage::WorkingImage(const std::string& path)
    : bin_(file::CompanionPath(path, ".bin")), existed_(std::filesystem::exists(bin_)) {}

WorkingImage::~WorkingImage() {
    std::error_code ec;
    if (!existed_)
        std::filesystem::remove(bin_, ec);
}

Answer OpenProgram(ProgramState& state, const std::string& path, const std::string& dataDirectory,
                   file::ReadFacts* facts) {
    state.document().ConvertToGRV = false;
    const file::OpenOutcome outcome = file::OpenByFormat(state, OpenFormats(dataDirectory), path);
    if (facts)
        *facts = outcome.facts;
    return outcome.result;
}

Answer WriteProgram(ProgramState& state, const std::string& path) {
    return file::WriteByFormat(state, OpenFormats({}), path);
}

int DumpProgramFile(const std::string& path, const std::string& dataDirectory,
                    SettingsStore& settings, std::ostream& out, std::ostream& err) {
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    const WorkingImage image(path);
    file::ReadFacts facts;
    const bool opened = OpenProgram(session.state(), path, dataDirectory, &facts) == Answer::Yes;
    // Boxes go to the error stream, so that the output is the JSON alone.
    err << events.str();
    if (!opened)
        return 1;
    out << DumpProject(session.state(), &facts);
    return 0;
}

int ConvertProgramFile(const std::string& in, const std::string& outPath,
                       const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                       std::ostream& err) {
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    const WorkingImage image(in);
    if (OpenProgram(session.state(), in, dataDirectory) != Answer::Yes ||
        WriteProgram(session.state(), outPath) != Answer::Yes) {
        err << events.str();
        return 1;
    }
    out << events.str();
    return 0;
}

ReadProgram::ReadProgram(const std::string& path, const std::string& dataDirectory,
                         SettingsStore& settings, std::ostream& err) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        err << "ERROR: cannot read '" << path << "'\n";
        return;
    }
    file::ProgramFormats formats;
    interchange::RegisterImportableFormats(formats, kClock, dataDirectory);
    program_ =
        std::make_unique<interchange::OtherProgram>(path, formats, dataDirectory, ui_, settings);
    if (program_->project())
        return;
    if (!program_->error().empty())
        err << path << ": " << program_->error() << '\n';
    for (const auto& box : ui_.ShownBoxes())
        err << box.caption << ": " << box.text << '\n';
}

ReadProgram::~ReadProgram() = default;

const Project* ReadProgram::project() const {
    return program_ ? program_->project() : nullptr;
}

ProgramNetlist LoadProgramNetlist(const std::string& path, const std::string& netlist,
                                  const std::string& dataDirectory, SettingsStore& settings,
                                  std::ostream& err) {
    ProgramNetlist read{std::make_unique<ReadProgram>(path, dataDirectory, settings, err)};
    const Project* project = read.program->project();
    if (!project)
        return read;
    read.netlist = project->FindNetlist(netlist);
    if (!read.netlist || !project->MainNetlist) {
        read.netlist = nullptr;
        err << path << ": no netlist " << netlist << '\n';
    }
    return read;
}

} // namespace zolt::cli
