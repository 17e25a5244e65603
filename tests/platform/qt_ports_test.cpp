#include "platform/qt_settings_store.h"
#include "platform/qt_ui.h"
#include "support/qt_app.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
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

TEST(QtUi, ButtonsIconsAndAnswersMapBothWays) {
    const std::pair<Buttons, QMessageBox::StandardButtons> buttons[] = {
        {Buttons::Ok, QMessageBox::Ok},
        {Buttons::OkCancel, QMessageBox::Ok | QMessageBox::Cancel},
        {Buttons::YesNoCancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
        {Buttons::YesNo, QMessageBox::Yes | QMessageBox::No},
    };
    for (const auto& [ours, qt] : buttons)
        EXPECT_EQ(QtButtonsOf(ours), qt);
    EXPECT_EQ(QtIconOf(Icon::Stop), QMessageBox::Critical);
    EXPECT_EQ(QtIconOf(Icon::Warning), QMessageBox::Warning);
    EXPECT_EQ(AnswerOf(QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(AnswerOf(QMessageBox::No), Answer::No);
    EXPECT_EQ(AnswerOf(QMessageBox::Cancel), Answer::Cancel);
    MessageBox second{"c", "t", Buttons::YesNoCancel, Icon::Question, 2};
    EXPECT_EQ(QtDefaultButtonOf(second), QMessageBox::No);
}

TEST(QtUi, AMessageBoxAnswersWithTheButtonPressed) {
    test::QtApp();
    QtUi ui;
    // Press the default button as soon as the box is up.
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* box = qobject_cast<QMessageBox*>(w))
                box->defaultButton()->click();
    });
    const Answer answer =
        ui.Show({"Save", "Save changes?", Buttons::YesNoCancel, Icon::Question, 2});
    EXPECT_EQ(answer, Answer::No);
}

} // namespace
} // namespace zolt
