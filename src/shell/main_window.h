#pragma once

#include "core/ports/clock.h"
#include "core/ports/document_viewer.h"
#include "core/program_state.h"
#include "file/document_lifecycle.h"
#include "platform/qt_frame_controls.h"
#include "platform/qt_window_registry.h"
#include "shell/command_registry.h"
#include "shell/window_layouts.h"

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <functional>
#include <memory>

class QDialog;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;

namespace zolt {
class DataTable;
struct EditPlace;
class Ui;
class SettingsStore;
} // namespace zolt

namespace zolt::compare {
struct Difference;
}

namespace zolt::tutorial {
struct StepFocus;
} // namespace zolt::tutorial

namespace zolt::shell {

class DebugWindow;
class HelpViewer;
class FindDialog;
class FindReplaceDialog;
class QtDetailDialogs;
class SequenceWindow;
class TabStrip;
class TableWindow;
class ToolbarSet;
class TutorialWindow;

// The one main window: workspace of table windows, menus and toolbars built
// from the command table, the netlist tab strip and the status bar. Every
// command arrives at `ToolClick`.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(Ui& ui, SettingsStore& settings, QWidget* parent = nullptr);
    ~MainWindow() override;

    ProgramState& state() { return *state_; }
    QtFrameControls& frame() { return *frame_; }
    QtWindowRegistry& windows() { return *windows_; }
    QMdiArea& workspace() const { return *mdi_; }
    TabStrip& tabStrip() const { return *strip_; }
    QAction* Action(Command command) const;
    // The action of a tool identifier from data (a toolbar layout, a test);
    // nullptr when no command has it.
    QAction* Action(const QString& id) const;
    const CommandRegistry& commands() const { return commands_; }

