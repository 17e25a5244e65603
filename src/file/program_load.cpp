// A program read as a value, and the one road by which it becomes the open one.
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/file_bytes.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/program_reader.h"
#include "file/read_limits.h"
#include "file/table_factory.h"
#include "file/table_links.h"

namespace zolt::file {
namespace {

constexpr const char* kOldVersionCaption = "Old Version Detected...";
constexpr const char* kOldVersionText =
    "ZOLT 6.0 with GRV has detected that this file was made with a previous version of GRV "
    "software and contains data elements that must be converted to the new GRV format to work "
    "with this version. The conversion process will preserve the data and behavior of the "
    "original program. The original program will be stored in the Backup folder.";

// Tables are made for a program and reach it while they are filled, so a
// project is read inside a program of its own that nobody sees. Its boxes are
// kept for whoever opens the project.
class Loader {
public:
    ProgramState& state() { return state_; }

    LoadedProgram Finish(ReadFacts facts, std::string error) {
        for (const MessageBox& box : ui_.ShownBoxes())
            facts.notices.push_back(box);
        auto project = std::make_unique<Project>(std::move(state_.project()));
        project->NetlistCollection.ForEach(
            [](const std::unique_ptr<CNetList>& netlist) { netlist->Adopt(nullptr); });
        project->ActiveNetlist = project->MainNetlist;
        state_.project() = Project{};
        return {std::move(project), std::move(facts), std::move(error)};
    }

private:
    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_{Ports{ui_, settings_, frame_, frame_}, MakeTable};
};

} // namespace

LoadedProgram LoadProgram(std::string_view bytes, const std::string& path,
                          const std::string& dataDirectory) {
    Loader loader;
    ReadFacts facts;
    std::string error = ReadProgramInto(loader.state(), bytes, path, facts);
    if (error.empty() && !dataDirectory.empty() &&
        !LoadDeviceAndMacroLists(loader.state(), dataDirectory))
        error = "Error reading file at End";
    return loader.Finish(std::move(facts), std::move(error));
}

LoadedProgram LoadProgramFile(const std::string& path, const std::string& dataDirectory) {
    // A file that cannot be read fails at its start, as an empty one does.
    const auto bytes = ReadFileBytes(path, kMaxProgramFileSize);
    return LoadProgram(bytes ? std::string_view(*bytes) : std::string_view(), path, dataDirectory);
}

LoadedProgram LoadPickedTable(std::string_view bytes, const std::string& path, TablePick pick) {
    Loader loader;
    ReadFacts facts;
    std::string error = ReadProgramInto(loader.state(), bytes, path, facts, pick);
    return loader.Finish(std::move(facts), std::move(error));
}

Answer AdoptLoadedProgram(ProgramState& state, LoadedProgram& loaded) {
    for (const MessageBox& box : loaded.facts.notices)
        state.ui().Show(box);
    state.AdoptProject(std::move(*loaded.project));
    ShowNetlistTabs(state);
    if (loaded.facts.converted)
        state.SetDirty(true);
    state.ui().SetBusy(false);
    if (loaded.ok())
        return Answer::Yes;
    state.ui().Show(MessageBox{"Abort File Read", loaded.error, Buttons::Ok, Icon::Stop, 1});
    return Answer::No;
}

Answer OpenLoadedProgram(ProgramState& state, LoadedProgram loaded, const std::string& path,
                         ReadFacts* facts) {
    if (facts)
        *facts = loaded.facts;
    if (AdoptLoadedProgram(state, loaded) != Answer::Yes)
        return Answer::No;
    return ApplyReadFacts(state, path, loaded.facts);
}

Answer ApplyReadFacts(ProgramState& state, const std::string& path, const ReadFacts& facts) {
    // Asked once per read: OK converts the program to the assembly family's form.
    if (facts.oldAssemblyData)
        state.document().ConvertToGRV =
            state.ui().Show(MessageBox{kOldVersionCaption, kOldVersionText, Buttons::OkCancel,
                                       Icon::None, 1}) == Answer::Ok;
    if (facts.imageStored && !WriteFileBytes(CompanionPath(path, ".bin"), facts.image)) {
        state.ui().Show(MessageBox{"Abort File Read", "Error reading file at Binary file",
                                   Buttons::Ok, Icon::Stop, 1});
        return Answer::No;
    }
    return Answer::Yes;
}

Answer ReadProgramFile(ProgramState& state, const std::string& path, ReadFacts* facts,
                       const std::string& dataDirectory) {
    state.ui().SetBusy(true);
    return OpenLoadedProgram(state, LoadProgramFile(path, dataDirectory), path, facts);
}

Answer ReadProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                        ReadFacts* facts, const std::string& dataDirectory) {
    state.ui().SetBusy(true);
    return OpenLoadedProgram(state, LoadProgram(bytes, path, dataDirectory), path, facts);
}

} // namespace zolt::file
