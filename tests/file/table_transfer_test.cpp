#include "core/table_columns.h"
#include "file/file_bytes.h"
#include "file/program_file.h"
#include "file/table_transfer.h"
#include "fixture/fixture_table.h"
#include "program_builders.h"
#include "tables/color_table.h"
#include "tables/data_table.h"

#include <fstream>
#include <gtest/gtest.h>

namespace zolt::test {
namespace {

using file::TabOffer;

// The copy dialog as a script: records what it offered and picks `name`.
struct Picker {
    std::optional<std::string> name;
    std::optional<TabOffer> offered;
    file::TabPicker get() {
        return [this](const TabOffer& offer) {
            offered = offer;
            return name;
        };
    }
};

class TransferTest : public ::testing::Test {
protected:
    TransferTest() {
        program_.addNetlist("DOOR");
        program_.addNetlist("SEAT");
        program_.addRow(table::Pin, {"J1", "1", "W1", Value(), L(1)}, "DOOR");
        program_.addRow(table::Pin, {"J1", "2", "W2", Value(), L(1)}, "DOOR");
        program_.addRow(table::Pin, {"P9", "9", "W9", Value(), L(0)});
        program_.ui.ClearEvents();
    }
    CNetList& netlist(const std::string& name) {
        return *program_.state.project().FindNetlist(name);
    }
    DataTable& tableOf(const std::string& name, TableId kind) {
        return *netlist(name).TableAs<DataTable>(kind);
    }
    std::string lastBox() const {
        const auto& boxes = program_.ui.ShownBoxes();
        return boxes.empty() ? std::string() : boxes.back().caption + ": " + boxes.back().text;
    }

