#include "core/netlist_operations.h"
#include "core/ports/clock.h"
#include "core/ports/frame_controls.h"
#include "file/blank_template.h"
#include "file/document_lifecycle.h"
#include "file/program_file.h"
#include "program_session.h"
#include "support/file_contents.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace zolt::file {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;
using test::Session;

struct FixedClock final : Clock {
    LocalTime Now() const override { return {2026, 3, 7, 14, 5, 9}; }
};

// A desk with a programs and a templates folder, a template and a program in them.
struct Desk {
    ScratchFolder dir;
    Session s;
    FixedClock clock;
    int refreshed = 0;
    std::unique_ptr<DocumentLifecycle> doc;

    Desk() {
        fs::create_directories(dir.path() / "Templates");
        fs::create_directories(dir.path() / "Backups");
        s.state.params().LoadDirectoryParameters(false);
        s.state.params().SetVal(param::ProgramsDirectory, Value(dir.path().string()));
        s.state.params().SetVal(param::TemplatesDirectory, Value(dir.file("Templates")));
        s.state.params().SetVal(param::BackupFilesDirectory, Value(dir.file("Backups")));
        s.addRow(table::Connector, {Value("J1"), Value("12")});
        WriteProgramFile(s.state, dir.file("Templates/Basic.zlt"));
        WriteProgramFile(s.state, dir.file("Door.zlf"));
        s.state.DestroyAll();
        s.state.document().FileOpen = false;
        s.state.document().CurrentFile.clear();
        s.ui.ClearEvents();
        doc = std::make_unique<DocumentLifecycle>(
            s.state, DocumentEnvironment{clock, "BENCH-PC", {}, [this] { ++refreshed; }});
    }
    void answer(const std::string& text) { s.ui.Queue(ScriptedUi::TextAnswer{text}); }
    // Open, with `name` of the folder picked in its dialog.
    void open(const std::string& name) {
        answer(dir.file(name));
        doc->Open();
    }
};

TEST(LockFile, RecordsAndTheirDisplay) {
    EXPECT_EQ(LockFileText("A-VERY-LONG-COMPUTER-NAME", {2026, 3, 7, 14, 5, 9}),
              "\"A-VERY-LONG-COMP\"\r\n\"03/07/26 2:05:09 PM\"\r\n");
    EXPECT_EQ(LockFileText("PC", {2026, 11, 23, 0, 0, 0}),
              "\"PC\"\r\n\"11/23/26 12:00:00 AM\"\r\n");
    EXPECT_EQ(LockDateForDisplay("11/10/26 9:00:00 AM"), "11/10/26 9:00:00 AM");
}

// A name typed without extension takes the filter's.
TEST(DocumentLifecycle, NewSavesTheTemplateAtOnceUnderTheUsersName) {
    Desk d;
    d.answer(d.dir.file("Templates/Basic.zlt"));
    d.answer(d.dir.file("Harness"));
    d.doc->New();
    ASSERT_TRUE(d.s.state.document().FileOpen);
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Harness.zlf"));
    EXPECT_TRUE(fs::exists(d.dir.file("Harness.zlf")));
    EXPECT_EQ(test::ReadFile(d.dir.file("Harness.lck")),
              "\"BENCH-PC\"\r\n\"03/07/26 2:05:09 PM\"\r\n");
    EXPECT_EQ(d.s.state.document().LockedFile, d.dir.file("Harness.zlf"));
    EXPECT_EQ(d.s.frame.Caption(), "Thessor ZOLT 6.0 - Harness.zlf");
    EXPECT_EQ(d.s.state.project().MainNetlist->GetTable(table::Connector)->gridarray().Text(1, 0),
              "J1");
    EXPECT_FALSE(d.s.state.IsDirty());
    const auto& events = d.s.ui.Events();
    ASSERT_GE(events.size(), 2u);
    EXPECT_EQ(events[0].caption, "New");
    EXPECT_EQ(events[0].text, "ZOLT Templates (*.zlt)|*.zlt");
    EXPECT_EQ(events[1].caption, "Save As");
    EXPECT_EQ(events[1].text, "ZOLT Files (*.zlf)|*.zlf|ZOLT-GRV Files (*.grv)|*.grv");

    d.answer(d.dir.file("second"));
    d.doc->SaveAs();
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("second.zlf"));
    EXPECT_TRUE(fs::exists(d.dir.file("second.zlf")));
}

