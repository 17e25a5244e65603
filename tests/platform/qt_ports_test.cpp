#include "platform/help_browser.h"
#include "platform/qt_document_viewer.h"
#include "platform/qt_settings_store.h"
#include "platform/qt_ui.h"
#include "support/qt_app.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <gtest/gtest.h>

namespace zolt {
namespace {

TEST(QtSettingsStore, KeepsSectionsAndTheApplicationNodeApart) {
    QTemporaryDir dir;
    const QString file = dir.filePath("zolt.ini");
    {
        QtSettingsStore store(file);
        EXPECT_EQ(store.Read("User Settings", "PIDDirectory"), std::nullopt);
        store.Write("User Settings", "PIDDirectory", "/data/pid");
        store.Write("", "LgTlbrImages", "True");
        store.Write("Comm Settings", "LgTlbrImages", "other");
    }
    QtSettingsStore again(file);
    EXPECT_EQ(again.Read("User Settings", "PIDDirectory"), "/data/pid");
    EXPECT_EQ(again.Read("", "LgTlbrImages"), "True");
    EXPECT_EQ(again.Read("Comm Settings", "LgTlbrImages"), "other");
    EXPECT_EQ(again.ReadOr("", "TlbrTextState", "2"), "2");
}

// No browser is needed for the help pages: they show in the program's own window.
TEST(QtDocumentViewer, ShowsLocalPagesInItsOwnHelpWindow) {
    test::QtApp();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("page.html"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "<html><head><title>Pins</title></head><body>Every pin of a connector</body></html>");
    file.close();
    QtDocumentViewer viewer;
    EXPECT_EQ(viewer.Open(path.toStdString()), ViewFailure::None);
    ASSERT_NE(viewer.Browser(), nullptr);
    EXPECT_TRUE(viewer.Browser()->isVisible());
    EXPECT_EQ(viewer.Browser()->windowTitle(), QStringLiteral("Pins"));
    EXPECT_TRUE(viewer.Browser()->Browser().toPlainText().contains(QStringLiteral("Every pin")));
}

// A long title over a short text: the box is as wide as its title, and answers
// with the button pressed.
TEST(QtUi, ABoxIsWideEnoughForItsTitleAndAnswersWithTheButtonPressed) {
    test::QtApp();
    QtUi ui;
    const QString title = QStringLiteral("Warning: Connector Table will be overwritten.");
    int width = 0;
    // Press the default button as soon as the box is up.
    QTimer::singleShot(0, [&width] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* box = qobject_cast<QMessageBox*>(w); box && box->isVisible()) {
                width = box->width();
                box->defaultButton()->click();
            }
    });
    const Answer answer =
        ui.Show({title.toStdString(), "OK?", Buttons::YesNoCancel, Icon::Question, 2});
    EXPECT_EQ(answer, Answer::No);
    EXPECT_GE(width, QFontMetrics(QApplication::font()).horizontalAdvance(title));
}

} // namespace
} // namespace zolt
