#pragma once

#include "core/ports/ui.h"
#include "file/program_file.h"

#include <memory>
#include <string>
#include <vector>

namespace zolt {
class ProgramState;
}

namespace zolt::file {

// What opening a file gave: Yes with the path of the document that is open now
// (an import names the program file it made), No on failure after its box,
// Cancel when the user stopped.
struct OpenOutcome {
    Answer result = Answer::No;
    std::string document;
    // What the read found besides the document (a program file's kinds only).
    ReadFacts facts = {};
};

// One kind of file the document commands know. Program files read and write;
// importers only read, and register here like the program file's own kinds.
// A kind registered in RegisterOpenFormats opens in the desktop and in every
// zolt-cli command.
class ProgramFormat {
public:
    virtual ~ProgramFormat() = default;

    // Its own entry of a file dialog's filter: "ZOLT Files (*.zlf)|*.zlf".
    virtual std::string NameFilter() const = 0;
    // The entry of the Open dialog it is listed under, and its place there.
    virtual std::string OpenGroup() const = 0;
    virtual int OpenRank() const = 0;
    // By the extension, compared in upper case.
    virtual bool SupportsFile(const std::string& path) const = 0;
    // A program of the assembly feature family.
    virtual bool IsFamily() const { return false; }

    // Reads `path` into the program state (the old project is released already).
    virtual OpenOutcome Read(ProgramState& state, const std::string& path) const = 0;
    virtual bool CanWrite() const { return false; }
    // Yes, or No after its box.
    virtual Answer Write(ProgramState& state, const std::string& path) const;
};

// The formats the document commands offer, in the order they were registered.
class ProgramFormats {
public:
    void Register(std::unique_ptr<ProgramFormat> format);
    // The format of a file; nullptr when none takes it.
    const ProgramFormat* Find(const std::string& path) const;
    // The file is of a family kind.
    bool IsFamily(const std::string& path) const;
    // "caption (*.a;*.b)|*.a;*.b|…": one entry per open group, by rank.
    std::string OpenFilter() const;

private:
    std::vector<std::unique_ptr<ProgramFormat>> formats_;
};

// The program file's own kinds: `.zlf`, `.grv`, `.zlt`; the device and macro
// lists are read from `dataDirectory` at the end of each read.
void RegisterProgramFileFormats(ProgramFormats& formats, const std::string& dataDirectory);

// Opens `path` by its format: the project in memory and the file parameters
// are released first; a file of no known kind is refused with its box. What a
// failed read left behind goes with it.
OpenOutcome OpenByFormat(ProgramState& state, const ProgramFormats& formats,
                         const std::string& path);
// Writes the project to `path` by its format, as a program file when no format
// takes the name: Yes, or No after its box.
Answer WriteByFormat(ProgramState& state, const ProgramFormats& formats, const std::string& path);

} // namespace zolt::file
