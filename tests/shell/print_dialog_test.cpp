#include "core/table_kinds.h"
#include "desktop.h"
#include "shell/print_dialog.h"
#include "support/test_program.h"

#include <QCheckBox>
#include <QPushButton>
#include <gtest/gtest.h>
#include <memory>

namespace zolt::shell {
namespace {

using test_desktop::Desktop;

using test::AppendRow;

QPushButton* Button(QDialog& dialog, const char* name) {
    return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
}

TEST(PrintDialog, OffersTheNetlistsTablesWithRowsAndGivesTheTicksInOrder) {
    Desktop d;
    CNetList& main = *d.window.state().project().MainNetlist;
    AppendRow(main, table::Pin, {"X1", "1", "W1"});
    AppendRow(main, table::Wire, {"W1", "0", "0"});
    std::unique_ptr<PrintDialog> dialog(
        PrintDialog::ForNetlist(reports::PrintChoices(main), nullptr));
    auto* pins = dialog->findChild<QCheckBox*>(QStringLiteral("chkTable_6"));
    ASSERT_NE(pins, nullptr);
    EXPECT_EQ(pins->text(), QStringLiteral("Pins"));
    EXPECT_TRUE(pins->isEnabled());
    EXPECT_FALSE(dialog->findChild<QCheckBox*>(QStringLiteral("chkTable_3"))->isEnabled());

    // Nothing ticked: nothing to run.
    EXPECT_FALSE(Button(*dialog, "cmdPreview")->isEnabled());
    EXPECT_FALSE(Button(*dialog, "cmdPrint")->isEnabled());
    // The summaries come by wire, then by group, whatever the order of the ticks.
    dialog->findChild<QCheckBox*>(QStringLiteral("chkSummary_1"))->setChecked(true);
    dialog->findChild<QCheckBox*>(QStringLiteral("chkSummary_0"))->setChecked(true);
    pins->setChecked(true);
    ASSERT_TRUE(Button(*dialog, "cmdPrint")->isEnabled());
    Button(*dialog, "cmdPrint")->click();
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->output(), PrintDialog::Output::Print);
    const auto chosen = dialog->Chosen();
    ASSERT_EQ(chosen.size(), 3u);
    EXPECT_EQ(chosen[0].table, table::Pin);
    EXPECT_EQ(chosen[1].kind, reports::ReportKind::SummaryByWire);
    EXPECT_EQ(chosen[2].kind, reports::ReportKind::SummaryByGroup);
}

} // namespace
} // namespace zolt::shell
