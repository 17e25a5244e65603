#include "core/parameters.h"
#include "core/ports/detail_dialogs.h"
#include "table_fixture.h"
#include "tables/color_table.h"
#include "tables/connector_table.h"
#include "tables/pin_table.h"
#include "tables/wire_table.h"

namespace zolt::testing {
namespace {

// Detail dialogs that keep the forms they were given and answer from a script.
class RecordingDialogs final : public DetailDialogs {
public:
    std::vector<DetailForm> forms;
    std::vector<std::string> texts; // what the user leaves in the fields
    bool accept = true;

    bool Fill(DetailForm& form) override {
        forms.push_back(form);
        for (std::size_t i = 0; i < form.fields.size() && i < texts.size(); ++i)
            form.fields[i].text = texts[i];
        return accept;
    }
    // Which delete the question picks is the golden cases table_rules' and harness_rules'.
    std::optional<bool> AskWireDelete(const std::string&) override { return std::nullopt; }
};

class DetailDialogTest : public TableTest {
protected:
    DetailDialogTest() { state_.SetDetailDialogs(&dialogs_); }
    RecordingDialogs dialogs_;
};

TEST_F(DetailDialogTest, ConnectorFormOffersOnlyTheColumnsTheGridShows) {
    struct Case {
        int switches, lampPin, grid;
        std::vector<bool> shown;
    };
    const Case cases[] = {
        {0, 0, 0, {true, true, false, false, false, false}},
        {1, 1, 0, {true, true, true, true, true, false}},
        {0, 0, 1, {true, true, false, false, false, true}},
    };
    for (const Case& c : cases) {
        state_.params().SetVal(param::Switches, Value(std::to_string(c.switches)));
        state_.params().SetVal(param::LampPin, Value(std::to_string(c.lampPin)));
        state_.params().SetVal(param::GridLocation, Value(std::to_string(c.grid)));
        dialogs_.forms.clear();
        dialogs_.accept = false;
        EXPECT_EQ(table<CConnectorTable>(table::Connector).ShowDetail("J9"), Answer::Cancel);
        ASSERT_EQ(dialogs_.forms.size(), 1u);
        const DetailForm& form = dialogs_.forms[0];
        EXPECT_EQ(form.caption, "Add New Connector");
        ASSERT_EQ(form.fields.size(), 6u);
        EXPECT_EQ(form.fields[0].text, "J9");
        EXPECT_EQ(form.fields[0].maxLength, 12);
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(form.fields[i].shown, c.shown[i]) << "field " << i;
    }
    EXPECT_EQ(data(table::Connector).gridarray().Rows(), 0);
}

TEST_F(DetailDialogTest, PinOnUnknownConnectorAndWireAddsThemThroughTheForms) {
    editor(table::Wire).AddRow({"W1"});
    dialogs_.texts = {"J9", "4", "0", "0", "0", ""};
    EXPECT_EQ(editor(table::Pin).AddRow({"J9", "1", "W1"}), code::None);
    EXPECT_EQ(table<CConnectorTable>(table::Connector).GetMaxPins("J9"), 4);

    dialogs_.texts = {"W2", "RED/BLK", ""};
    ui_.Queue(Answer::Yes); // a "/" splits the base box into base and stripe: both new
    ui_.Queue(Answer::Yes);
    EXPECT_EQ(editor(table::Pin).AddRow({"J9", "2", "W2"}), code::None);
    const DetailForm& wireForm = dialogs_.forms.back();
    EXPECT_EQ(wireForm.caption, "Add New Wire");
    EXPECT_EQ(wireForm.fields[1].options.front(), "(none)");
    const Grid& wires = data(table::Wire).gridarray();
    ASSERT_EQ(wires.Rows(), 2);
    EXPECT_EQ(wires.Text(2, 0), "W2");
    const auto colorOf = [&](int column) {
        const int number = static_cast<int>(wires.At(2, column).number().value_or(0));
        return table<CColorTable>(table::Color).GetColors(number);
    };
    EXPECT_EQ(colorOf(1), "RED");
    EXPECT_EQ(colorOf(2), "BLK");

    // Cancelled, the pin cell stays refused.
    dialogs_.accept = false;
    EXPECT_NE(editor(table::Pin).AddRow({"J9", "3", "W3"}), code::None);
    EXPECT_EQ(wires.Rows(), 2);
}

TEST_F(DetailDialogTest, TheFormsRefuseABlankOrTakenNameAndProposeRoomForThePin) {
    editor(table::Wire).AddRow({"W1"});
    struct Case {
        const char* name;
        std::vector<std::string> texts;
        std::string box;
    };
    const Case cases[] = {
        {"blank wire", {"  ", "", ""}, "Valid value must be entered!"},
        {"taken wire", {"W1", "", ""}, "Value already Exists! Enter a unique value."},
    };
    for (const Case& c : cases) {
        ui_.ClearEvents();
        dialogs_.texts = c.texts;
        EXPECT_EQ(table<CWireTable>(table::Wire).ShowDetail("W9"), Answer::Cancel) << c.name;
        ASSERT_EQ(ui_.ShownBoxes().size(), 1u) << c.name;
        EXPECT_EQ(ui_.ShownBoxes()[0].text, c.box) << c.name;
    }
    EXPECT_EQ(data(table::Wire).gridarray().Rows(), 1);

    // The connector of a pin row is proposed with room for that pin, so the pin then fits.
    dialogs_.texts = {};
    EXPECT_EQ(editor(table::Pin).AddRow({"J7", "8", "W1"}), code::None);
    ASSERT_FALSE(dialogs_.forms.empty());
    EXPECT_EQ(dialogs_.forms.back().caption, "Add New Connector");
    EXPECT_EQ(dialogs_.forms.back().fields[1].text, "1");
    EXPECT_EQ(table<CConnectorTable>(table::Connector).ShowDetail("J8", "12"), Answer::Ok);
    EXPECT_EQ(dialogs_.forms.back().fields[1].text, "12");
}

} // namespace
} // namespace zolt::testing