    Session program_;
    Picker picker_;
};

TEST_F(TransferTest, CopyFromTabReplacesTheRowsAsRowsOfThisNetlist) {
    picker_.name = "DOOR";
    DataTable& pins = tableOf("MAIN", table::Pin);
    ASSERT_TRUE(file::CopyTableFromOtherTab(program_.state, &pins, picker_.get()));
    EXPECT_EQ(picker_.offered->caption, "Warning: Pins table will be overwritten.");
    EXPECT_EQ(picker_.offered->tabs, (std::vector<std::string>{"DOOR", "SEAT"}));
    ASSERT_EQ(pins.gridarray().Rows(), 2);
    EXPECT_EQ(pins.gridarray().Text(2, pin_column::Wire), "W2");
    EXPECT_EQ(pins.gridarray().At(2, pin_column::Netlist), Value(std::int32_t{0}));
    EXPECT_TRUE(program_.state.IsDirty());
}

TEST_F(TransferTest, CopyIsOneStepOfTheEditHistory) {
    program_.state.history().Reset();
    picker_.name = "DOOR";
    DataTable& pins = tableOf("MAIN", table::Pin);
    const Grid before = pins.gridarray();
    ASSERT_TRUE(file::CopyTableFromOtherTab(program_.state, &pins, picker_.get()));
    ASSERT_TRUE(program_.state.history().Record());
    EXPECT_EQ(program_.state.history().UndoText(), "Undo Copy Pins Table (MAIN)");
    ASSERT_TRUE(program_.state.history().Undo());
    EXPECT_EQ(pins.gridarray(), before);
    EXPECT_FALSE(program_.state.history().CanUndo());
}

struct RefusalCase {
    const char* name;
    const char* netlist; // nullptr: no table window is active
    TableId kind;
    const char* pick;
    const char* box;
};

class CopyTabRefusalTest : public TransferTest,
                           public ::testing::WithParamInterface<RefusalCase> {};

TEST_P(CopyTabRefusalTest, RefusesWithItsBoxAndChangesNothing) {
    const RefusalCase& c = GetParam();
    if (c.kind == table::Fixture)
        netlist("SEAT").TableAs<CFixtureTable>(table::Fixture)->setGridMain(true);
    picker_.name = c.pick;
    DataTable* target = c.netlist ? &tableOf(c.netlist, c.kind) : nullptr;
    const Grid before = target ? target->gridarray() : Grid();
    EXPECT_FALSE(file::CopyTableFromOtherTab(program_.state, target, picker_.get()));
    EXPECT_EQ(lastBox(), c.box);
    if (target) {
        EXPECT_EQ(target->gridarray(), before);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Boxes, CopyTabRefusalTest, ::testing::Values(
    RefusalCase{"NoTable", nullptr, table::Pin, "DOOR", "Abort Operation: Table must be selected to copy into."},
    RefusalCase{"ProjectWideTable", "MAIN", table::Message, "DOOR", "Abort Operation: Table selected can not be copied into."},
    RefusalCase{"LinkedFixture", "SEAT", table::Fixture, "DOOR", "Abort Operation: Table selected can only be copied into in MAIN tab."},
    RefusalCase{"EmptySource", "MAIN", table::Wire, "SEAT", "Abort Copy: Table selected does not contain any data"},
    RefusalCase{"NetlistGone", "MAIN", table::Pin, "TRUNK", "ZOLT 6.0: Netlist Not Found!"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(CopyTabTest, OneNetlistOrOnlyTheManualNetlistsBesideItIsNotEnough) {
    Session program;
    Picker picker;
    DataTable& pins = *program.state.project().MainNetlist->TableAs<DataTable>(table::Pin);
    EXPECT_FALSE(file::CopyTableFromOtherTab(program.state, &pins, picker.get()));
    AddNetlist(program.state, "MANUAL NETLISTS");
    EXPECT_FALSE(file::CopyTableFromOtherTab(program.state, &pins, picker.get()));
    EXPECT_FALSE(picker.offered);
    EXPECT_EQ(program.boxTexts(),
              std::vector<std::string>(2, "Multiple netlists must exist to enable Copy."));
}

// A program file written by another project: MAIN with pins and colors, and
// optionally the netlist DOOR with pins and wires.
std::string WriteOtherProgram(const ScratchFolder& dir, bool withDoor,
                              const char* wireColor = "1") {
    Session other;
    other.addRow(table::Pin, {"M1", "1", "W5", Value(), L(0)});
    other.state.project().MainNetlist->TableAs<CColorTable>(table::Color)->AddNewColor("RED/BLK");
    if (withDoor) {
        other.addNetlist("DOOR");
        other.addRow(table::Pin, {"D1", "1", "W1", Value(), L(1)}, "DOOR");
        other.addRow(table::Pin, {"D1", "2", "W1", Value(), L(1)}, "DOOR");
        other.addRow(table::Wire, {"W1", wireColor, "(none)", Value(), L(1)}, "DOOR");
    }
    const std::string path = dir.file(std::string(withDoor ? "door" : "main") + wireColor + ".zlf");
    EXPECT_EQ(file::WriteProgramFile(other.state, path), Answer::Yes);
    return path;
}

class ImportTest : public TransferTest {
protected:
    bool import(DataTable& target, const std::string& path) {
        program_.ui.QueueFirst(ScriptedUi::TextAnswer{path});
        return file::CopyTableFromOtherFile(program_.state, &target, picker_.get());
    }
    ScratchFolder dir_;
};

TEST_F(ImportTest, TheTableOfThePickedTabReplacesTheRows) {
    picker_.name = "DOOR";
    DataTable& pins = tableOf("SEAT", table::Pin);
    ASSERT_TRUE(import(pins, WriteOtherProgram(dir_, true)));
    EXPECT_EQ(picker_.offered->tabs, (std::vector<std::string>{"MAIN", "DOOR"}));
    ASSERT_EQ(pins.gridarray().Rows(), 2);
    EXPECT_EQ(pins.RowTexts(2), (std::vector<std::string>{"D1", "2", "W1"}));
    EXPECT_EQ(pins.gridarray().At(1, pin_column::Netlist),
              Value(std::int32_t{netlist("SEAT").netlistIndex}));
    EXPECT_EQ(program_.ui.FileDialogs().back().title, "SELECT FILE TO IMPORT FROM");
    EXPECT_EQ(program_.ui.FileDialogs().back().filter, "ZOLT Files (*.zlf)|*.zlf");
}

TEST_F(ImportTest, AnEmptyTableIsNotFoundInAFile) {
    // MAIN's wires are empty in the other file: no block was written for them.
    picker_.name = "MAIN";
    EXPECT_FALSE(import(tableOf("DOOR", table::Wire), WriteOtherProgram(dir_, true)));
    EXPECT_EQ(lastBox(), "Abort File Read: Table not found.");
}

TEST_F(ImportTest, WireColorsKeepTheirTextsInThisProject) {
    auto& colors = *netlist("MAIN").TableAs<CColorTable>(table::Color);
    colors.AddNewColor("BLU");
    picker_.name = "DOOR";
    DataTable& wires = tableOf("DOOR", table::Wire);
    ASSERT_TRUE(import(wires, WriteOtherProgram(dir_, true)));
    const int red = colors.GetColorID("RED/BLK");
    EXPECT_EQ(red, 2);
    EXPECT_EQ(wires.gridarray().Text(1, wire_column::BaseColor), "2");
}

TEST_F(ImportTest, WiresComeOverOnlyWithColorsTheOtherFileNames) {
    picker_.name = "DOOR";
    DataTable& wires = tableOf("DOOR", table::Wire);
    const std::string path = WriteOtherProgram(dir_, true);
    const std::string bytes = file::ReadFileBytes(path, 1 << 20).value();
    // Cut short inside the color block, which follows the wires.
    const std::string cut = dir_.file("cut.zlf");
    std::ofstream(cut, std::ios::binary) << bytes.substr(0, bytes.rfind("RED") + 3);
    EXPECT_FALSE(import(wires, cut));
    EXPECT_EQ(lastBox(), "Abort File Read: The colors of cut.zlf cannot be read (Error reading "
                         "file at Color table); the table was not copied.");
    EXPECT_EQ(wires.gridarray().Rows(), 0);

    // A number the other file's colors do not name is no color.
    ASSERT_TRUE(import(wires, WriteOtherProgram(dir_, true, "7")));
    EXPECT_EQ(wires.gridarray().Text(1, wire_column::BaseColor), "(none)");
}

TEST_F(ImportTest, ProjectWideTablesOnlyOnMainAndFileDialogAnswers) {
    EXPECT_FALSE(file::CopyTableFromOtherFile(program_.state, &tableOf("DOOR", table::Message),
                                              picker_.get()));
    EXPECT_EQ(lastBox(), "Abort Operation: Table selected can only be imported in MAIN tab.");
    EXPECT_TRUE(program_.ui.FileDialogs().empty());
    program_.ui.QueueFirst(ScriptedUi::TextAnswer{""});
    EXPECT_FALSE(file::CopyTableFromOtherFile(program_.state, &tableOf("MAIN", table::Message),
                                              picker_.get()));
    EXPECT_EQ(lastBox(), "Abort Operation: File not Specified");
    EXPECT_FALSE(import(tableOf("MAIN", table::Message), dir_.file("missing.zlf")));
    EXPECT_EQ(lastBox(), "Abort Operation: " + dir_.file("missing.zlf") + " not found");
    EXPECT_FALSE(picker_.offered);
}

TEST_F(ImportTest, NoRelevantTabsForCodesWithoutManualNetlists) {
    AddNetlist(program_.state, "MANUAL NETLISTS");
    EXPECT_FALSE(import(tableOf("MANUAL NETLISTS", table::Code), WriteOtherProgram(dir_, true)));
    EXPECT_EQ(lastBox(), "ZOLT 6.0: No relevant tabs found");
}

// Files another tool or a damaged disk could hand over.
struct HostileCase {
    const char* name;
    std::int16_t firstType;
    std::int16_t firstVersion;
    std::int16_t secondType; // 0: the file ends after the netlist list
    const char* box;
};

class HostileFileTest : public ImportTest, public ::testing::WithParamInterface<HostileCase> {};

TEST_P(HostileFileTest, IsRefusedAndChangesNothing) {
    const HostileCase& c = GetParam();
    FileBuilder f;
    f.frame(c.firstType, c.firstVersion, 0);
    if (c.secondType != 0)
        f.frame(c.secondType, 1, 3); // records that are not there
    const std::string path = dir_.file("hostile.zlf");
    std::ofstream(path, std::ios::binary) << f.bytes();
    picker_.name = "MAIN";
    DataTable& pins = tableOf("MAIN", table::Pin);
    const Grid before = pins.gridarray();
    EXPECT_FALSE(import(pins, path));
    EXPECT_EQ(lastBox(), c.box);
    EXPECT_EQ(pins.gridarray(), before);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Boxes, HostileFileTest, ::testing::Values(
    HostileCase{"NoNetlistListFirst", 60, 1, 0, "Abort File Read: File Data Format Error"},
    HostileCase{"NetlistListVersion", 150, 2, 0, "Abort File Read: Netlist Record Version Unsupported"},
    HostileCase{"UnknownBlock", 150, 1, 77, "Abort File Read: Data format error."},
    HostileCase{"RecordsMissing", 150, 1, 60, "Abort File Read: Error reading file at Pin table"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

} // namespace
} // namespace zolt::test
