#include "core/table_kinds.h"
#include "desktop.h"
#include "settings/table_appearance.h"
#include "shell/file_settings_dialog.h"
#include "shell/properties_dialog.h"
#include "shell/table_appearance.h"
#include "shell/zolt_settings_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using settings::Field;
using test_desktop::Desktop;

void leaveField(QLineEdit* edit, const QString& text) {
    edit->setText(text);
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(edit, &out);
    QCoreApplication::processEvents();
}

TEST(FileSettingsDialog, LockedBoxesOpenOnlyInPrivilegedMode) {
    Desktop d;
    d.window.state().params().SetVal(param::LampPinAllowed, Value(std::int32_t{0}));
    FileSettingsDialog dialog(d.window.state());
    EXPECT_FALSE(dialog.Check(param::LampPin)->isEnabled());
    EXPECT_FALSE(dialog.AllowedCheck(param::LampPin)->isVisibleTo(&dialog));
    dialog.pages().setCurrentIndex(1);
    EXPECT_FALSE(dialog.Edit(Field::CompLogMask)->isVisibleTo(&dialog));
    EXPECT_NE(dialog.findChild<QAction*>(QStringLiteral("cmdHotkey")), nullptr);

    dialog.Unlock(QStringLiteral("Analyst"), QStringLiteral("wiremaps"));
    EXPECT_TRUE(dialog.Check(param::LampPin)->isEnabled());
    dialog.pages().setCurrentIndex(0);
    EXPECT_TRUE(dialog.AllowedCheck(param::LampPin)->isVisibleTo(&dialog));
    dialog.pages().setCurrentIndex(1);
    EXPECT_TRUE(dialog.Edit(Field::CompLogMask)->isVisibleTo(&dialog));
    dialog.reject();
    EXPECT_FALSE(d.window.state().session().PrivilegedMode);
}

TEST(FileSettingsDialog, AFieldIsCheckedWhenItLosesTheFocusAndOkChecksAgain) {
    Desktop d;
    FileSettingsDialog dialog(d.window.state());
    dialog.show();
    leaveField(dialog.Edit(Field::TestResistance), QStringLiteral("999"));
    ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.ui.ShownBoxes()[0].text, "Resistance Value Must Be Between 1000 and 5000");
    EXPECT_EQ(dialog.pages().currentIndex(), 1);
    // Leaving the refused text again only takes the focus back: one box a refusal.
    dialog.pages().setCurrentIndex(0);
    leaveField(dialog.Edit(Field::TestResistance), QStringLiteral("999"));
    EXPECT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(dialog.pages().currentIndex(), 1);

    dialog.accept();
    EXPECT_EQ(d.ui.ShownBoxes().size(), 2u);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(d.window.state().IsDirty());

    leaveField(dialog.Edit(Field::TestResistance), QStringLiteral("2000"));
    EXPECT_EQ(dialog.Edit(Field::Threshold)->text(), QStringLiteral("4"));
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_DOUBLE_EQ(d.window.state().params().Number(param::Threshold), 4.0);
    EXPECT_TRUE(d.window.state().IsDirty());
}

