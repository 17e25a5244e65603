#include "shell/main_window.h"

#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/settings_store.h"
#include "core/ports/ui.h"
#include "core/table_kinds.h"
#include "file/blank_template.h"
#include "file/program_format.h"
#include "file/table_factory.h"
#include "interchange/open_formats.h"
#include "platform/data_locations.h"
#include "platform/qt_document_viewer.h"
#include "sequence/program_kind.h"
#include "shell/command_table.h"
#include "shell/compiler_window.h"
#include "shell/debug_window.h"
#include "shell/detail_dialogs.h"
#include "shell/help_documents.h"
#include "shell/mnemonics.h"
#include "shell/tab_strip.h"
#include "shell/table_model.h"
#include "shell/table_window.h"
#include "shell/toolbar_set.h"
#include "shell/tutorial_window.h"
#include "tables/data_table.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QSysInfo>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <exception>

namespace zolt::shell {
namespace {

const char* const kDefaultSettings = "Default Settings";

bool isTrue(const std::string& text) {
    return text == "True";
}
const char* trueFalse(bool b) {
    return b ? "True" : "False";
}
// The toolbars and their tools.
QString toolbarLayoutFile() {
    return WritableDataFile(QStringLiteral("ZOLT.atb"));
}

} // namespace

MainWindow::MainWindow(Ui& ui, SettingsStore& settings, QWidget* parent)
    : QMainWindow(parent), ui_(ui), settings_(settings) {
    setObjectName(QStringLiteral("frmMDIMain"));
    setWindowTitle(QStringLiteral("Thessor ") + QString::fromUtf8(kAppTitle));

    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    strip_ = new TabStrip(central);
    mdi_ = new QMdiArea(central);
    mdi_->setObjectName(QStringLiteral("MDIWorkspace"));
    mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    layout->addWidget(strip_);
    layout->addWidget(mdi_, 1);
    setCentralWidget(central);

    frame_ = std::make_unique<QtFrameControls>(strip_->Tabs(), *strip_);
    windows_ = std::make_unique<QtWindowRegistry>(
        *mdi_, [this](TableId table, int netlist) { return makeTableWindow(table, netlist); });
    state_ = std::make_unique<ProgramState>(Ports{ui_, settings_, *windows_, *frame_}, MakeTable);
    details_ = std::make_unique<QtDetailDialogs>(this);
    state_->SetDetailDialogs(details_.get());
    frame_->SetCaptionWindow(*this);
    UseDocumentViewer(std::make_unique<QtDocumentViewer>());
    const std::string dataDirectory = DataDirectory().toStdString();
    layouts_ =
        std::make_unique<WindowLayouts>(settings_, WritableDataFile(QStringLiteral("ZOLT.DEF")));

    buildCommands();
    bindCommands();
    frame_->OnCommandsChanged([this] { refreshCommands(); });
    buildStatusBar();
    buildWorkspaceAids();
    connect(strip_, &TabStrip::TabClicked, this, &MainWindow::onTabClicked);
    // Queued: a window is also activated while a project is being torn down.
    connect(
        mdi_, &QMdiArea::subWindowActivated, this,
        [this] {
            state_->ShowRecordCount(true);
            UpdateControls();
        },
        Qt::QueuedConnection);
    loadSettings();
    auto formats = std::make_shared<file::ProgramFormats>();
    interchange::RegisterOpenFormats(*formats, clock_, dataDirectory);
    document_ = std::make_unique<file::DocumentLifecycle>(
        *state_,
        file::DocumentEnvironment{clock_, QSysInfo::machineHostName().toStdString(), dataDirectory,
                                  [this] { UpdateControls(); }, std::move(formats)});
    strip_->setVisible(false);
    UpdateControls();
}

MainWindow::~MainWindow() {
    // Nothing is left to enable while the program state goes.
    frame_->OnCommandsChanged({});
    // Table windows and the tutorial show rows the program state owns: they go first.
    tutorial_.reset();
    disconnect(mdi_, nullptr, this, nullptr);
    for (QMdiSubWindow* w : mdi_->subWindowList())
        delete w;
    state_.reset();
}

void MainWindow::buildCommands() {
    mainToolbar_ = addToolBar(tr("Main Toolbar"));
    mainToolbar_->setObjectName(QStringLiteral("MainToolbars"));
    mainToolbar_->setIconSize(QSize(20, 20));
    popup_ = new QMenu(tr("PopNetlist"), this);
    std::map<std::string, QMenu*> menus;
    for (const std::string& name : MenuBarMenus())
        menus[name] = nullptr;
    // Menus appear in their fixed order, only when they hold a command.
    for (const std::string& name : MenuBarMenus())
        for (const auto& c : Commands())
            if (c.menu == name && !menus[name]) {
                const QString title = QString::fromStdString(name);
                menus[name] = menuBar()->addMenu(QLatin1Char('&') + title);
                menus[name]->setObjectName(QStringLiteral("ID_mnu") +
                                           QString(title).remove(QLatin1Char(' ')));
            }
    for (const auto& c : Commands()) {
        auto* action = new QAction(QString::fromUtf8(c.caption), this);
        action->setObjectName(QString::fromUtf8(c.id));
        action->setCheckable(c.checkable);
        if (c.icon >= 0)
            action->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(c.icon)));
        if (*c.shortcut)
            action->setShortcut(QKeySequence(QString::fromUtf8(c.shortcut)));
        connect(action, &QAction::triggered, this,
                [this, command = c.command] { ToolClick(command); });
        actions_[static_cast<std::size_t>(c.command)] = action;
        // A command of a toolbar only has no menu.
        if (QMenu* menu = menus[c.menu]) {
            if (c.separatorBefore && !menu->isEmpty())
                menu->addSeparator();
            menu->addAction(action);
        }
        if (c.netlistToolbar)
            TabStrip::UseShortCaption(*action, c.command);
    }
    toolbars_ = std::make_unique<ToolbarSet>(
        *this, *mainToolbar_, strip_->Toolbar(),
        [this](const std::string& id) { return Action(QString::fromStdString(id)); },
        [this](bool visible) { strip_->SetToolbarVisible(visible); });
    for (const Command command :
         {Command::NewNetlistTab, Command::DeleteNetlistTab, Command::RenameNetlistTab})
        popup_->addAction(Action(command));
    strip_->SetPopup(popup_);

    auto* debug = new QAction(tr("Debug Window"), this);
    debug->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+D")));
    connect(debug, &QAction::triggered, this, &MainWindow::toggleDebugWindow);
    addAction(debug);
}

