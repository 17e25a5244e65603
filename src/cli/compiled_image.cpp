#include "cli/compiled_image.h"

#include "cli/batch_session.h"
#include "cli/compile_commands.h"
#include "cli/program_files.h"
#include "core/program_state.h"
#include "file/file_bytes.h"
#include "file/scratch_folder.h"

#include <filesystem>
#include <ostream>
#include <sstream>

namespace zolt::cli {

std::optional<compile::ProgramImage> ReadImageFile(const std::string& path, std::ostream& err) {
    const auto bytes = file::ReadFileBytes(path, kMaxImageBytes);
    if (!bytes) {
        err << "ERROR: cannot read '" << path << "'\n";
        return std::nullopt;
    }
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes->data());
    auto read = compile::ReadImage(std::span(data, bytes->size()));
    if (!read.image)
        err << "ERROR: '" << path << "' is no compiled program: " << read.error << '\n';
    return std::move(read.image);
}

std::optional<compile::ProgramImage> CompiledImage(const std::string& path,
                                                   const std::string& dataDirectory,
                                                   SettingsStore& settings, std::ostream& err) {
    if (std::filesystem::path(path).extension() == ".bin")
        return ReadImageFile(path, err);
    if (!std::filesystem::is_regular_file(path)) {
        err << "ERROR: cannot read '" << path << "'\n";
        return std::nullopt;
    }
    std::ostringstream log;
    BatchSession session(log, settings);
    session.setDataDirectory(dataDirectory);
    const WorkingImage unpacked(path);
    if (OpenProgram(session.state(), path, dataDirectory) != Answer::Yes) {
        err << log.str() << "ERROR: cannot open '" << path << "'\n";
        return std::nullopt;
    }
    const file::ScratchFolder scratch;
    if (scratch.path().empty()) {
        err << "ERROR: no scratch folder for the compile\n";
        return std::nullopt;
    }
    const std::filesystem::path name = std::filesystem::path(path).filename();
    session.state().document().CurrentFile = (scratch.path() / name).string();
    const std::optional<bool> clean = CompileProject(session.state(), log, false);
    if (!clean.value_or(false)) {
        err << log.str() << "ERROR: '" << path << "' "
            << (clean ? "does not compile without errors" : "was not compiled") << '\n';
        return std::nullopt;
    }
    const auto bin = scratch.path() / name.stem().concat(".bin");
    return ReadImageFile(bin.string(), err);
}

} // namespace zolt::cli
