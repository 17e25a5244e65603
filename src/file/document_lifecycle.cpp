#include "file/document_lifecycle.h"

#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/blank_template.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/program_format.h"
#include "file/table_links.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace zolt::file {
namespace {

namespace fs = std::filesystem;

bool exists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::exists(path, ec);
}

void removeFile(const std::string& path) {
    std::error_code ec;
    fs::remove(path, ec);
}

std::string lockPathOf(const std::string& path) {
    return CompanionPath(path, ".lck");
}

// The extension of a filter's first pattern ("…|*.zlf|…" gives ".zlf").
std::string firstFilterExtension(const std::string& filter) {
    const std::size_t bar = filter.find('|');
    const std::size_t star = filter.find("*.", bar == std::string::npos ? 0 : bar);
    if (star == std::string::npos)
        return {};
    const std::size_t end = filter.find_first_of(";|", star);
    return filter.substr(star + 1, end == std::string::npos ? std::string::npos : end - star - 1);
}

bool isNewProject(const std::string& path) {
    return vb::UCase(StripExtension(FileNameOf(path))) == "NEW";
}

std::string withoutLastFour(const std::string& name) {
    return name.size() > 4 ? name.substr(0, name.size() - 4) : std::string();
}

// The two quoted records of a lock file.
std::vector<std::string> readLockRecords(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::string> records;
    std::string line;
    while (records.size() < 2 && std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.size() >= 2 && line.front() == '"' && line.back() == '"')
            line = line.substr(1, line.size() - 2);
        records.push_back(line);
    }
    records.resize(2);
    return records;
}

} // namespace

bool BackUpBeforeConversion(Ui& ui, const std::string& path, const std::string& backupDirectory) {
    std::error_code ec;
    fs::create_directories(backupDirectory, ec);
    const fs::path backup = fs::path(backupDirectory) / FileNameOf(path);
    if (!fs::copy_file(path, backup, fs::copy_options::overwrite_existing, ec) || ec) {
        ui.Show({"Old Version Detected...",
                 "The original program could not be stored in the Backup folder " +
                     backupDirectory + " (" + ec.message() +
                     "), so the converted program was not saved.",
                 Buttons::Ok, Icon::Warning, 1});
        return false;
    }
    return true;
}

std::string ConvertedName(const std::string& path) {
    if (path.size() < 3)
        return path;
    const std::string ext = ExtensionOf(path);
    return path.substr(0, path.size() - 3) + (ext == vb::LCase(ext) ? "grv" : "GRV");
}

bool ConfirmGrvDataLoss(Ui& ui, const std::string& oldPath, const std::string& newPath,
                        bool grvTestCompileSave) {
    const std::string newExt = UpperExtensionOf(newPath);
    if (grvTestCompileSave || UpperExtensionOf(oldPath) != "GRV" ||
        (newExt != "ZLT" && newExt != "ZLF"))
        return true;
    return ui.Show({"GRV Data Will Be Lost - Continue Save?",
                    "Saving to this format will cause all GRV-related information to be lost.",
                    Buttons::OkCancel, Icon::Warning, 2}) == Answer::Ok;
}

bool KeepsFamilyIntact(Ui& ui, const std::string& family, const std::string& path) {
    std::error_code ec;
    const bool same = exists(family) && exists(path)
                          ? fs::equivalent(family, path, ec)
                          : fs::absolute(family, ec).lexically_normal() ==
                                fs::absolute(path, ec).lexically_normal();
    if (!same)
        return true;
    ui.Show({"Save New Test Program",
             "The new test program cannot be saved over " + FileNameOf(family) +
                 ", the family it was made from. Please choose another name.",
             Buttons::Ok, Icon::Stop, 1});
    return false;
}

bool ConfirmOverwrite(Ui& ui, const std::string& path) {
    return !exists(path) || ui.Show({kAppTitle, "File Exists, Overwrite?", Buttons::OkCancel,
                                     Icon::Question, 2}) == Answer::Ok;
}

std::string LockFileText(const std::string& computerName, const LocalTime& t) {
    const int hour12 = t.hour % 12 == 0 ? 12 : t.hour % 12;
    char date[40];
    std::snprintf(date, sizeof date, "%02d/%02d/%02d %d:%02d:%02d %s", t.month, t.day, t.year % 100,
                  hour12, t.minute, t.second, t.hour < 12 ? "AM" : "PM");
    std::string text = "\"";
    text += computerName.substr(0, 16);
    text += "\"\r\n\"";
    text += date;
    text += "\"\r\n";
    return text;
}

