#pragma once

#include "core/assembly_lists.h"
#include "core/devices.h"
#include "core/edit_history.h"
#include "core/keyed_collection.h"
#include "core/netlist.h"
#include "core/parameters.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace zolt {

class Ui;
class SettingsStore;
class WindowRegistry;
class FrameControls;
class DetailDialogs;

// What the program's logic needs of the world outside it.
struct Ports {
    Ui& ui;
    SettingsStore& settings;
    WindowRegistry& windows;
    FrameControls& frame;
};

// Makes the table object of a table number; the tables layer supplies it.
using TableFactory = std::function<std::unique_ptr<Table>(ProgramState& state, TableId id)>;

// The program-wide state: the one open project, its netlists, the parameter
// store and the flags of the editing session. There is exactly one per running
// program, owned by whoever runs it (the desktop shell, the batch driver, a test).
class ProgramState {
public:
    ProgramState(Ports ports, TableFactory factory);
    ~ProgramState();
    ProgramState(const ProgramState&) = delete;
    ProgramState& operator=(const ProgramState&) = delete;

    Ui& ui() const { return ports_.ui; }
    SettingsStore& settings() const { return ports_.settings; }
    WindowRegistry& windows() const { return ports_.windows; }
    FrameControls& frame() const { return ports_.frame; }
    // The detail dialogs the tables open: the installed ones, else prompts of the Ui.
    DetailDialogs& details() const { return details_ ? *details_ : *promptDetails_; }
    void SetDetailDialogs(DetailDialogs* dialogs) { details_ = dialogs; }
    std::unique_ptr<Table> MakeTable(TableId id) { return factory_(*this, id); }

    // Project.
    bool FileOpen = false;
    std::string CurrentFile;
    std::string LockedFile;
    bool FileInUseCancelled = false;
    bool NeedsCompile = false;
    // Date and time of the last compile, as an OLE date (days since 30 December 1899).
    double CompiledDate = 0.0;
    bool ConvertToGRV = false;
    bool GRVTestCompileSave = false;
    CNetList* MainNetlist = nullptr;
    CNetList* ActiveNetlist = nullptr;
    KeyedCollection<std::unique_ptr<CNetList>> NetlistCollection;
    KeyedCollection<CComponent> DeviceList;
    KeyedCollection<CMacro> MacroList;
    AssemblyData Assembly;
    // The feature code lines ticked in the last test compile; kept for the
    // program's run, never stored.
    std::vector<std::string> SelectedFeatureCodes;
    // Names the last compile knew as labels; a new netlist may not take one.
    std::set<std::string> CompileLabels;

    // Editing session.
    bool GridEditing = false;
    bool ForceFormClose = false;
    bool SequenceSelecting = false;
    bool SequenceVisible = false;
    bool TutorialActive = false;
    bool PrivilegedMode = false;
    bool UseLayoutDefaults = true;
    bool DebugLogOn = false;
    std::vector<std::string> CopyData;

    // The parameter store, made on first use.
    CParamList& Params();
    // Undo and redo of the open project's edits.
    EditHistory& History() { return history_; }

    bool IsDirty() const { return dirty_; }
    void SetDirty(bool flag);
    void SetGridEditing(bool flag);

    void SetStatusText(const std::string& text);
    void ClearStatusText() { SetStatusText({}); }
    void SetPanelText(int panel, const std::string& text);
    void ShowRecordCount(bool active);
    void DebugLog(const std::string& line);

    // The side name of a device; empty when the device is unknown.
    std::string GetComponentSide(const std::string& name, int side) const;

    // Makes MAIN when there is none: index 0, all tables, the active netlist.
    CNetList& CreateMain();
    CNetList* FindNetlist(const std::string& name) const;
    CNetList* NetlistByIndex(std::int32_t index) const;
    // Releases the project: netlists from the last, devices, macros, assembly data.
    void DestroyAll();

private:
    Ports ports_;
    TableFactory factory_;
    std::unique_ptr<CParamList> params_;
    std::unique_ptr<DetailDialogs> promptDetails_;
    DetailDialogs* details_ = nullptr;
    bool dirty_ = false;
    EditHistory history_;
};

// Small helpers every part of the program shares.
bool IsSmallNumber(const std::string& text);
inline std::int16_t MinOf(std::int16_t a, std::int16_t b) {
    return a < b ? a : b;
}
inline std::int16_t MaxOf(std::int16_t a, std::int16_t b) {
    return a > b ? a : b;
}
// n + 1, or nullopt when that overflows 16 bits.
std::optional<std::int16_t> Increment(std::int16_t n);
template <typename T> void ClearCollection(KeyedCollection<T>& list) {
    while (list.Count() > 0)
        list.Remove(1);
}

} // namespace zolt
