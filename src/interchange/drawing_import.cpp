#include "interchange/drawing_import.h"

#include "core/netlist.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/path_names.h"
#include "file/project_copy.h"
#include "interchange/netlist_fill.h"

#include <filesystem>

namespace zolt::interchange {
namespace {

void refuse(ProgramState& state, const std::string& path, const std::string& why) {
    state.ui().SetBusy(false);
    state.ui().Show(MessageBox{kImportCaption, file::FileNameOf(path) + ", " + why, Buttons::Ok,
                               Icon::Stop, 1});
}

DrawingRead readDrawing(ProgramState& state, const std::string& path) {
    return ReadDrawingFile(path, DrawingOptionsOf(state.settings()));
}

} // namespace

file::OpenOutcome ImportDrawingProgram(ProgramState& state, const std::string& path,
                                       const import::ImportContext& context) {
    import::StartEmptyProgram(state, context);
    state.ui().SetBusy(true);
    const DrawingRead read = readDrawing(state, path);
    std::string error = read.error;
    if (error.empty() && !import::LoadMissingDataLists(state, context))
        error = "the device and macro lists cannot be read";
    if (error.empty())
        error = FillNetlist(state, *state.project().MainNetlist, read.drawing);
    if (!error.empty()) {
        import::StartEmptyProgram(state, context);
        import::LoadMissingDataLists(state, context);
        refuse(state, path, error);
        return {Answer::No, {}};
    }
    FillMissingTestParameters(state);
    import::AppendImportNote(state, file::UpperExtensionOf(path), context.clock.Now());
    std::string main = kMain;
    ActivateNetlist(state, main);
    state.ui().SetBusy(false);
    state.SetDirty(true);
    return {Answer::Yes, std::filesystem::path(path).replace_extension(".zlf").string()};
}

Answer ImportDrawingAsNetlist(ProgramState& state, const std::string& path,
                              const std::string& name) {
    const DrawingRead read = readDrawing(state, path);
    if (!read.ok()) {
        refuse(state, path, read.error);
        return Answer::No;
    }
    if (state.project().FindNetlist(name)) {
        refuse(state, path, "the program has a netlist " + name + " already");
        return Answer::No;
    }
    state.ui().SetBusy(true);
    // A trial on a copy first: a refused row leaves the open program, and its
    // history, as they were.
    const auto trial = file::ProjectCopy::Of(state.project(), state.ui());
    if (!trial) {
        state.ui().SetBusy(false);
        return Answer::No;
    }
    AddNetlist(trial->state(), name);
    if (const std::string error =
            FillNetlist(trial->state(), *trial->state().project().FindNetlist(name), read.drawing);
        !error.empty()) {
        refuse(state, path, error);
        return Answer::No;
    }
    state.history().NameStep("Import Drawing");
    AddNetlist(state, name);
    state.history().NetlistAdded(name);
    if (const std::string error =
            FillNetlist(state, *state.project().FindNetlist(name), read.drawing);
        !error.empty()) {
        state.history().Record();
        state.history().Undo();
        refuse(state, path, error);
        return Answer::No;
    }
    state.project().NeedsCompile = true;
    state.SetDirty(true);
    state.ui().SetBusy(false);
    return Answer::Yes;
}

} // namespace zolt::interchange
