#include "cli/compile_commands.h"

#include "assembly/variant_compile.h"
#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/compiled_image.h"
#include "cli/image_json.h"
#include "cli/printing_progress.h"
#include "cli/program_files.h"
#include "compile/compile_driver.h"
#include "core/ports/clock.h"
#include "core/program_state.h"
#include "file/file_bytes.h"
#include "file/program_file.h"

#include <ostream>

namespace zolt::cli {
std::optional<bool> CompileProject(ProgramState& state, std::ostream& out, bool trace) {
    const CompileRoute route = ChooseCompileRoute(state);
    if (route == CompileRoute::Refused)
        return std::nullopt;
    PrintingProgress progress(out);
    std::unique_ptr<VariantProgram> variant;
    if (route == CompileRoute::Variant) {
        variant = VariantProgram::Of(state.project(), Variant{state.project().SelectedFeatureCodes},
                                     state.ui(), progress);
        if (!variant)
            return std::nullopt;
    }
    const SystemClock clock;
    compile::CompileDriver driver(state, clock);
    if (trace)
        driver.traced = [&out](const std::string& line) { out << line << '\n'; };
    driver.Load();
    const compile::CompileEnd end =
        variant ? driver.Run(variant->project(), variant->Request(driver.Request())) : driver.Run();
    out << driver.Results();
    if (!driver.Results().empty() && driver.Results().back() != '\n')
        out << '\n';
    return end == compile::CompileEnd::Finished && driver.Result().errors == 0;
}

int CompileProgramFile(const std::string& path, const std::string& dataDirectory, bool trace,
                       SettingsStore& settings, std::ostream& out, std::ostream& err) {
    BatchSession session(out, settings);
    session.setDataDirectory(dataDirectory);
    if (OpenProgram(session.state(), path, dataDirectory) != Answer::Yes) {
        err << "ERROR: cannot open '" << path << "'\n";
        return 1;
    }
    const std::optional<bool> clean = CompileProject(session.state(), out, trace);
    // A compile that never started leaves the file as it was. The program is
    // saved where it now lives: an imported archive's is the new file beside it.
    const std::string saved = session.state().document().CurrentFile;
    if (clean && WriteProgram(session.state(), saved) != Answer::Yes) {
        err << "ERROR: cannot save '" << saved << "'\n";
        return 1;
    }
    return clean.value_or(false) ? 0 : 1;
}

int PrintImageFile(const std::string& path, std::ostream& out, std::ostream& err) {
    const auto bytes = file::ReadFileBytes(path, kMaxImageBytes);
    if (!bytes) {
        err << "ERROR: cannot read '" << path << "'\n";
        return 1;
    }
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes->data());
    const compile::ImageReadResult read = compile::ReadImage(std::span(data, bytes->size()));
    if (!read.image) {
        err << "ERROR: '" << path << "' is no compiled program: " << read.error << '\n';
        return 1;
    }
    out << ImageJson(*read.image, read.version);
    return 0;
}

namespace {

void compileCommand(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 0, 1, "compile [--trace]");
    if (args.size() == 1 && args[0] != "--trace")
        throw CommandError("usage: compile [--trace]");
    ProgramState& state = s.RequireProject();
    if (state.document().CurrentFile.empty())
        throw CommandError("the project has no file yet (use 'saveas PATH')");
    CompileProject(state, s.out(), args.size() == 1);
}

} // namespace

void RegisterCompileCommands(BatchSession& session) {
    session.Register("compile", compileCommand);
}

} // namespace zolt::cli
