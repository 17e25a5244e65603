#include "shell/detail_dialogs.h"
#include "support/qt_app.h"

#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

TEST(DetailDialogs, TheFormOffersShownFieldsAndListsAndKeepsHiddenTexts) {
    zolt::test::QtApp();
    const DetailForm form{"Add New Wire",
                          {DetailField{"Wire", "W9", 12, true, {}},
                           DetailField{"Base Color", "", 12, true, {"(none)", "RED"}},
                           DetailField{"Hidden", "0", 3, false, {}}}};
    DetailFormDialog dialog(form);
    EXPECT_EQ(dialog.windowTitle(), "Add New Wire");
    auto* wire = dialog.findChild<QLineEdit*>("txtData0");
    auto* base = dialog.findChild<QComboBox*>("txtData1");
    ASSERT_NE(wire, nullptr);
    ASSERT_NE(base, nullptr);
    EXPECT_EQ(dialog.findChild<QWidget*>("txtData2"), nullptr);
    EXPECT_EQ(wire->text(), "W9");
    EXPECT_EQ(wire->maxLength(), 12);
    EXPECT_EQ(base->count(), 2);
    // Typing starts in the first empty box, never over the name offered.
    EXPECT_EQ(dialog.focusWidget(), base);
    wire->setText("W10");
    base->setCurrentIndex(1);
    EXPECT_EQ(dialog.Texts(), (std::vector<std::string>{"W10", "RED", "0"}));
}

} // namespace
} // namespace zolt::shell
