#pragma once

#include "file/program_file.h"
#include "file/program_format.h"

#include <memory>
#include <string>

namespace zolt {
class HeadlessFrame;
class ProgramState;
class SettingsStore;
class Ui;
} // namespace zolt

namespace zolt::interchange {

// A program read beside the open one, to be compared with it. A program file
// is read as a value, touching nothing; any other kind `formats` takes (a
// drawing, a PID file, a .zos) as opening it reads it, in a program state of
// its own whose boxes go to `ui` and whose settings are `settings`.
class OtherProgram {
public:
    OtherProgram(const std::string& path, const file::ProgramFormats& formats,
                 const std::string& dataDirectory, Ui& ui, SettingsStore& settings);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    // Null when it could not be read.
    const Project* project() const { return project_; }
    // The program file reader's message; empty when the reason was a box.
    const std::string& error() const { return loaded_.error; }

private:
    file::LoadedProgram loaded_;
    std::unique_ptr<HeadlessFrame> frame_;
    std::unique_ptr<ProgramState> state_;
    const Project* project_ = nullptr;
};

} // namespace zolt::interchange