// A question cancelled puts its box back; Escape then writes nothing.
TEST(FileSettingsDialog, CancelledQuestionPutsTheCheckBackAndEscapeWritesNothing) {
    Desktop d;
    d.window.state().params().SetVal(param::ManualNet, Value(std::int32_t{1}));
    AddNetlist(d.window.state(), kManualNetlists);
    d.window.state().SetDirty(false);
    FileSettingsDialog dialog(d.window.state());
    dialog.show();
    d.ui.Queue(Answer::Cancel);
    dialog.Check(param::ManualNet)->click();
    EXPECT_TRUE(dialog.Check(param::ManualNet)->isChecked());
    ASSERT_EQ(d.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.ui.ShownBoxes()[0].buttons, Buttons::OkCancel);
    dialog.Check(param::UpperCase)->click();
    dialog.GroupOption()->click();
    test::Key(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(d.window.state().params().Val(param::UpperCase).text(), "0");
    EXPECT_EQ(d.window.state().params().Val(param::Group).text(), "False");
    EXPECT_FALSE(d.window.state().IsDirty());
}

TEST(FileSettingsDialog, GroupMethodTakesTheWiresTablesOutOfTheMenusAndTheWorkspace) {
    Desktop d;
    ASSERT_TRUE(d.window.Action("ID_Wires")->isEnabled());
    d.open("ID_Wires", table::Wire);
    d.open("ID_Pins", table::Pin);
    FileSettingsDialog dialog(d.window.state());
    dialog.GroupOption()->click();
    dialog.accept();
    d.window.UpdateControls();
    EXPECT_FALSE(d.window.Action("ID_Wires")->isEnabled());
    EXPECT_FALSE(d.window.Action("ID_Pins")->isEnabled());
    EXPECT_TRUE(d.window.Action("ID_Groups")->isEnabled());
    EXPECT_FALSE(d.frameOf(table::Wire)->isVisible()) << "no window with its commands greyed";
    EXPECT_FALSE(d.frameOf(table::Pin)->isVisible());
}

TEST(PropertiesDialog, EnterMovesThroughTheFieldsAndOnToTheNextPage) {
    Desktop d;
    d.window.state().params().SetVal(param::Author, Value("Ann"));
    PropertiesDialog dialog(d.window.state());
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    const auto& fields = dialog.fields();
    ASSERT_EQ(fields.size(), 25u);
    EXPECT_EQ(qobject_cast<QLineEdit*>(fields[2])->text(), QStringLiteral("Ann"));
    fields[0]->setFocus();
    test::Key(fields[0], Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), fields[1]);
    EXPECT_TRUE(dialog.isVisible());
    fields[8]->setFocus();
    test::Key(fields[8], Qt::Key_Enter);
    EXPECT_EQ(dialog.pages().currentIndex(), 1);
    EXPECT_EQ(QApplication::focusWidget(), fields[9]);

    qobject_cast<QLineEdit*>(fields[9])->setText(QStringLiteral("Line"));
    test::Key(fields[9], Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(d.window.state().params().Text(param::CustomTitle[0]), "");
}

TEST(PropertiesDialog, OkWritesEveryFieldAndMarksTheProjectChanged) {
    Desktop d;
    PropertiesDialog dialog(d.window.state());
    qobject_cast<QLineEdit*>(dialog.fields()[0])->setText(QStringLiteral("PN-7"));
    qobject_cast<QPlainTextEdit*>(dialog.fields()[8])->setPlainText(QStringLiteral("a\nb"));
    dialog.accept();
    EXPECT_EQ(d.window.state().params().Text(param::PartNumber), "PN-7");
    EXPECT_EQ(d.window.state().params().Text(param::Notes), "a\nb");
    EXPECT_TRUE(d.window.state().IsDirty());
}

TEST(ZoltSettingsDialog, AMissingDirectoryKeepsTheDialogOpenOnThatField) {
    Desktop d;
    const QTemporaryDir folder;
    ZoltSettingsDialog dialog(d.window.state(), {});
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    for (int i = 0; i < 5; ++i)
        dialog.DirectoryEdit(i)->setText(folder.path());
    dialog.DirectoryEdit(2)->setText(folder.filePath("none"));
    dialog.pages().setCurrentIndex(ZoltSettingsDialog::SerialPort);
    dialog.accept();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(d.ui.ShownBoxes().at(0).text, "Invalid Directory or Drive Not Available");
    EXPECT_EQ(dialog.pages().currentIndex(), ZoltSettingsDialog::Directories);
    EXPECT_EQ(QApplication::focusWidget(), dialog.DirectoryEdit(2));
}

TEST(ZoltSettingsDialog, ABadConnectorPrefixKeepsTheDialogOpenOnItsField) {
    Desktop d;
    const QTemporaryDir folder;
    ZoltSettingsDialog dialog(d.window.state(), {});
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    EXPECT_EQ(dialog.connectorPrefixes().text(), QStringLiteral("J,P,X"));
    for (int i = 0; i < 5; ++i)
        dialog.DirectoryEdit(i)->setText(folder.path());
    dialog.connectorPrefixes().setText(QStringLiteral("J,P2"));
    dialog.accept();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(d.ui.ShownBoxes().at(0).caption, "Connector Prefixes");
    EXPECT_EQ(dialog.pages().currentIndex(), ZoltSettingsDialog::Drawings);
    EXPECT_EQ(QApplication::focusWidget(), &dialog.connectorPrefixes());

    dialog.connectorPrefixes().setText(QStringLiteral("j, cn"));
    dialog.accept();
    ASSERT_EQ(dialog.result(), QDialog::Accepted);
    ZoltSettingsDialog again(d.window.state(), {});
    EXPECT_EQ(again.connectorPrefixes().text(), QStringLiteral("J,CN"));
}

TEST(ZoltSettingsDialog, TheTableLookGoesToTheOpenWindowsAndIsKept) {
    Desktop d;
    const QTemporaryDir folder;
    TableWindow& connectors = d.open("ID_Connectors", table::Connector);
    d.window.ToolClick("ID_Messages");
    auto* messages =
        static_cast<TableWindow*>(d.window.windows().WindowOf(table::Message, 0)->widget());
    ZoltSettingsDialog dialog(d.window.state(), [&](const settings::TableAppearance& look) {
        ApplyTableAppearance(d.window.workspace(), look);
    });
    for (int i = 0; i < 5; ++i)
        dialog.DirectoryEdit(i)->setText(folder.path());
    settings::TableAppearance look;
    look.netlistTables.pointSize = 17;
    look.sequenceText.background = "#ffffe0";
    dialog.SetAppearance(look);
    EXPECT_EQ(dialog.sample(false).font().pointSize(), 17);
    dialog.accept();
    ASSERT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(connectors.grid().font().pointSize(), 17);
    EXPECT_NE(messages->grid().font().pointSize(), 17);
    EXPECT_EQ(messages->grid().palette().color(QPalette::Base), QColor(0xff, 0xff, 0xe0));
    EXPECT_EQ(settings::LoadTableAppearance(d.settings), look);

    // A window opened later takes the kept look too.
    d.window.ToolClick("ID_Fixture");
    auto* fixture =
        static_cast<TableWindow*>(d.window.windows().WindowOf(table::Fixture, 0)->widget());
    EXPECT_EQ(fixture->grid().font().pointSize(), 17);

    ZoltSettingsDialog again(d.window.state(), {});
    EXPECT_EQ(again.appearance(), look);
    again.findChild<QPushButton*>(QStringLiteral("cmdReset"))->click();
    EXPECT_EQ(again.appearance(), settings::TableAppearance{});
}

TEST(ZoltSettingsDialog, OpensOnItsDirectoriesWhenADefaultPathIsMissingAtStart) {
    test::QtApp();
    const QTemporaryDir folder;
    ScriptedUi ui;
    MemorySettingsStore settings;
    settings.Write("User Settings", "PIDDirectory", folder.filePath("no/such").toStdString());
    QString opened;
    int page = -1;
    // Watches for the dialog while the window loads; it goes with the test.
    QTimer watch;
    watch.setInterval(10);
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<ZoltSettingsDialog*>(QApplication::activeModalWidget())) {
            opened = dialog->objectName();
            page = dialog->pages().currentIndex();
            dialog->reject();
        }
    });
    watch.start();
    MainWindow window(ui, settings);
    watch.stop();
    EXPECT_EQ(opened, QStringLiteral("frmZoltSettings"));
    EXPECT_EQ(page, ZoltSettingsDialog::Directories);
}

} // namespace
} // namespace zolt::shell
