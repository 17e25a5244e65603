#pragma once

#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "shell/main_window.h"
#include "shell/table_window.h"
#include "support/qt_app.h"
#include "support/qt_keys.h"
#include "support/scratch_folder.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTableView>
#include <chrono>
#include <filesystem>

namespace zolt::shell::test_desktop {

// Runs the event loop until `done` holds or the time is up; says whether it holds.
template <typename Done>
bool RunUntil(Done done, std::chrono::milliseconds limit = std::chrono::seconds{10}) {
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < limit.count())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return done();
}

// The main window at its design size over a new project, answering from a script.
struct Desktop {
    QApplication& app = zolt::test::QtApp();
    ScriptedUi ui;
    MemorySettingsStore settings;
    MainWindow window{ui, settings};

    Desktop() {
        window.resize(1280, 800);
        window.show();
        QApplication::setActiveWindow(&window);
        NewProject(window.state());
        window.UpdateControls();
    }
    QMdiSubWindow* frameOf(TableId table) {
        return window.windows().WindowOf(table,
                                         window.state().project().ActiveNetlist->netlistIndex);
    }
    TableWindow& open(const char* command, TableId table) {
        window.ToolClick(command);
        return *static_cast<TableWindow*>(frameOf(table)->widget());
    }
    // Where keys go: the open cell editor, else the grid.
    static QWidget* target(TableWindow& w) {
        QWidget* focus = QApplication::focusWidget();
        return focus && w.grid().isAncestorOf(focus) ? focus : &w.grid();
    }
    // The edit box of the open cell, a drop-down's included.
    static QLineEdit* cell() {
        QWidget* focus = QApplication::focusWidget();
        if (auto* combo = qobject_cast<QComboBox*>(focus))
            return combo->lineEdit();
        return qobject_cast<QLineEdit*>(focus);
    }
    // Types into the cell under the cursor and leaves it with Tab.
    static void type(TableWindow& w, const QString& text) {
        zolt::test::Type(target(w), text);
        zolt::test::Key(target(w), Qt::Key_Tab);
    }
    static void addRow(TableWindow& w, const std::vector<QString>& cells) {
        w.AddLine();
        for (const auto& c : cells)
            type(w, c);
        zolt::test::Key(&w.grid(), Qt::Key_Return);
    }
};

// The desktop with a copy of a shipped example opened from a folder of its own.
struct ExampleDesktop : Desktop {
    zolt::test::ScratchFolder folder;
    std::filesystem::path program;

    explicit ExampleDesktop(const char* example = "harness.zlf", QSize size = {1280, 800})
        : program(folder.path() / example) {
        window.resize(size);
        QApplication::processEvents();
        std::filesystem::copy_file(
            std::filesystem::path(ZOLT_TEST_DATA_DIR) / "../../examples" / example, program);
        ui.Queue(ScriptedUi::TextAnswer{program.string()});
        window.ToolClick("ID_Open");
    }
};

} // namespace zolt::shell::test_desktop
