#pragma once

#include "core/document.h"
#include "core/edit_history.h"
#include "core/editing_session.h"
#include "core/keyed_collection.h"
#include "core/parameters.h"
#include "core/project.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

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

// The running program: the open project, its document and editing session, and
// the services every part reaches through it (ports, parameters, undo, table
// making). There is exactly one per running program, owned by whoever runs it
// (the desktop shell, the batch driver, a test).
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

    // The program's parts: what the file holds, the file itself, this run's editing.
    Project& project() { return project_; }
    const Project& project() const { return project_; }
    Document& document() { return document_; }
    const Document& document() const { return document_; }
    EditingSession& session() { return session_; }
    const EditingSession& session() const { return session_; }

    // The parameter store, made on first use.
    CParamList& params();
    // Undo and redo of the open project's edits.
    EditHistory& history() { return history_; }

    bool IsDirty() const { return document_.IsDirty(); }
    void SetDirty(bool flag);
    void SetGridEditing(bool flag);

    void SetStatusText(const std::string& text);
    void ClearStatusText() { SetStatusText({}); }
    void SetPanelText(int panel, const std::string& text);
    void ShowRecordCount(bool active);
    void DebugLog(const std::string& line);

    // Makes MAIN when there is none: index 0, all tables, the active netlist.
    CNetList& CreateMain();
    // Releases the project: netlists from the last, devices, macros, assembly data.
    void DestroyAll();
    // Releases the project and takes `project` in its place: its netlists and
    // tables become this program's, MAIN the active netlist. The one road by
    // which a loaded program becomes the open one.
    void AdoptProject(Project project);

private:
    Ports ports_;
    TableFactory factory_;
    std::unique_ptr<CParamList> params_;
    std::unique_ptr<DetailDialogs> promptDetails_;
    DetailDialogs* details_ = nullptr;
    Project project_;
    Document document_;
    EditingSession session_;
    EditHistory history_;
};

template <typename T> void ClearCollection(KeyedCollection<T>& list) {
    while (list.Count() > 0)
        list.Remove(1);
}

} // namespace zolt