std::string LockDateForDisplay(const std::string& written) {
    // "mm/dd/yy …" shows as "m/d/yy …": leading zeros of month and day go.
    std::string out;
    std::size_t i = 0;
    for (int part = 0; part < 2 && i < written.size(); ++part) {
        if (written[i] == '0' && i + 1 < written.size() && written[i + 1] != '/')
            ++i;
        while (i < written.size() && written[i] != '/')
            out += written[i++];
        if (i < written.size())
            out += written[i++];
    }
    return out + written.substr(i);
}

DocumentLifecycle::DocumentLifecycle(ProgramState& state, DocumentEnvironment environment)
    : state_(state), document_(state.document()), env_(std::move(environment)),
      lastDirectory_(state.params().IsParam(param::ProgramsDirectory, false)
                         ? state.params().Text(param::ProgramsDirectory)
                         : DefaultDataDirectory()) {
    if (!env_.formats) {
        auto formats = std::make_shared<ProgramFormats>();
        RegisterProgramFileFormats(*formats, env_.dataDirectory);
        env_.formats = std::move(formats);
    }
}

std::string DocumentLifecycle::filterOf(const char* extension) const {
    const ProgramFormat* format = env_.formats->Find(std::string("x.") + extension);
    return format ? format->NameFilter() : std::string();
}

Answer DocumentLifecycle::writeDocument(const std::string& path) {
    return WriteByFormat(state_, *env_.formats, path);
}

void DocumentLifecycle::setCaption() {
    state_.frame().SetCaption(std::string("Thessor ") + kAppTitle + " - " +
                              FileNameOf(document_.CurrentFile));
}

void DocumentLifecycle::setFilePanels() {
    state_.SetPanelText(1, ProgramName(document_.CurrentFile));
    state_.SetPanelText(2, document_.CurrentFile);
}

void DocumentLifecycle::deleteCompileOutputs(const std::string& path) {
    if (path.empty())
        return;
    removeFile(CompanionPath(path, ".bin"));
    state_.frame().CommandsChanged();
    removeFile(CompanionPath(path, ".dgn"));
}

void DocumentLifecycle::WriteLockFile(const std::string& path) {
    std::ofstream out(lockPathOf(path), std::ios::binary | std::ios::trunc);
    out << LockFileText(env_.computerName, env_.clock.Now());
}

void DocumentLifecycle::RemoveLockFile(const std::string& path) {
    if (!path.empty())
        removeFile(lockPathOf(path));
    document_.LockedFile.clear();
}

bool DocumentLifecycle::AskFileInUse(const std::string& path) {
    const auto records = readLockRecords(lockPathOf(path));
    const std::string text = FileNameOf(path) + " is locked for editing.\n   User: " + records[0] +
                             "\n   On: " + LockDateForDisplay(records[1]) +
                             "\n\nSelect 'Cancel' then open at a later date.\n"
                             "If you believe that the file is not actually opened by\n"
                             "the user specified above, select 'Open Anyway'.\n"
                             "WARNING: Data may be lost.";
    MessageBox box{"File In Use", text, Buttons::OkCancel,
                   Icon::Warning, 2,    {"Open Anyway", "Cancel"}};
    if (state_.ui().Show(box) == Answer::Ok) {
        RemoveLockFile(document_.CurrentFile);
        return true;
    }
    document_.FileInUseCancelled = true;
    return false;
}

bool DocumentLifecycle::lockAndOpen(const std::string& path, bool isNew) {
    if (ExtensionOf(path) != "zlt") {
        if (exists(lockPathOf(path))) {
            const std::string kept = document_.LockedFile;
            document_.LockedFile = path;
            document_.FileInUseCancelled = false;
            if (!AskFileInUse(path)) {
                document_.LockedFile = kept;
                return false;
            }
            WriteLockFile(path);
        } else {
            if (!document_.CurrentFile.empty())
                RemoveLockFile(document_.CurrentFile);
            WriteLockFile(path);
        }
        document_.LockedFile = path;
    }
    OpenProgramFile(path, isNew);
    if (!document_.FileOpen) {
        env_.refreshCommands();
        return false;
    }
    // An import opens the program file it made: the lock follows it there.
    if (document_.LockedFile == path && document_.CurrentFile != path) {
        RemoveLockFile(path);
        WriteLockFile(document_.CurrentFile);
        document_.LockedFile = document_.CurrentFile;
    }
    return true;
}

