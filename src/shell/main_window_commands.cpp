// Every command of the main frame bound to what it does and when it can be used.
#include "core/netlist_operations.h"
#include "core/ports/frame_controls.h"
#include "core/table_kinds.h"
#include "file/path_names.h"
#include "interchange/drawing_commands.h"
#include "sequence/program_kind.h"
#include "shell/command_table.h"
#include "shell/compiler_window.h"
#include "shell/download_window.h"
#include "shell/main_window.h"
#include "shell/tab_strip.h"
#include "shell/table_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QToolBar>
#include <filesystem>
#include <stdexcept>

namespace zolt::shell {
namespace {

struct TableCommand {
    const char* id;
    TableId table;
};

// The table each table command opens.
constexpr TableCommand kTableCommands[] = {
    {"ID_Connectors", table::Connector},
    {"ID_Switches", table::Switches},
    {"ID_Wires", table::Wire},
    {"ID_Pins", table::Pin},
    {"ID_Splices", table::Splice},
    {"ID_Components", table::Component},
    {"ID_TestParameters", table::TestParameter},
    {"ID_ReversiblePairs", table::Reversible},
    {"ID_Groups", table::Groups},
    {"ID_Fixture", table::Fixture},
    {"ID_Colors", table::Color},
    {"ID_Messages", table::Message},
};

// Tables of the wires method, hidden by the groups method.
} // namespace

void MainWindow::bindCommands() {
    ProgramState& s = *state_;
    const auto open = [&s] { return s.document().FileOpen; };
    const auto idleTable = [this] {
        return state_->document().FileOpen && activeTableWindow() && !state_->session().GridEditing;
    };
    const auto withTable = [this](void (TableWindow::*command)()) {
        return [this, command] {
            if (TableWindow* w = activeTableWindow())
                (w->*command)();
        };
    };
    CommandRegistry& r = commands_;

    r.Bind("ID_New", [this] { documentCommand([this] { document_->New(); }); });
    r.Bind("ID_Open", [this] { documentCommand([this] { document_->Open(); }); });
    r.Bind(
        "ID_Save",
        [this] {
            // The row being typed is part of what the user means to save.
            if (TableWindow* editing = editingTableWindow(); editing && !editing->CommitEditing()) {
                state_->SetStatusText("Not saved: correct the row being typed, or Escape");
                return;
            }
            // The history stays: only the state that counts as clean moves.
            document_->Save();
            if (!state_->IsDirty())
                history().MarkSaved();
        },
        [&s] { return s.document().FileOpen && (s.IsDirty() || s.session().GridEditing); });
    r.Bind(
        "ID_SaveAs", [this] { documentCommand([this] { document_->SaveAs(); }, true); }, open);
    r.Bind(
        "ID_SaveAsTemplate",
        [this] { documentCommand([this] { document_->SaveAsTemplate(); }, true); }, open);
    r.Bind(
        "ID_Close", [this] { documentCommand([this] { document_->Close(); }); }, open);
    r.Bind("ID_Exit", [this] { close(); });
    r.Bind(
        "ID_ImportPID", [this] { importPid(); }, open);
    r.Bind(
        "ID_ImportDrawing", [this] { importDrawing(); }, open);
    r.Bind(
        "ID_ExportDrawing", [this] { interchange::ExportDrawingCommand(*state_); }, open);

    const auto printable = [this] {
        return state_->document().FileOpen && !state_->session().GridEditing;
    };
    r.Bind(
        "ID_Print", [this] { runPrintDialog(false); }, printable);
    r.Bind(
        "ID_PrintGRVData", [this] { runPrintDialog(true); },
        [this, printable] { return printable() && IsGrvProgram(*state_); });
    r.Bind(
        "ID_PrintFromToolbar",
        [this] { routeReportCommand(QStringLiteral("ID_PrintFromToolbar")); },
        [this, printable] { return printable() && activeWindowPrintable(); });

    const auto grv = [this] { return state_->document().FileOpen && IsGrvProgram(*state_); };
    for (const char* id : {"ID_FeatureCodes", "ID_AssemblyOrder", "ID_GRVTestCompile"})
        r.Bind(
            id, [this, id] { routeAssemblyCommand(QString::fromUtf8(id)); }, grv);
    for (const char* id : {"ID_Compile", "ID_Labels"})
        r.Bind(
            id,
            [this, id] {
                RouteCompileCommand(
                    QString::fromUtf8(id), *state_, clock_, settings_,
                    [this] { documentCommand([this] { document_->SaveAs(); }, true); }, this);
            },
            open);

    r.Bind(
        "ID_Download", [this] { RunDownloadCommand(*state_, clock_, this); },
        [&s] {
            std::error_code ec;
            return s.document().FileOpen && !s.document().CurrentFile.empty() &&
                   std::filesystem::is_regular_file(
                       file::CompanionPath(s.document().CurrentFile, ".bin"), ec);
        });

    r.Bind(
        "ID_Undo", [this] { stepHistory(true); },
        [this] {
            return state_->document().FileOpen && history().CanUndo() &&
                   !state_->session().GridEditing;
        });
    r.Bind(
        "ID_Redo", [this] { stepHistory(false); },
        [this] {
            return state_->document().FileOpen && history().CanRedo() &&
                   !state_->session().GridEditing;
        });
    r.Bind(
        "ID_Cut", [this] { clipboardCommand(true); }, idleTable);
    r.Bind(
        "ID_Copy", [this] { clipboardCommand(false); }, idleTable);
    r.Bind(
        "ID_Paste",
        [this] {
            TableWindow* w = activeTableWindow();
            const QString text = QApplication::clipboard()->text();
            if (w && text.startsWith(QLatin1String("$CopyData")))
                w->Paste(text.toStdString());
            else if (w)
                w->PasteText(text);
        },
        idleTable);
    r.Bind("ID_AddLine", withTable(&TableWindow::AddLine), idleTable);
    r.Bind("ID_InsertLine", withTable(&TableWindow::InsertLine), idleTable);
    r.Bind("ID_DeleteLine", withTable(&TableWindow::DeleteLine), idleTable);
    r.Bind("ID_ClearTable", withTable(&TableWindow::ClearTable), idleTable);
    r.Bind("ID_AbortEdit", withTable(&TableWindow::AbortEdit), [this] {
        return state_->document().FileOpen && activeTableWindow() && state_->session().GridEditing;
    });

    r.Bind(
        "ID_NewNetlistTab", [&s] { NewNetlistCommand(s); }, open);
    const auto deletable = [this] {
        const std::string active =
            state_->project().ActiveNetlist ? state_->project().ActiveNetlist->NetlistName : "";
        return state_->document().FileOpen && frame_->TabCount() > 1 && active != kMain &&
               active != kManualNetlists;
    };
    r.Bind(
        "ID_DeleteNetlistTab", [&s] { DeleteNetlistCommand(s); }, deletable);
    r.Bind(
        "ID_RenameNetlistTab", [&s] { RenameNetlistCommand(s); }, deletable);

    r.Bind(
        "ID_ViewAllTables", [this] { showAllTables(); }, open);
    r.Bind(
        "ID_HideAllTables",
        [this] {
            if (state_->project().ActiveNetlist)
                state_->project().ActiveNetlist->HideVisibleTables();
        },
        open);
    for (const TableCommand& t : kTableCommands) {
        CommandRegistry::Condition when = open;
        if (IsWiresMethodTable(t.table))
            when = [this] { return state_->document().FileOpen && !groupMethod(); };
        else if (t.table == table::Switches)
            when = [this] {
                return state_->document().FileOpen && state_->Params().Number(param::Switches) != 0;
            };
        r.Bind(
            t.id, [this, n = t.table] { showTable(n); }, when);
    }

    r.Bind(
        "ID_Sequence",
        [this] { setSequenceShown(Action(QStringLiteral("ID_Sequence"))->isChecked()); }, open);
    r.Bind(
        "ID_Descriptions", [this] { toggleDescriptions(); }, open);

    const auto arrangeable = [this] {
        return state_->document().FileOpen && state_->project().ActiveNetlist &&
               state_->project().ActiveNetlist->VisibleCount > 0;
    };
    r.Bind(
        "ID_TileHorizontally", [this] { arrange(Arrangement::TileHorizontally); }, arrangeable);
    r.Bind(
        "ID_TileVertically", [this] { arrange(Arrangement::TileVertically); }, arrangeable);
    r.Bind(
        "ID_Cascade", [this] { arrange(Arrangement::Cascade); }, arrangeable);
    r.Bind(
        "ID_Default", [this] { resetWindowLayouts(); }, arrangeable);
    r.Bind(
        "ID_SaveNewDefault", [this] { saveNewDefaultLayout(); }, arrangeable);

    r.Bind("ID_MainToolbar", [this] {
        mainToolbar_->setVisible(Action(QStringLiteral("ID_MainToolbar"))->isChecked());
    });
    bindHelpCommands();
    r.Bind(
        "ID_NetlistToolbar",
        [this] {
            strip_->SetToolbarVisible(Action(QStringLiteral("ID_NetlistToolbar"))->isChecked());
        },
        open);

    bindSettingsCommands();
    bindFindCommands();
    bindViewCommands();
    // With no project open the tutorial is a Help tool: its own box explains a
    // last project of the wires method.
    r.Bind(
        "ID_GroupsTutorial", [this] { startTutorial(); },
        [this] {
            return !state_->session().TutorialActive &&
                   (!state_->document().FileOpen || groupMethod());
        });

    // The start-up check: a command in the menus with nothing behind it is a dead entry.
    if (const auto missing = commands_.Unbound(); !missing.empty())
        throw std::logic_error("command without a handler: " + missing.front());
}

bool MainWindow::groupMethod() const {
    return state_->Params().Val(param::Group).text() == "True";
}

void MainWindow::UpdateControls() {
    updateWorkspaceHint();
    if (state_->session().GridEditing || state_->session().TutorialActive)
        return;
    for (const CommandDef& c : Commands())
        frame_->EnableCommand(c.id, commands_.Enabled(c.id));
    // "&Undo Delete Pin Record": the menu and the tooltip say what the step takes
    // back; the toolbar button keeps its short text, so the tools beside it stay put.
    const std::pair<const char*, std::string> steps[] = {{"ID_Undo", history().UndoText()},
                                                         {"ID_Redo", history().RedoText()}};
    for (const auto& [id, text] : steps) {
        QAction* action = Action(QString::fromUtf8(id));
        const QString full = QString::fromStdString(text);
        action->setText(QLatin1Char('&') + full);
        action->setIconText(full.section(QLatin1Char(' '), 0, 0));
        action->setToolTip(full);
    }
    if (!state_->document().FileOpen) {
        SetPanelText(1, {});
        SetPanelText(2, {});
    }
}

} // namespace zolt::shell
