#pragma once

#include "core/ports/ui.h"
#include "core/project.h"
#include "file/program_header.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zolt {
class ProgramState;
}

namespace zolt::file {

// What a read found besides the document itself.
struct ReadFacts {
    FileHeader header;
    bool imageStored = false;
    std::size_t imageSize = 0;
    std::string image;
    // Steps or lists in the form of an older assembly family (a `.zlf` or `.zlt`
    // only): the user is asked whether to convert the program.
    bool oldAssemblyData = false;
    // Old commands or lists were rewritten as read: the program is changed.
    bool converted = false;
    // What the read had to tell besides a failure (records past a table's
    // limit, a full color table), in order.
    std::vector<MessageBox> notices;
};

// A program read apart from any running program.
struct LoadedProgram {
    // What was read; after a failure, what was read before it. Its tables
    // reach no program until a ProgramState adopts the project.
    std::unique_ptr<Project> project;
    ReadFacts facts;
    // The text of the box "Abort File Read"; empty when the whole file was read.
    std::string error;
    bool ok() const { return error.empty(); }
};

// Reads a `.zlf`, `.zlt` or `.grv` program (`path` names its kind) asking
// nothing and touching no file. The device and macro lists are read at the end
// from `dataDirectory` (ZOLT.DEV, ZOLT.MAC); empty reads none.
LoadedProgram LoadProgram(std::string_view bytes, const std::string& path,
                          const std::string& dataDirectory = {});
// The same from the file at `path`.
LoadedProgram LoadProgramFile(const std::string& path, const std::string& dataDirectory = {});

// One table block of a program file: the table of that record type of the
// netlist at that position of the file's netlist list (0 for MAIN).
struct TablePick {
    int recordType = 0;
    int netlistIndex = 0;
};
// Reads a program block by block until the picked block has been read, as the
// reader reads a whole file. Its errors: "Table not found." when the file ends
// first, "Data format error." at a block of no known kind.
LoadedProgram LoadPickedTable(std::string_view bytes, const std::string& path, TablePick pick);

// Makes a loaded program the program state's: its notices shown, the project
// adopted with its tabs, changed when the read converted it; for a failure the
// box "Abort File Read" and No. What was read before a failure stays for the
// caller to discard. Takes the project; asks nothing and writes no file.
Answer AdoptLoadedProgram(ProgramState& state, LoadedProgram& loaded);
// AdoptLoadedProgram, then on success what ApplyReadFacts does: the road by
// which a read program becomes the open one. The facts are copied to `facts`.
Answer OpenLoadedProgram(ProgramState& state, LoadedProgram loaded, const std::string& path,
                         ReadFacts* facts = nullptr);
// What opening does with a read program: the conversion question, and the
// compiled image unpacked into `<base of path>.bin`. Yes, or No after its box.
Answer ApplyReadFacts(ProgramState& state, const std::string& path, const ReadFacts& facts);

// Loads the file at `path` and opens it in the program state (OpenLoadedProgram).
Answer ReadProgramFile(ProgramState& state, const std::string& path, ReadFacts* facts = nullptr,
                       const std::string& dataDirectory = {});
// The same over bytes already in memory; `path` names the file for its kind
// and for the image it unpacks.
Answer ReadProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                        ReadFacts* facts = nullptr, const std::string& dataDirectory = {});

// Writes the project to `path`, replacing the file only once the whole new
// file is on disk: Yes on success, No after the box "Abort File Write". The
// compiled image is taken from `<base of the current document>.bin`.
Answer WriteProgramFile(ProgramState& state, const std::string& path);
// The bytes the writer would put on disk, without touching the file or the
// dirty flag; nullopt on failure, with the stage it failed at in `failedStage`.
std::optional<std::string> ProgramFileBytes(ProgramState& state, const std::string& path,
                                            std::string* failedStage = nullptr);
// The same of a project apart from the program state: the File group of
// `parameters` written, the image of `imageFile`'s `.bin` (none when empty).
std::optional<std::string> ProjectFileBytes(const Project& project,
                                            std::vector<const CParameter*> parameters,
                                            const std::string& imageFile, const std::string& path,
                                            std::string* failedStage = nullptr);

// Splits a version 1 color text on its first "/": base before it, stripe after.
void SplitColorText(const std::string& text, std::string& base, std::string& stripe);

} // namespace zolt::file