Answer DocumentLifecycle::UserOpen(bool isNew) {
    if (PromptSaveChanges(true, false, false) == Answer::Cancel)
        return Answer::Cancel;
    if (document_.FileOpen)
        deleteCompileOutputs(document_.CurrentFile);

    FileDialog dialog;
    dialog.title = isNew ? "New" : "Open";
    dialog.filter = isNew ? filterOf("zlt") : env_.formats->OpenFilter();
    dialog.directory = isNew ? state_.params().Text(param::TemplatesDirectory) : lastDirectory_;
    if (isNew && exists((fs::path(dialog.directory) / kBlankTemplate).string()))
        dialog.fileName = kBlankTemplate;
    const auto chosen = state_.ui().ChooseFile(dialog);
    if (!chosen)
        return Answer::Cancel;
    const std::string path = *chosen;
    if (!exists(path)) {
        state_.ui().Message(path + " not found", "Abort Operation");
        return Answer::Cancel;
    }
    if (!isNew)
        lastDirectory_ = DirectoryOf(path);
    if (!lockAndOpen(path, isNew))
        return Answer::Cancel;
    state_.session().SequenceVisible = false;
    env_.refreshCommands();
    if (isNew) {
        if (PromptSaveChanges(false, true, false) == Answer::Yes) {
            RemoveLockFile(document_.LockedFile);
            WriteLockFile(document_.CurrentFile);
            document_.LockedFile = document_.CurrentFile;
        } else {
            RemoveLockFile(document_.LockedFile);
            CloseProgramFile();
            env_.refreshCommands();
            return Answer::Cancel;
        }
    }
    return Answer::Yes;
}

void DocumentLifecycle::OpenProgramFile(std::string path, bool isNew) {
    CloseProgramFile();
    ++generation_;
    OpenOutcome outcome = OpenByFormat(state_, *env_.formats, path);
    if (outcome.result != Answer::Yes)
        return;
    if (UpperExtensionOf(path) == "ZLT" && isNew)
        document_.CurrentFile =
            (fs::path(state_.params().Text(param::ProgramsDirectory)) / "New.zlt").string();
    setCaption();
}

void DocumentLifecycle::CloseProgramFile() {
    if (!document_.FileOpen)
        return;
    state_.ui().SetBusy(true);
    ++generation_;
    deleteCompileOutputs(document_.CurrentFile);
    document_.FileOpen = false;
    document_.CurrentFile.clear();
    FrameControls& frame = state_.frame();
    state_.DestroyAll();
    while (frame.TabCount() > 0)
        frame.RemoveTab(frame.TabCount() - 1);
    frame.SetCaption(std::string("Thessor ") + kAppTitle);
    state_.ui().SetBusy(false);
}

Answer DocumentLifecycle::PromptSaveChanges(bool ask, bool forceDialog, bool isTemplate) {
    Answer answer = Answer::Yes;
    if (ask) {
        if (!document_.FileOpen)
            return Answer::No;
        if (!state_.IsDirty())
            return Answer::No;
        answer = state_.ui().Show(
            {kAppTitle,
             "Save Changes to ''" + withoutLastFour(FileNameOf(document_.CurrentFile)) + "'' ?",
             Buttons::YesNoCancel, Icon::Question, 1});
    }
    if (answer == Answer::No || answer == Answer::Cancel)
        return answer;
    Answer result = Answer::Yes;
    if (forceDialog || IsNewOrTemplate(document_.CurrentFile)) {
        result = SaveAsDialog(document_.CurrentFile, isTemplate);
        forceDialog = true;
    }
    if (document_.ConvertToGRV)
        document_.CurrentFile = ConvertedName(document_.CurrentFile);
    if (result != Answer::Yes)
        return result;
    if (forceDialog || document_.ConvertToGRV)
        setCaption();
    // A failed write must not let the caller go on as if the work were safe.
    if (writeDocument(document_.CurrentFile) != Answer::Yes)
        return Answer::Cancel;
    state_.frame().CommandsChanged();
    setFilePanels();
    return Answer::Yes;
}

Answer DocumentLifecycle::SaveAsDialog(std::string& path, bool isTemplate) {
    const bool isNew = isNewProject(path);
    const std::string oldExt = UpperExtensionOf(path);
    FileDialog dialog;
    dialog.save = true;
    dialog.fileName = isNew ? std::string() : withoutLastFour(FileNameOf(path));
    dialog.title = isTemplate ? "Save As Template" : isNew ? "Save As" : "Save As File";
    dialog.directory =
        isTemplate ? state_.params().Text(param::TemplatesDirectory) : lastDirectory_;
    const std::string zlf = filterOf("zlf");
    const std::string grv = filterOf("grv");
    if (isTemplate)
        dialog.filter = filterOf("zlt");
    else if (isNew)
        dialog.filter = zlf + "|" + grv;
    else if (env_.formats->IsFamily(path) || oldExt == "ZOS")
        dialog.filter = document_.GRVTestCompileSave ? zlf : grv + "|" + zlf;
    else
        dialog.filter = document_.GRVTestCompileSave ? zlf + "|" + grv : zlf;
    auto chosen = state_.ui().ChooseFile(dialog);
    if (!chosen)
        return Answer::Cancel;
    // A name typed without extension takes the filter's, as the dialog offers it.
    if (FileNameOf(*chosen).find('.') == std::string::npos)
        *chosen += firstFilterExtension(dialog.filter);
    if (!ConfirmGrvDataLoss(state_.ui(), path, *chosen, document_.GRVTestCompileSave) ||
        (document_.GRVTestCompileSave && !KeepsFamilyIntact(state_.ui(), path, *chosen)) ||
        !ConfirmOverwrite(state_.ui(), *chosen))
        return Answer::Cancel;
    RemoveLockFile(document_.LockedFile);
    path = *chosen;
    if (!isTemplate)
        lastDirectory_ = DirectoryOf(path);
    return Answer::Yes;
}