TEST(DocumentLifecycle, CancellingTheFirstSaveOfANewProjectLeavesNone) {
    Desk d;
    d.answer(d.dir.file("Templates/Basic.zlt"));
    d.doc->New();
    EXPECT_FALSE(d.s.state.document().FileOpen);
    EXPECT_EQ(d.s.state.project().MainNetlist, nullptr);
    EXPECT_TRUE(d.s.state.document().LockedFile.empty());
}

TEST(DocumentLifecycle, ALockedFileAsksAndCancelKeepsTheOldProject) {
    Desk d;
    d.open("Door.zlf");
    ASSERT_EQ(d.s.state.document().CurrentFile, d.dir.file("Door.zlf"));
    WriteProgramFile(d.s.state, d.dir.file("Seat.zlf"));
    std::ofstream(d.dir.file("Seat.lck"), std::ios::binary)
        << "\"OTHER-PC\"\r\n\"01/02/26 9:07:00 AM\"\r\n";
    d.s.ui.ClearEvents();
    d.answer(d.dir.file("Seat.zlf"));
    d.s.ui.Queue(Answer::Cancel);
    d.doc->Open();
    ASSERT_EQ(d.s.ui.ShownBoxes().size(), 1u);
    const MessageBox& box = d.s.ui.ShownBoxes()[0];
    EXPECT_EQ(box.buttonTexts, (std::vector<std::string>{"Open Anyway", "Cancel"}));
    EXPECT_EQ(box.text.substr(0, box.text.find('\n', box.text.find("On:"))),
              "Seat.zlf is locked for editing.\n   User: OTHER-PC\n   On: 1/2/26 9:07:00 AM");
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Door.zlf"));
    EXPECT_EQ(d.s.state.document().LockedFile, d.dir.file("Door.zlf"));
    EXPECT_TRUE(d.s.state.document().FileInUseCancelled);

    d.answer(d.dir.file("Seat.zlf"));
    d.s.ui.Queue(Answer::Ok);
    d.doc->Open();
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Seat.zlf"));
    EXPECT_EQ(test::ReadFile(d.dir.file("Seat.lck")),
              "\"BENCH-PC\"\r\n\"03/07/26 2:05:09 PM\"\r\n");
    EXPECT_FALSE(fs::exists(d.dir.file("Door.lck"))) << "Open Anyway drops the old project's lock";
}

TEST(DocumentLifecycle, TheSaveQuestionDecidesWhatCloseDoes) {
    Desk d;
    d.open("Door.zlf");
    d.s.state.SetDirty(true);
    std::ofstream(d.dir.file("Door.bin")) << "image";
    std::ofstream(d.dir.file("Door.dgn")) << "log";
    d.s.ui.ClearEvents();
    d.s.ui.Queue(Answer::Cancel);
    d.doc->Close();
    EXPECT_EQ(d.s.boxes(), std::vector<std::string>{"ZOLT 6.0: Save Changes to ''Door'' ?"});
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_TRUE(fs::exists(d.dir.file("Door.bin")));
    d.s.ui.Queue(Answer::No);
    d.doc->Close();
    EXPECT_FALSE(d.s.state.document().FileOpen);
    EXPECT_FALSE(fs::exists(d.dir.file("Door.lck")));
    EXPECT_FALSE(d.s.frame.TabBarVisible());
    // The compile's outputs go with the project.
    EXPECT_FALSE(fs::exists(d.dir.file("Door.bin")));
    EXPECT_FALSE(fs::exists(d.dir.file("Door.dgn")));
}