void MainWindow::buildStatusBar() {
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    for (int i = 0; i < 3; ++i) {
        panels_[i] = new QLabel(this);
        panels_[i]->setObjectName(QStringLiteral("Panel%1").arg(i + 1));
        panels_[i]->setMinimumWidth(i == 2 ? 300 : 120);
        statusBar()->addWidget(panels_[i], i == 2 ? 1 : 0);
    }
}

void MainWindow::SetPanelText(int panel, const QString& text) {
    if (panel >= 1 && panel <= 3)
        panels_[panel - 1]->setText(text);
}

void MainWindow::AppendDebugLine(const QString& line) {
    if (debug_)
        debug_->Append(line);
}

QString MainWindow::PanelText(int panel) const {
    return panel >= 1 && panel <= 3 ? panels_[panel - 1]->text() : QString();
}

void MainWindow::loadSettings() {
    auto readOrWrite = [this](const std::string& key, const std::string& fallback) {
        const auto value = settings_.Read("", key);
        if (!value)
            settings_.Write("", key, fallback);
        return value.value_or(fallback);
    };
    toolbars_->SetLargeImages(isTrue(readOrWrite("LgTlbrImages", "False")));
    toolbars_->SetTextState(
        static_cast<int>(Value(readOrWrite("TlbrTextState", "2")).number().value_or(2)));
    if (toolbars_->Load(toolbarLayoutFile()) == ToolbarSet::Loaded::Damaged) {
        const std::string notice =
            "ZOLT.atb could not be read: the toolbars are back to the factory set.";
        // The Ui's status panel is connected only once the window is built.
        SetPanelText(3, QString::fromStdString(notice));
        ui_.SetStatusText(notice);
    }
    strip_->SetToolbarVisible(isTrue(readOrWrite("NetlistTlbrVisible", "True")));
    strip_->SetToolbarBelow(isTrue(settings_.ReadOr("", "NetlistTlbrBelow", "False")));
    syncToolbarChecks();
    state_->document().FileOpen = false;

    const QRect screen = QApplication::primaryScreen()
                             ? QApplication::primaryScreen()->availableGeometry()
                             : QRect(0, 0, 1280, 800);
    const QRect start = StartPlace(screen);
    auto number = [this](const char* key, int fallback) {
        return Value(settings_.ReadOr(kDefaultSettings, key, std::to_string(fallback)))
            .number()
            .value_or(fallback);
    };
    const int width = static_cast<int>(number("Main Form Width", start.width()));
    const int height = static_cast<int>(number("Main Form Height", start.height()));
    const int left = static_cast<int>(number("Main Form Left", start.x()));
    const int top = static_cast<int>(number("Main Form Top", start.y()));
    setGeometry(left, top, width, height);
    if (number("Main Form Window State", 0) == 2)
        setWindowState(Qt::WindowMaximized);

    state_->params().OnDirectoriesMissing([this] { openZoltSettings(true); });
    state_->params().LoadDirectoryParameters(true);
    state_->params().LoadCommParameters();
    // A fresh install offers New something to start from.
    file::InstallBlankTemplate(DataDirectory().toStdString(),
                               state_->params().Text(param::TemplatesDirectory));
}