    // Runs a command; a failing command leaves the project as it stands.
    void ToolClick(Command command);
    // The same by tool identifier; an unknown one does nothing.
    void ToolClick(const QString& id);
    void UpdateControls();
    QString PanelText(int panel) const;
    // Where the Ui port's status panels and debug lines land.
    void SetPanelText(int panel, const QString& text);
    void AppendDebugLine(const QString& line);
    // Opens the program named on the command line, once the window is up.
    void OpenFromCommandLine(const QString& path);
    file::DocumentLifecycle& document() { return *document_; }
    EditHistory& history() { return state_->history(); }
    ToolbarSet& toolbars() const { return *toolbars_; }
    // Where help pages and web pages are shown; the system's browser unless replaced.
    void UseDocumentViewer(std::unique_ptr<DocumentViewer> viewer);
    // The running groups tutorial's window; nullptr when none runs.
    TutorialWindow* tutorialWindow() const { return tutorial_.get(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void buildCommands();
    // Every command's handler and enabled-when (main_window_commands.cpp).
    void bindCommands();
    bool groupMethod() const;
    // Every action's enabled and checked marks from the registry.
    void refreshCommands();
    // File Settings, Properties, ZOLT Settings (main_window_settings.cpp).
    void bindSettingsCommands();
    void openZoltSettings(bool onDirectories);
    // A new table window takes the table look of the settings.
    void applyTableAppearance(QWidget& content);
    void buildStatusBar();
    void loadSettings();
    void saveSettings();
    // The help, the toolbars and About (main_window_help.cpp).
    void bindHelpCommands();
    void showHelp();
    void configureToolbars();
    void syncToolbarChecks();
    void showAbout();
    void onTabClicked(int index);
    void showTable(TableId tableIndex);
    void showAllTables();
    QMdiSubWindow* makeTableWindow(TableId tableIndex, int netlistIndex);
    void toggleDebugWindow();
    // Table windows' own content and the sequence commands (main_window_tables.cpp).
    QWidget* makeTableContent(DataTable& table);
    void toggleDescriptions();
    SequenceWindow* sequenceWindow() const;
    void setSequenceShown(bool shown);
    // Documents, undo and the editing commands (main_window_document.cpp).
    // Runs a document command; a project replaced or released starts its history anew.
    // A project read back after a save keeps its open windows, one newly opened gets the
    // start tables.
    void documentCommand(const std::function<void()>& command, bool keepWindows = false);
    void clipboardCommand(bool cut);
    void afterDocumentChange();
    void importPid();
    void importDrawing();
    void recordEdit();
    void stepHistory(bool undo);
    // Brings the tab, the table and the rows of an undone or redone step to the front.
    void showEditPlace(const EditPlace& place);
    TableWindow* activeTableWindow() const;
    // The window whose row is being typed, if any.
    TableWindow* editingTableWindow() const;
    // Find, replace and the copies of a table (main_window_find.cpp).
    void bindFindCommands();
    void openFind(bool replace);
    void copyTable(bool fromFile);
    // The workspace (main_window_workspace.cpp): which tables show, the start tables
    // of a program just opened, the hint on an empty workspace, the Window menu's list.
    std::vector<TableId> shownTables() const;
    void showTables(const std::vector<TableId>& tables);
    void openStartTables();
    // The hint and the Window menu's list, once at construction.
    void buildWorkspaceAids();
    void updateWorkspaceHint();
    // A window hidden or closed hands the keyboard to the topmost one still shown.
    void activateTopWindow();
    void listWindows(QMenu& menu);
    // The GRV menu (main_window_assembly.cpp).
    void bindAssemblyCommands();
    void grvTestCompile();
    // Window places (main_window_layouts.cpp).
    void arrange(Arrangement arrangement);
    void resetWindowLayouts();
    void saveNewDefaultLayout();
    void saveWindowLayout(const QMdiSubWindow& window);
    void saveAllWindowLayouts();
    // Print dialogs and the print of the active window (main_window_reports.cpp).
    void printActiveWindow();
    void runPrintDialog(bool family);
    // Whether the active window shows a table the toolbar's print can print.
    bool activeWindowPrintable() const;
    // Simulate, Compare with and Verify against drawing (main_window_views.cpp): windows
    // over the program as it was when they opened, closed when another is opened.
    void bindViewCommands();
    void simulate();
    void compareWith();
    void verifyAgainstDrawing();
    void showView(QDialog* view);
    // showEditPlace, the views kept clear of the table brought to the front.
    void showViewPlace(const EditPlace& place);
    // Brings the row of the open program a difference is about to the front, or its table
    // when the row is only in the other; false when no row was selected.
    bool showDifference(const compare::Difference& difference);
    void closeViews();
    // The groups tutorial over its own example project (main_window_tutorial.cpp).
    void startTutorial();
    void showTutorialFocus(const tutorial::StepFocus& focus);
    // Moves a window that floats above the workspace (the tutorial, Simulate, a list of
    // differences) to the corner of it that hides least of `window`.
    void keepClearOf(QWidget& floating, const QMdiSubWindow& window);
    void endTutorial();
    // The user closes a table window: false when an open edit is kept.
    bool closeTableWindow(QMdiSubWindow& window);

    Ui& ui_;
    SettingsStore& settings_;
    QMdiArea* mdi_;
    TabStrip* strip_;
    QToolBar* mainToolbar_;
    QMenu* popup_;
    QLabel* panels_[3];
    QLabel* hint_;
    std::unique_ptr<QtFrameControls> frame_;
    std::unique_ptr<QtWindowRegistry> windows_;
    std::unique_ptr<ProgramState> state_;
    std::unique_ptr<DebugWindow> debug_;
    std::unique_ptr<QtDetailDialogs> details_;
    SystemClock clock_;
    std::unique_ptr<file::DocumentLifecycle> document_;
    std::unique_ptr<WindowLayouts> layouts_;
    std::unique_ptr<ToolbarSet> toolbars_;
    std::unique_ptr<DocumentViewer> viewer_;
    std::unique_ptr<HelpViewer> help_;
    CommandRegistry commands_;
    std::array<QAction*, kCommandCount> actions_{};
    QPointer<FindDialog> find_;
    QPointer<FindReplaceDialog> replace_;
    std::unique_ptr<TutorialWindow> tutorial_;
    std::vector<QPointer<QDialog>> views_;
};

} // namespace zolt::shell
