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
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <stdexcept>

namespace zolt::shell {
namespace {

struct TableCommand {
    Command command;
    TableId table;
};

// The table each table command opens.
constexpr TableCommand kTableCommands[] = {
    {Command::Connectors, table::Connector},
    {Command::Switches, table::Switches},
    {Command::Wires, table::Wire},
    {Command::Pins, table::Pin},
    {Command::Splices, table::Splice},
    {Command::Components, table::Component},
    {Command::TestParameters, table::TestParameter},
    {Command::ReversiblePairs, table::Reversible},
    {Command::Groups, table::Groups},
    {Command::Fixture, table::Fixture},
    {Command::Colors, table::Color},
    {Command::Messages, table::Message},
};

// The commands a tutorial holds: nothing may replace its example under it.
constexpr Command kHeldByTutorial[] = {
    Command::New,           Command::Open,           Command::Close,
    Command::ImportPID,     Command::SaveAsTemplate, Command::NewNetlistTab,
    Command::GroupsTutorial};

bool heldByTutorial(Command command) {
    return std::find(std::begin(kHeldByTutorial), std::end(kHeldByTutorial), command) !=
           std::end(kHeldByTutorial);
}

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

    r.Bind(Command::New, [this] { documentCommand([this] { document_->New(); }); });
    r.Bind(Command::Open, [this] { documentCommand([this] { document_->Open(); }); });
    r.Bind(
        Command::Save,
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
        Command::SaveAs, [this] { documentCommand([this] { document_->SaveAs(); }, true); }, open);
    r.Bind(
        Command::SaveAsTemplate,
        [this] { documentCommand([this] { document_->SaveAsTemplate(); }, true); }, open);
    r.Bind(
        Command::Close, [this] { documentCommand([this] { document_->Close(); }); }, open);
    r.Bind(Command::Exit, [this] { close(); });
    r.Bind(
        Command::ImportPID, [this] { importPid(); }, open);
    r.Bind(
        Command::ImportDrawing, [this] { importDrawing(); }, open);
    r.Bind(
        Command::ExportDrawing, [this] { interchange::ExportDrawingCommand(*state_); }, open);

    const auto printable = [this] {
        return state_->document().FileOpen && !state_->session().GridEditing;
    };
    r.Bind(
        Command::Print, [this] { runPrintDialog(false); }, printable);
    r.Bind(
        Command::PrintGRVData, [this] { runPrintDialog(true); },
        [this, printable] { return printable() && IsGrvProgram(*state_); });
    r.Bind(
        Command::PrintFromToolbar, [this] { printActiveWindow(); },
        [this, printable] { return printable() && activeWindowPrintable(); });

    bindAssemblyCommands();
    r.Bind(
        Command::Compile,
        [this] {
            RunCompileCommand(
                *state_, clock_, [this] { documentCommand([this] { document_->SaveAs(); }, true); },
                this);
        },
        [&s] { return s.document().FileOpen && !s.session().GridEditing; });
    r.Bind(
        Command::Labels, [this] { RunLabelsCommand(*state_, settings_); }, open);

    r.Bind(
        Command::Download, [this] { RunDownloadCommand(*state_, clock_, this); },
        [&s] {
            std::error_code ec;
            return s.document().FileOpen && !s.document().CurrentFile.empty() &&
                   std::filesystem::is_regular_file(
                       file::CompanionPath(s.document().CurrentFile, ".bin"), ec);
        });

    r.Bind(
        Command::Undo, [this] { stepHistory(true); },
        [this] {
            return state_->document().FileOpen && history().CanUndo() &&
                   !state_->session().GridEditing;
        });
    r.Bind(
        Command::Redo, [this] { stepHistory(false); },
        [this] {
            return state_->document().FileOpen && history().CanRedo() &&
                   !state_->session().GridEditing;
        });
    r.Bind(
        Command::Cut, [this] { clipboardCommand(true); }, idleTable);
    r.Bind(
        Command::Copy, [this] { clipboardCommand(false); }, idleTable);
    r.Bind(
        Command::Paste,
        [this] {
            TableWindow* w = activeTableWindow();
            const QString text = QApplication::clipboard()->text();
            if (w && text.startsWith(QLatin1String("$CopyData")))
                w->Paste(text.toStdString());
            else if (w)
                w->PasteText(text);
        },
        idleTable);
    r.Bind(Command::AddLine, withTable(&TableWindow::AddLine), idleTable);
    r.Bind(Command::InsertLine, withTable(&TableWindow::InsertLine), idleTable);
    r.Bind(Command::DeleteLine, withTable(&TableWindow::DeleteLine), idleTable);
    r.Bind(Command::ClearTable, withTable(&TableWindow::ClearTable), idleTable);
    r.Bind(Command::AbortEdit, withTable(&TableWindow::AbortEdit), [this] {
        return state_->document().FileOpen && activeTableWindow() && state_->session().GridEditing;
    });