void MainWindow::saveSettings() {
    settings_.Write("", "LgTlbrImages", trueFalse(toolbars_->LargeImages()));
    settings_.Write("", "NetlistTlbrVisible", trueFalse(strip_->ToolbarVisible()));
    settings_.Write("", "TlbrTextState", std::to_string(toolbars_->TextState()));
    settings_.Write("", "NetlistTlbrBelow", trueFalse(strip_->ToolbarBelow()));
    // A program folder the user may not write to keeps the last layout: nothing else is lost.
    toolbars_->Save(toolbarLayoutFile());
    debug_.reset();
    state_->DestroyAll();
    mdi_->closeAllSubWindows();
    const QRect g = normalGeometry();
    settings_.Write(kDefaultSettings, "Main Form Left", std::to_string(g.x()));
    settings_.Write(kDefaultSettings, "Main Form Top", std::to_string(g.y()));
    settings_.Write(kDefaultSettings, "Main Form Window State",
                    isMaximized()   ? "2"
                    : isMinimized() ? "1"
                                    : "0");
    if (!isMaximized() && !isMinimized()) {
        settings_.Write(kDefaultSettings, "Main Form Width", std::to_string(g.width()));
        settings_.Write(kDefaultSettings, "Main Form Height", std::to_string(g.height()));
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (state_->session().GridEditing && !state_->session().ForceFormClose) {
        if (ui_.Message("New data will be lost.", "Editing in Process", Buttons::OkCancel) !=
            Answer::Ok) {
            event->ignore();
            return;
        }
    }
    if (!document_->QueryUnload()) {
        event->ignore();
        return;
    }
    const std::string locked = state_->document().LockedFile;
    saveAllWindowLayouts();
    saveSettings();
    if (!locked.empty())
        document_->RemoveLockFile(locked);
    event->accept();
}

void MainWindow::onTabClicked(int index) {
    if (index < 0)
        return;
    std::string caption = strip_->Tabs().tabText(index).toStdString();
    const std::string active =
        state_->project().ActiveNetlist ? state_->project().ActiveNetlist->NetlistName : "";
    if (vb::UCase(vb::Trim(caption)) != vb::UCase(vb::Trim(active)))
        ActivateNetlist(*state_, caption);
    const CNetList* netlist = state_->project().ActiveNetlist;
    strip_->Tabs().setTabTextColor(strip_->Tabs().currentIndex(),
                                   netlist && netlist->NetlistType == 1 ? QColor(0, 0, 255)
                                                                        : QColor());
    UpdateControls();
}

void MainWindow::ToolClick(Command command) {
    try {
        commands_.Run(command);
    } catch (const std::exception& e) {
        ui_.Message(e.what(), kAppTitle, Buttons::Ok, Icon::Stop);
    }
    recordEdit();
    UpdateControls();
}

void MainWindow::showTable(TableId tableIndex) {
    if (!state_->project().ActiveNetlist)
        return;
    const bool projectWide = KindOf(tableIndex).scope == TableScope::Project;
    CNetList& owner =
        projectWide ? *state_->project().MainNetlist : *state_->project().ActiveNetlist;
    const bool wasEmpty = state_->project().ActiveNetlist->VisibleCount < 1;
    QMdiSubWindow* w = windows_->WindowOf(tableIndex, owner.netlistIndex);
    if (!w || !w->isVisible())
        state_->project().ActiveNetlist->AddToVisibleCount();
    windows_->ShowTable(tableIndex, owner.netlistIndex);
    if (wasEmpty)
        refreshCommands();
}

void MainWindow::showAllTables() {
    if (!state_->project().ActiveNetlist)
        return;
    const bool groupMethod = state_->params().Val(param::Group).text() == "True";
    // The manual netlists have a fixture and their code rows, no harness.
    const bool manual = state_->project().ActiveNetlist->NetlistType == 1;
    for (const TableId t :
         {table::Connector, table::Wire, table::Pin, table::Splice, table::Component, table::Groups,
          table::Fixture, table::Reversible, table::Code}) {
        const TableKind& kind = KindOf(t);
        const bool available =
            manual ? kind.onManualNetlists : kind.scope != TableScope::ManualNetlists;
        if (available && !(groupMethod && kind.wiresMethod))
            showTable(t);
    }
    // Every table at once is only of use when none hides another.
    Arrange(*mdi_, Arrangement::TileHorizontally);
}

QMdiSubWindow* MainWindow::makeTableWindow(TableId tableIndex, int netlistIndex) {
    CNetList* netlist = state_->project().NetlistByIndex(netlistIndex);
    auto* table = netlist ? dynamic_cast<DataTable*>(netlist->GetTable(tableIndex)) : nullptr;
    if (!table)
        return nullptr;
    QWidget* content = makeTableContent(*table);
    applyTableAppearance(*content);
    QMdiSubWindow* w = mdi_->addSubWindow(content);
    w->setAttribute(Qt::WA_DeleteOnClose, false);
    w->setWindowTitle(QString::fromStdString(TableCaption(tableIndex)));
    w->setWindowIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    windows_->Tag(*w, QString::fromStdString(TableFormName(tableIndex)), tableIndex, netlistIndex);
    w->resize(w->sizeHint());
    layouts_->Load(*w, content->findChild<QTableView*>());
    w->installEventFilter(this);
    return w;
}

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
    auto* w = qobject_cast<QMdiSubWindow*>(object);
    if (w && event->type() == QEvent::Close && !closeTableWindow(*w)) {
        event->ignore();
        return true;
    }
    // A table window keeps its place when it is hidden or closed.
    if (w && (event->type() == QEvent::Hide || event->type() == QEvent::Close))
        saveWindowLayout(*w);
    if (w && (event->type() == QEvent::Hide || event->type() == QEvent::Show)) {
        updateWorkspaceHint();
        // Once the windows of a tab change have all come and gone.
        QTimer::singleShot(0, this, [this] {
            updateWorkspaceHint();
            activateTopWindow();
            state_->ShowRecordCount(true);
        });
    }
    return QMainWindow::eventFilter(object, event);
}

bool MainWindow::closeTableWindow(QMdiSubWindow& window) {
    auto* table = window.widget() ? window.widget()->findChild<TableWindow*>() : nullptr;
    if (!table)
        table = qobject_cast<TableWindow*>(window.widget());
    if (table && table->model().IsEditing() && !state_->session().ForceFormClose) {
        if (ui_.Message("New data will be lost.", "Editing in Process", Buttons::OkCancel) !=
            Answer::Ok)
            return false;
        table->AbortEdit();
    }
    if (window.property("zoltTableIndex").toInt() == ToInt(table::Sequence)) {
        setSequenceShown(false);
    } else if (window.isVisible() && state_->project().ActiveNetlist) {
        state_->project().ActiveNetlist->RemoveFromVisibleCount();
        refreshCommands();
    }
    return true;
}

void MainWindow::toggleDebugWindow() {
    if (!debug_)
        debug_ = std::make_unique<DebugWindow>();
    debug_->setVisible(!debug_->isVisible());
    state_->session().DebugLogOn = debug_->isVisible();
}

} // namespace zolt::shell
