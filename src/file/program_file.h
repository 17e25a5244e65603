#pragma once

#include "core/ports/ui.h"
#include "file/program_header.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

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
};

// Parses a program into the program state, touching nothing else: no question,
// no file. Yes on success, No on failure after the box "Abort File Read".
Answer ParseProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                         ReadFacts& facts, const std::string& dataDirectory = {});
// What opening does with a parsed program: the conversion question, and the
// compiled image unpacked into `<base of path>.bin`. Yes, or No after its box.
Answer ApplyReadFacts(ProgramState& state, const std::string& path, const ReadFacts& facts);

// Reads a `.zlf`, `.zlt` or `.grv` program into the program state: Yes on
// success, No on failure after the box "Abort File Read". What was read before
// a failure stays for the caller to discard. A stored compiled image is
// unpacked into `<base of path>.bin`. The device and macro lists are read at
// the end from `dataDirectory` (ZOLT.DEV, ZOLT.MAC); empty reads none.
Answer ReadProgramFile(ProgramState& state, const std::string& path, ReadFacts* facts = nullptr,
                       const std::string& dataDirectory = {});
// The same over bytes already in memory (parse, then apply); `path` names the
// file for its kind and for the image it unpacks.
Answer ReadProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                        ReadFacts* facts = nullptr, const std::string& dataDirectory = {});

// One table block of a program file: the table of that record type of the
// netlist at that position of the file's netlist list (0 for MAIN).
struct TablePick {
    int recordType = 0;
    int netlistIndex = 0;
};
// Reads a program into `scratch` block by block until the picked block has
// been read, as the reader reads a whole file: Yes, or No after the box "Abort
// File Read" ("Table not found." when the file ends first, "Data format
// error." at a block of no known kind).
Answer ReadPickedTable(ProgramState& scratch, std::string_view bytes, const std::string& path,
                       TablePick pick);

// Writes the project to `path`, replacing the file only once the whole new
// file is on disk: Yes on success, No after the box "Abort File Write". The
// compiled image is taken from `<base of the current document>.bin`.
Answer WriteProgramFile(ProgramState& state, const std::string& path);
// The bytes the writer would put on disk, without touching the file or the
// dirty flag; nullopt on failure, with the stage it failed at in `failedStage`.
std::optional<std::string> ProgramFileBytes(ProgramState& state, const std::string& path,
                                            std::string* failedStage = nullptr);

// Splits a version 1 color text on its first "/": base before it, stripe after.
void SplitColorText(const std::string& text, std::string& base, std::string& stripe);

} // namespace zolt::file