TEST(DocumentLifecycle, ATemplateOpenedTakesNoLockAndSaveAsksForAName) {
    Desk d;
    d.open("Templates/Basic.zlt");
    ASSERT_TRUE(d.s.state.document().FileOpen);
    EXPECT_FALSE(fs::exists(d.dir.file("Templates/Basic.lck")));
    d.s.ui.ClearEvents();
    d.answer(d.dir.file("Door.zlf"));
    d.s.ui.Queue(Answer::Cancel);
    d.doc->Save();
    ASSERT_EQ(d.s.ui.Events().size(), 2u);
    EXPECT_EQ(d.s.ui.Events()[0].caption, "Save As File");
    EXPECT_EQ(d.s.boxes(), std::vector<std::string>{"ZOLT 6.0: File Exists, Overwrite?"});
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Templates/Basic.zlt"));
}

TEST(DocumentLifecycle, SavingAGrvProgramAsZlfWarnsOfLostData) {
    Desk d;
    d.open("Door.zlf");
    d.answer(d.dir.file("Family.grv"));
    d.doc->SaveAs();
    ASSERT_EQ(d.s.state.document().CurrentFile, d.dir.file("Family.grv"));
    d.s.ui.ClearEvents();
    d.answer(d.dir.file("Plain.zlf"));
    d.s.ui.Queue(Answer::Cancel);
    d.doc->SaveAs();
    EXPECT_EQ(d.s.boxes(), std::vector<std::string>{
                               "GRV Data Will Be Lost - Continue Save?: Saving to "
                               "this format will cause all GRV-related information to be lost."});
    EXPECT_EQ(d.s.ui.ShownBoxes()[0].defaultButton, 2);
    EXPECT_FALSE(fs::exists(d.dir.file("Plain.zlf")));
    EXPECT_EQ(d.s.ui.Events()[0].text, "ZOLT-GRV Files (*.grv)|*.grv|ZOLT Files (*.zlf)|*.zlf");

    // The test compile's new program is never saved over the family it came from.
    d.s.state.document().GRVTestCompileSave = true;
    d.answer(d.dir.file("Family.grv"));
    d.s.ui.Queue(Answer::Ok);
    d.doc->SaveAs();
    EXPECT_EQ(d.s.ui.ShownBoxes().back().caption, "Save New Test Program");
}

TEST(DocumentLifecycle, BadPathsFromTheCommandLineAndTheDialog) {
    Desk d;
    d.doc->OpenFromCommandLine(" " + d.dir.file("missing.zlf") + " ");
    std::ofstream(d.dir.file("notes.txt")) << "x";
    d.doc->OpenFromCommandLine(d.dir.file("notes.txt"));
    d.open("gone.zlf");
    EXPECT_EQ(d.s.boxes(), (std::vector<std::string>{
                               "Abort Operation: " + d.dir.file("missing.zlf") + " not found",
                               "Abort File Open: Invalid file extention - .txt",
                               "Abort Operation: " + d.dir.file("gone.zlf") + " not found"}));
    EXPECT_FALSE(d.s.state.document().FileOpen);
    d.doc->OpenFromCommandLine(d.dir.file("Door.zlf"));
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_TRUE(fs::exists(d.dir.file("Door.lck")));
}

TEST(DocumentLifecycle, AFileHandedToTheRunningProgramAsksAboutTheOpenOnesChanges) {
    Desk d;
    d.open("Door.zlf");
    d.s.state.SetDirty(true);
    fs::copy_file(d.dir.file("Door.zlf"), d.dir.file("Seat.zlf"));
    d.s.ui.ClearEvents();
    d.s.ui.Queue(Answer::Cancel);
    d.doc->OpenFromCommandLine(d.dir.file("Seat.zlf"));
    ASSERT_EQ(d.s.ui.ShownBoxes().size(), 1u);
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Door.zlf"));
    EXPECT_TRUE(d.s.state.IsDirty());
    EXPECT_FALSE(fs::exists(d.dir.file("Seat.lck")));

    d.s.ui.Queue(Answer::No);
    d.doc->OpenFromCommandLine(d.dir.file("Seat.zlf"));
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Seat.zlf"));
    EXPECT_FALSE(fs::exists(d.dir.file("Door.lck")));
}

