// Alt and a letter: the menu bar's letters win in every table window, and no two
// controls of a window or items of a menu share one.
#include "desktop.h"
#include "shell/mnemonics.h"
#include "shell/simulate_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

struct MnemonicCase {
    const char* name;
    std::vector<std::string> captions;
    std::string reserved;
    std::vector<std::string> expected;
};

class UniqueMnemonicsTest : public ::testing::TestWithParam<MnemonicCase> {};

TEST_P(UniqueMnemonicsTest, GiveWayToTheReservedAndEarlierLetters) {
    EXPECT_EQ(UniqueMnemonics(GetParam().captions, GetParam().reserved), GetParam().expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Mnemonics, UniqueMnemonicsTest, ::testing::Values(
    MnemonicCase{"AFreeLetterStays", {"&Add", "&Ins"}, "FE", {"&Add", "&Ins"}},
    MnemonicCase{"AClashMovesToTheNextWord", {"&Next Pin"}, "N", {"Next &Pin"}},
    MnemonicCase{"ThenToAnyFreeLetter", {"&Next Pin", "&Same Pin"}, "NS", {"Next &Pin", "S&ame Pin"}},
    MnemonicCase{"CaseDoesNotMatter", {"&next"}, "n", {"n&ext"}},
    MnemonicCase{"NoFreeLetterNoMnemonic", {"&Go"}, "GO", {"Go"}},
    MnemonicCase{"ALiteralAmpersandStays", {"A&&B &Copy"}, "C", {"&A&&B Copy"}},
    MnemonicCase{"NoMnemonicIsLeftAlone", {"<<", "Print"}, "P", {"<<", "Print"}}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

QChar mnemonicOf(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != QLatin1Char('&'))
            continue;
        if (caption[i + 1] != QLatin1Char('&'))
            return caption[i + 1].toUpper();
        ++i;
    }
    return {};
}

TEST(Mnemonics, TableWindowButtonsLeaveTheMenuBarLettersAndDifferFromEachOther) {
    Desktop d;
    const QString menuLetters = QString::fromStdString(MenuBarMnemonics());
    for (const QAction* menu : d.window.menuBar()->actions())
        EXPECT_TRUE(menuLetters.contains(mnemonicOf(menu->text()))) << menu->text().toStdString();
    const std::pair<const char*, TableId> windows[] = {
        {"ID_Connectors", table::Connector}, {"ID_Pins", table::Pin},
        {"ID_Wires", table::Wire},           {"ID_Splices", table::Splice},
        {"ID_Components", table::Component}, {"ID_Groups", table::Groups},
        {"ID_Fixture", table::Fixture},      {"ID_ReversiblePairs", table::Reversible}};
    for (const auto& [command, table] : windows) {
        TableWindow& w = d.open(command, table);
        QString taken = menuLetters;
        for (const QPushButton* b : w.findChildren<QPushButton*>()) {
            const QChar letter = mnemonicOf(b->text());
            if (letter.isNull())
                continue;
            EXPECT_FALSE(taken.contains(letter))
                << command << " " << b->text().toStdString() << " clashes";
            taken += letter;
        }
    }
}

TEST(Mnemonics, MenusNeverShareALetterAndTheFileMenuUnderlinesEveryItem) {
    Desktop d;
    for (const QAction* entry : d.window.menuBar()->actions()) {
        QString taken;
        const bool file = entry->menu()->objectName() == QStringLiteral("ID_mnuFile");
        for (const QAction* item : entry->menu()->actions()) {
            if (item->isSeparator() || item->text().isEmpty())
                continue;
            const QChar letter = mnemonicOf(item->text());
            EXPECT_TRUE(!file || !letter.isNull()) << item->text().toStdString();
            if (letter.isNull())
                continue;
            EXPECT_FALSE(taken.contains(letter)) << item->text().toStdString();
            taken += letter;
        }
    }
    EXPECT_EQ(d.window.Action("ID_SaveAs")->shortcut(),
              QKeySequence(QStringLiteral("Ctrl+Shift+S")));
}

// The Simulate window stands beside the menus: its letters must leave theirs alone.
TEST(Mnemonics, TheSimulateWindowsLettersLeaveTheMenuBarsAlone) {
    test_desktop::ExampleDesktop d;
    d.window.ToolClick("ID_Simulate");
    const auto* w = d.window.findChild<SimulateWindow*>();
    ASSERT_NE(w, nullptr);
    QStringList captions;
    for (const QLabel* label : w->findChildren<QLabel*>())
        captions << label->text();
    for (const QAbstractButton* button : w->findChildren<QAbstractButton*>())
        captions << button->text();
    for (int i = 0; i < w->tabs().count(); ++i)
        captions << w->tabs().tabText(i);
    QString taken = QString::fromStdString(MenuBarMnemonics());
    int letters = 0;
    for (const QString& caption : captions) {
        const QChar letter = mnemonicOf(caption);
        if (letter.isNull())
            continue;
        EXPECT_FALSE(taken.contains(letter)) << caption.toStdString();
        taken += letter;
        ++letters;
    }
    EXPECT_GE(letters, 14);
}

} // namespace
} // namespace zolt::shell
