#pragma once

#include "core/ports/clock.h"
#include "core/ports/ui.h"

#include <functional>
#include <memory>
#include <string>

namespace zolt {
class ProgramState;
class Document;
} // namespace zolt

namespace zolt::file {

class ProgramFormats;

// What the document commands need besides the program state.
struct DocumentEnvironment {
    Clock& clock;
    std::string computerName;  // written into lock files
    std::string dataDirectory; // ZOLT.DEV and ZOLT.MAC
    // Brings the frame's commands up to date (UpdateControls).
    std::function<void()> refreshCommands = [] {};
    // The kinds of file Open offers and reads; none given: the program file's own.
    std::shared_ptr<const ProgramFormats> formats = {};
};

// How a project comes to be open and stops being open: New, Open, Save, Save
// As, Save As Template, Close, the command line, the lock file beside the
// project and the question to save. Results are Yes (done), No (not done, go
// on) and Cancel (stop).
class DocumentLifecycle {
public:
    DocumentLifecycle(ProgramState& state, DocumentEnvironment environment);

    // The commands.
    void New();
    void Open();
    void Save();
    void SaveAs();
    void SaveAsTemplate();
    void Close();
    void OpenFromCommandLine(const std::string& commandLine);
    // A new, unnamed project from a template, without New's first Save As: it
    // gets its name when the user first saves it.
    void NewFromTemplate(const std::string& templatePath);
    // The main window's question before it closes: false when the user cancelled.
    bool QueryUnload();

    // The steps they are made of.
    Answer UserOpen(bool isNew);
    Answer SaveAsDialog(std::string& path, bool isTemplate);
    // No also when nothing needs saving: no project open, or none changed.
    Answer PromptSaveChanges(bool ask, bool forceDialog, bool isTemplate);
    // Takes the path by value: callers pass CurrentFile, which closing empties.
    void OpenProgramFile(std::string path, bool isNew);
    void CloseProgramFile();
    void WriteLockFile(const std::string& path);
    void RemoveLockFile(const std::string& path);
    // frmFileInUse over an existing lock: true when the user opens anyway.
    bool AskFileInUse(const std::string& path);

    const std::string& LastDirectory() const { return lastDirectory_; }
    // Counts the times the project in memory was replaced or released: a
    // command that leaves it unchanged (a cancelled Save As) keeps the count.
    int Generation() const { return generation_; }

private:
    void afterOpen();
    void convertOldAssemblyData();
    void setCaption();
    void setFilePanels();
    void deleteCompileOutputs(const std::string& path);
    bool lockAndOpen(const std::string& path, bool isNew);
    std::string filterOf(const char* extension) const;
    Answer writeDocument(const std::string& path);

    ProgramState& state_;
    Document& document_;
    DocumentEnvironment env_;
    std::string lastDirectory_;
    int generation_ = 0;
};

// "GRV Data Will Be Lost - Continue Save?" before a `.grv` program is saved as a
// `.zlf` or `.zlt`: true to go on. No question while the test compile saves the
// new program it made (`grvTestCompileSave`), nor for any other kind of save.
bool ConfirmGrvDataLoss(Ui& ui, const std::string& oldPath, const std::string& newPath,
                        bool grvTestCompileSave);
// While the test compile saves its new program: false, after its box, when
// `path` is the family's own file, which stays as it was saved.
bool KeepsFamilyIntact(Ui& ui, const std::string& family, const std::string& path);
// "File Exists, Overwrite?" when `path` exists: true when it may be written.
// Cancel is the default, so that an unanswered script never overwrites.
bool ConfirmOverwrite(Ui& ui, const std::string& path);

// A program read in an older family form is converted on disk: the original
// is first copied, under its own name, into `backupDirectory` (made when
// missing); false, after its box, when it cannot be. Then it is saved under
// `ConvertedName`, its extension turned into `.grv`.
bool BackUpBeforeConversion(Ui& ui, const std::string& path, const std::string& backupDirectory);
std::string ConvertedName(const std::string& path);

// The text of a lock file, and its date as the file-in-use window shows it.
std::string LockFileText(const std::string& computerName, const LocalTime& time);
std::string LockDateForDisplay(const std::string& written);

} // namespace zolt::file