TEST(DocumentLifecycle, CancelOnExitKeepsTheProjectButDropsItsLock) {
    Desk d;
    d.open("Door.zlf");
    d.s.state.SetDirty(true);
    d.s.ui.Queue(Answer::Cancel);
    EXPECT_FALSE(d.doc->QueryUnload());
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_FALSE(fs::exists(d.dir.file("Door.lck")));
    EXPECT_TRUE(d.s.state.document().LockedFile.empty());
}

TEST(DocumentLifecycle, OldAssemblyDataIsConvertedWithABackupOfTheOriginal) {
    Desk d;
    d.s.state.DestroyAll();
    NewProject(d.s.state);
    Table& sequence = *d.s.state.project().MainNetlist->GetTable(table::Sequence);
    sequence.AddRecord_v1(1, {Value(std::int16_t{1}), Value("MBEGIN"), Value("MACRO1"), Value(""),
                              Value(""), Value(std::int32_t{1}), Value(std::int32_t{0})});
    ASSERT_EQ(WriteProgramFile(d.s.state, d.dir.file("Old.zlf")), Answer::Yes);
    d.s.state.DestroyAll();
    d.s.state.document().FileOpen = false;
    d.s.ui.ClearEvents();

    d.answer(d.dir.file("Old.zlf"));
    d.s.ui.Queue(Answer::Ok); // "Old Version Detected..."
    d.doc->Open();
    EXPECT_EQ(d.s.ui.ShownBoxes().at(0).caption, "Old Version Detected...");
    EXPECT_TRUE(fs::exists(d.dir.file("Backups/Old.zlf")));
    EXPECT_EQ(d.s.state.document().CurrentFile, d.dir.file("Old.grv"));
    ASSERT_TRUE(fs::exists(d.dir.file("Old.grv")));
    EXPECT_FALSE(d.s.state.document().ConvertToGRV);
    EXPECT_FALSE(d.s.state.IsDirty());
}

TEST(DocumentLifecycle, NewProposesTheBlankTemplateOfAFreshInstall) {
    Desk d;
    const std::string shipped = d.dir.file("program");
    fs::create_directories(shipped);
    NewProject(d.s.state);
    FillDefaultTestParameters(d.s.state);
    WriteProgramFile(d.s.state, shipped + "/" + kBlankTemplate);
    d.s.state.DestroyAll();
    d.s.state.document().FileOpen = false;
    // A folder that already holds the user's templates is left alone.
    EXPECT_FALSE(InstallBlankTemplate(shipped, d.dir.file("Templates")));
    const std::string fresh = d.dir.file("Fresh Templates");
    EXPECT_TRUE(InstallBlankTemplate(shipped, fresh));
    EXPECT_TRUE(fs::exists(fresh + "/" + kBlankTemplate));
    d.s.state.params().SetVal(param::TemplatesDirectory, Value(fresh));

    d.s.ui.Queue(Answer::Cancel);
    d.doc->New();
    ASSERT_EQ(d.s.ui.FileDialogs().size(), 1u);
    EXPECT_EQ(d.s.ui.FileDialogs()[0].fileName, kBlankTemplate);
    d.answer(fresh + "/" + kBlankTemplate);
    d.answer(d.dir.file("Harness.zlf"));
    d.doc->New();
    EXPECT_TRUE(d.s.state.document().FileOpen);
    EXPECT_EQ(d.s.grid(table::TestParameter).Rows(), kTestParameterRows);
}

} // namespace
} // namespace zolt::file
