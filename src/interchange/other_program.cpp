#include "interchange/other_program.h"

#include "core/headless/headless_frame.h"
#include "core/program_state.h"
#include "file/table_factory.h"

namespace zolt::interchange {

OtherProgram::OtherProgram(const std::string& path, const file::ProgramFormats& formats,
                           const std::string& dataDirectory, Ui& ui, SettingsStore& settings) {
    const file::ProgramFormat* format = formats.Find(path);
    // The program file's own kinds read and write; importers only read.
    if (!format || format->CanWrite()) {
        loaded_ = file::LoadProgramFile(path, dataDirectory);
        if (loaded_.ok())
            project_ = loaded_.project.get();
        return;
    }
    frame_ = std::make_unique<HeadlessFrame>();
    state_ = std::make_unique<ProgramState>(Ports{ui, settings, *frame_, *frame_}, MakeTable);
    // A legacy archive's import keeps it in the user's backup folder.
    state_->params().LoadDirectoryParameters(false);
    if (file::OpenByFormat(*state_, formats, path).result == Answer::Yes)
        project_ = &state_->project();
}

OtherProgram::~OtherProgram() = default;

} // namespace zolt::interchange