    r.Bind(
        Command::NewNetlistTab, [&s] { NewNetlistCommand(s); }, open);
    const auto deletable = [this] {
        const std::string active =
            state_->project().ActiveNetlist ? state_->project().ActiveNetlist->NetlistName : "";
        return state_->document().FileOpen && frame_->TabCount() > 1 && active != kMain &&
               active != kManualNetlists;
    };
    r.Bind(
        Command::DeleteNetlistTab, [&s] { DeleteNetlistCommand(s); }, deletable);
    r.Bind(
        Command::RenameNetlistTab, [&s] { RenameNetlistCommand(s); }, deletable);

    r.Bind(
        Command::ViewAllTables, [this] { showAllTables(); }, open);
    r.Bind(
        Command::HideAllTables,
        [this] {
            if (state_->project().ActiveNetlist)
                state_->project().ActiveNetlist->HideVisibleTables();
        },
        open);
    // The manual netlists have their fixture and code rows only: no harness
    // table to open, nothing to arrange.
    const auto onHarness = [this] {
        const CNetList* active = state_->project().ActiveNetlist;
        return state_->document().FileOpen && !(active && active->NetlistType == 1);
    };
    for (const TableCommand& t : kTableCommands) {
        CommandRegistry::Condition when = onHarness;
        if (t.table == table::Fixture || t.table == table::Message)
            when = open;
        else if (KindOf(t.table).wiresMethod)
            when = [this, onHarness] { return onHarness() && !groupMethod(); };
        else if (t.table == table::Switches)
            when = [this, onHarness] {
                return onHarness() && state_->params().Number(param::Switches) != 0;
            };
        r.Bind(
            t.command, [this, n = t.table] { showTable(n); }, when);
    }

    r.Bind(
        Command::Sequence, [this] { setSequenceShown(Action(Command::Sequence)->isChecked()); },
        open);
    r.BindChecked(Command::Sequence, [&s] { return s.session().SequenceVisible; });
    r.Bind(
        Command::Descriptions, [this] { toggleDescriptions(); }, open);

    const auto arrangeable = [this] {
        return state_->document().FileOpen && state_->project().ActiveNetlist &&
               state_->project().ActiveNetlist->VisibleCount > 0;
    };
    const auto tileable = [arrangeable, onHarness] { return arrangeable() && onHarness(); };
    r.Bind(
        Command::TileHorizontally, [this] { arrange(Arrangement::TileHorizontally); }, tileable);
    r.Bind(
        Command::TileVertically, [this] { arrange(Arrangement::TileVertically); }, tileable);
    r.Bind(
        Command::Cascade, [this] { arrange(Arrangement::Cascade); }, tileable);
    r.Bind(
        Command::Default, [this] { resetWindowLayouts(); }, arrangeable);
    r.Bind(
        Command::SaveNewDefault, [this] { saveNewDefaultLayout(); }, arrangeable);

    r.Bind(Command::MainToolbar,
           [this] { mainToolbar_->setVisible(Action(Command::MainToolbar)->isChecked()); });
    bindHelpCommands();
    r.Bind(
        Command::NetlistToolbar,
        [this] { strip_->SetToolbarVisible(Action(Command::NetlistToolbar)->isChecked()); }, open);

    bindSettingsCommands();
    bindFindCommands();
    bindViewCommands();
    // With no project open the tutorial is a Help tool: its own box explains a
    // last project of the wires method.
    r.Bind(
        Command::GroupsTutorial, [this] { startTutorial(); },
        [this] {
            return !state_->session().TutorialActive &&
                   (!state_->document().FileOpen || groupMethod());
        });

    // The start-up check: a command in the menus with nothing behind it is a dead entry.
    if (const auto missing = commands_.Unbound(); !missing.empty())
        throw std::logic_error(std::string("command without a handler: ") +
                               Definition(missing.front()).id);
}

QAction* MainWindow::Action(Command command) const {
    return actions_[static_cast<std::size_t>(command)];
}

QAction* MainWindow::Action(const QString& id) const {
    const auto command = CommandNamed(id.toStdString());
    return command ? Action(*command) : nullptr;
}

void MainWindow::ToolClick(const QString& id) {
    if (const auto command = CommandNamed(id.toStdString()))
        ToolClick(*command);
}

void MainWindow::refreshCommands() {
    const bool tutorial = state_->session().TutorialActive;
    for (const CommandDef& c : Commands()) {
        QAction* action = Action(c.command);
        action->setEnabled(commands_.Enabled(c.command) &&
                           !(tutorial && heldByTutorial(c.command)));
        if (const auto checked = commands_.Checked(c.command))
            action->setChecked(*checked);
    }
}

bool MainWindow::groupMethod() const {
    return state_->params().Val(param::Group).text() == "True";
}

void MainWindow::UpdateControls() {
    updateWorkspaceHint();
    refreshCommands();
    // "&Undo Delete Pin Record": the menu and the tooltip say what the step takes
    // back; the toolbar button keeps its short text, so the tools beside it stay put.
    const std::pair<Command, std::string> steps[] = {{Command::Undo, history().UndoText()},
                                                     {Command::Redo, history().RedoText()}};
    for (const auto& [command, text] : steps) {
        QAction* action = Action(command);
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