void DocumentLifecycle::afterOpen() {
    env_.refreshCommands();
    state_.frame().SetTabBarVisible(true);
    std::string main = kMain;
    ActivateNetlist(state_, main);
    setFilePanels();
}

void DocumentLifecycle::New() {
    if (UserOpen(true) != Answer::Yes)
        return;
    state_.session().SequenceVisible = false;
    RebuildCommandDictionary(state_, document_.CurrentFile);
    afterOpen();
}

void DocumentLifecycle::NewFromTemplate(const std::string& templatePath) {
    OpenProgramFile(templatePath, true);
    if (!document_.FileOpen) {
        env_.refreshCommands();
        return;
    }
    state_.session().SequenceVisible = false;
    RebuildCommandDictionary(state_, document_.CurrentFile);
    afterOpen();
}

void DocumentLifecycle::convertOldAssemblyData() {
    if (!document_.ConvertToGRV)
        return;
    if (!BackUpBeforeConversion(state_.ui(), document_.CurrentFile,
                                state_.params().Text(param::BackupFilesDirectory))) {
        // Nothing is written; a later Save keeps the patterns under the family's name.
        document_.CurrentFile = ConvertedName(document_.CurrentFile);
        document_.ConvertToGRV = false;
        setCaption();
        return;
    }
    if (PromptSaveChanges(false, false, false) == Answer::Yes) {
        OpenProgramFile(document_.CurrentFile, false);
        if (document_.FileOpen)
            afterOpen();
    }
    document_.ConvertToGRV = false;
}

void DocumentLifecycle::Open() {
    document_.ConvertToGRV = false;
    state_.session().SequenceVisible = false;
    UserOpen(false);
    if (document_.FileOpen)
        afterOpen();
    convertOldAssemblyData();
}

void DocumentLifecycle::OpenFromCommandLine(const std::string& commandLine) {
    const std::string trimmed = vb::Trim(commandLine);
    if (trimmed.empty())
        return;
    const std::string path = GetLongFilename(trimmed);
    if (path.empty()) {
        state_.ui().Message(trimmed + " not found", "Abort Operation");
        return;
    }
    // A file handed to the running program replaces the open one, whose changes come first.
    if (PromptSaveChanges(true, false, false) == Answer::Cancel)
        return;
    if (!lockAndOpen(path, false)) {
        document_.ConvertToGRV = false;
        return;
    }
    lastDirectory_ = DirectoryOf(path);
    afterOpen();
    convertOldAssemblyData();
}

void DocumentLifecycle::Save() {
    PromptSaveChanges(false, false, false);
    env_.refreshCommands();
}

void DocumentLifecycle::SaveAs() {
    if (PromptSaveChanges(false, true, false) != Answer::Yes)
        return;
    // The project is read back from what was written, so memory holds what the file holds.
    OpenProgramFile(document_.CurrentFile, false);
    if (!document_.FileOpen) {
        env_.refreshCommands();
        return;
    }
    if (document_.CurrentFile != document_.LockedFile) {
        WriteLockFile(document_.CurrentFile);
        document_.LockedFile = document_.CurrentFile;
    }
    afterOpen();
}

void DocumentLifecycle::SaveAsTemplate() {
    if (PromptSaveChanges(false, true, true) != Answer::Yes)
        return;
    OpenProgramFile(document_.CurrentFile, false);
    if (document_.FileOpen)
        afterOpen();
    else
        env_.refreshCommands();
}

void DocumentLifecycle::Close() {
    if (PromptSaveChanges(true, false, false) == Answer::Cancel)
        return;
    RemoveLockFile(document_.CurrentFile);
    CloseProgramFile();
    state_.frame().SetTabBarVisible(false);
    state_.session().SequenceVisible = false;
    state_.SetStatusText({});
    env_.refreshCommands();
}

bool DocumentLifecycle::QueryUnload() {
    if (PromptSaveChanges(true, false, false) == Answer::Cancel) {
        // The project stays open, but without its lock.
        RemoveLockFile(document_.LockedFile);
        return false;
    }
    if (document_.FileOpen)
        deleteCompileOutputs(document_.CurrentFile);
    return true;
}

} // namespace zolt::file
