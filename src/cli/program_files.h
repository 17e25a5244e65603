#pragma once

#include "core/headless/scripted_ui.h"
#include "file/program_file.h"
#include "file/program_format.h"

#include <iosfwd>
#include <memory>
#include <string>

namespace zolt {
class ProgramState;
class SettingsStore;
} // namespace zolt

namespace zolt::interchange {
class OtherProgram;
}

namespace zolt::cli {

// The image a read unpacks beside the file is a working file of the open
// document: a one-shot command removes it again unless it was there before.
class WorkingImage {
public:
    explicit WorkingImage(const std::string& path);
    ~WorkingImage();
    WorkingImage(const WorkingImage&) = delete;
    WorkingImage& operator=(const WorkingImage&) = delete;

private:
    std::string bin_;
    bool existed_;
};

// The kinds zolt-cli opens and writes: those the desktop opens.
file::ProgramFormats OpenFormats(const std::string& dataDirectory);

// A plain open by the file's format: the old project is released, the file read;
// Yes when the project is open, No (after the reader's box) when not.
Answer OpenProgram(ProgramState& state, const std::string& path, const std::string& dataDirectory,
                   file::ReadFacts* facts = nullptr);
// Writes the project to `path` by its format: Yes, or No after its box.
Answer WriteProgram(ProgramState& state, const std::string& path);

// The data files (ZOLT.DEV, ZOLT.MAC) are read from `dataDirectory`, the ZOLT
// Settings (the backup folder of a legacy archive's import) from `settings`.
// `zolt-cli dump FILE`: the project's JSON on `out`, boxes on `err`; the exit code.
int DumpProgramFile(const std::string& path, const std::string& dataDirectory,
                    SettingsStore& settings, std::ostream& out, std::ostream& err);
// `zolt-cli convert IN OUT`: read, then write under the new name and kind.
int ConvertProgramFile(const std::string& in, const std::string& outPath,
                       const std::string& dataDirectory, SettingsStore& settings, std::ostream& out,
                       std::ostream& err);

// A program a command only reads, as interchange::OtherProgram reads it with
// the formats `import` takes. No project after the reason went to `err`
// ("FILE: reason").
class ReadProgram {
public:
    ReadProgram(const std::string& path, const std::string& dataDirectory, SettingsStore& settings,
                std::ostream& err);
    ~ReadProgram();
    ReadProgram(const ReadProgram&) = delete;
    ReadProgram& operator=(const ReadProgram&) = delete;

    const Project* project() const;

private:
    ScriptedUi ui_;
    std::unique_ptr<interchange::OtherProgram> program_;
};

// A program read so and one of its netlists; no netlist after the reason went
// to `err` ("FILE: no netlist NAME").
struct ProgramNetlist {
    std::unique_ptr<ReadProgram> program;
    const CNetList* netlist = nullptr;
};
ProgramNetlist LoadProgramNetlist(const std::string& path, const std::string& netlist,
                                  const std::string& dataDirectory, SettingsStore& settings,
                                  std::ostream& err);

} // namespace zolt::cli
