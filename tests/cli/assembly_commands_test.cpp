#include "cli/assembly_commands.h"
#include "cli/batch_session.h"
#include "core/headless/memory_settings_store.h"
#include "core/netlist.h"
#include "core/program_state.h"
#include "core/value.h"
#include "support/file_contents.h"
#include "support/scratch_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace zolt::cli {
namespace {

namespace fs = std::filesystem;

struct Session {
    std::ostringstream out, err;
    BatchSession batch{out};
    Session() { batch.setDataDirectory(ZOLT_BIN_DIR); }
    int run(const std::string& script) {
        std::istringstream in(script);
        return batch.Run(in, err);
    }
    const AssemblyData& lists() { return batch.state().project().Assembly; }
};

const char* kFamily = R"(new
netlist add DOOR
netlist add SEAT
saveas {dir}/family.grv
feature add Base MAIN DOOR
feature add Seat SEAT
station add Doors 1
station place MAIN Doors
station place DOOR Doors "Fit door"
station add Seats 2
station place SEAT Seats "Fit seat" main
order ok
netlist activate MAIN
row add Sequence PBEGIN 1
row add Sequence TEST PATTERN1
row add Sequence PEND
)";

std::string family(const test::ScratchFolder& dir) {
    std::string script = kFamily;
    script.replace(script.find("{dir}"), 5, dir.path().string());
    return script;
}

TEST(AssemblyCommands, FeatureCodesAndTheLine) {
    test::ScratchFolder dir;
    Session s;
    ASSERT_EQ(s.run(family(dir)), 0) << s.err.str();
    EXPECT_EQ(s.lists().FeatureCodeData, (std::vector<std::string>{"Base,MAIN,DOOR", "Seat,SEAT"}));
    ASSERT_EQ(s.lists().NetlistInfoList.Count(), 3u);
    const CNetlistInfo& seat = *s.lists().NetlistInfoList.Item("SEAT");
    EXPECT_EQ(seat.Station, "Seats");
    EXPECT_EQ(seat.Pattern, 2);
    EXPECT_TRUE(seat.PartOfMain);
    EXPECT_EQ(seat.Description, "Fit seat");
    ASSERT_EQ(s.run("feature rename Base Core\nfeature delete Core\n"), 0);
    EXPECT_EQ(s.lists().FeatureCodeData, (std::vector<std::string>{"Seat,SEAT"}));
}

TEST(AssemblyCommands, ScriptErrorsNameTheProblem) {
    test::ScratchFolder dir;
    Session s;
    ASSERT_EQ(s.run(family(dir)), 0) << s.err.str();
    EXPECT_EQ(s.run("feature add Extra NOSUCH\n"), 2);
    EXPECT_NE(s.err.str().find("'NOSUCH' is not a netlist"), std::string::npos);
    EXPECT_EQ(s.run("station add Doors 3\n"), 2);
    EXPECT_EQ(s.run("station add Far 51\n"), 2);
    EXPECT_EQ(s.run("feature select Nothing\n"), 2);
}

std::vector<std::string> sequenceLines(Session& s) {
    const Grid& rows =
        s.batch.state().project().MainNetlist->GetTable(table::Sequence)->gridarray();
    std::vector<std::string> lines;
    for (int r = 1; r <= rows.Rows(); ++r)
        lines.push_back(vb::Trim(rows.Text(r, 1) + " " + rows.Text(r, 2)));
    return lines;
}

TEST(AssemblyCommands, GrvCompileOfARenamedNetlistWritesThePlainProgram) {
    test::ScratchFolder dir;
    Session s;
    ASSERT_EQ(s.run(family(dir) + "netlist rename DOOR LAMP2\n"), 0) << s.err.str();
    EXPECT_EQ(s.lists().FeatureCodeData,
              (std::vector<std::string>{"Base,MAIN,LAMP2", "Seat,SEAT"}));
    // The compile finds it in the assembly order and the netlist information.
    ASSERT_EQ(s.run("feature select Base\ngrv-compile " + dir.file("base.zlf") + "\n"), 0)
        << s.err.str();
    EXPECT_EQ(sequenceLines(s), (std::vector<std::string>{"TEST MAIN", "TEST LAMP2"}));
    EXPECT_NE(s.out.str().find("PROGRESS \"Finished\""), std::string::npos);
    EXPECT_EQ(s.batch.state().document().CurrentFile, dir.file("base.zlf"));
    EXPECT_TRUE(s.lists().FeatureCodeData.empty());
}

TEST(AssemblyCommands, CommandLineCompileKeepsTheFamilyAndAsksBeforeOverwriting) {
    MemorySettingsStore settings;
    test::ScratchFolder dir;
    {
        Session s;
        ASSERT_EQ(s.run(family(dir) + "save\n"), 0) << s.err.str();
    }
    const std::string grv = dir.file("family.grv");
    const std::string saved = test::ReadFile(grv);
    const auto compile = [&](const std::string& to, bool overwrite, std::string& printed) {
        std::ostringstream out, err;
        const int code =
            GrvCompileProgramFile(grv, {"Base"}, to, overwrite, ZOLT_BIN_DIR, settings, out, err);
        printed = out.str() + err.str();
        return code;
    };
    std::string printed;
    EXPECT_EQ(compile(dir.path().string() + "/./family.grv", true, printed), 1);
    EXPECT_NE(printed.find("cannot be saved over family.grv"), std::string::npos) << printed;
    EXPECT_EQ(test::ReadFile(grv), saved);

    std::ofstream(dir.file("out.zlf")) << "kept";
    EXPECT_EQ(compile(dir.file("out.zlf"), false, printed), 1);
    EXPECT_NE(printed.find("BOX \"ZOLT 6.0\" \"File Exists, Overwrite?\" -> CANCEL"),
              std::string::npos)
        << printed;
    EXPECT_NE(printed.find("--overwrite replaces it"), std::string::npos) << printed;
    EXPECT_EQ(test::ReadFile(dir.file("out.zlf")), "kept");
    EXPECT_EQ(compile(dir.file("out.zlf"), true, printed), 0) << printed;
    EXPECT_NE(test::ReadFile(dir.file("out.zlf")), "kept");
    EXPECT_EQ(test::ReadFile(grv), saved);
    std::ostringstream out, err;
    EXPECT_EQ(GrvCompileProgramFile(grv, {"Nope"}, dir.file("x.zlf"), false, ZOLT_BIN_DIR, settings,
                                    out, err),
              1);
    EXPECT_NE(err.str().find("no feature code named 'Nope'"), std::string::npos);
}

TEST(AssemblyCommands, UnsavedNewProgramIsNeverSavedOverTheFamily) {
    test::ScratchFolder dir;
    Session s;
    ASSERT_EQ(s.run(family(dir) + "save\n"), 0) << s.err.str();
    const std::string saved = test::ReadFile(dir.file("family.grv"));
    EXPECT_EQ(s.run("feature select Base\ngrv-compile /nonexistent-zolt-dir/new.zlf\nsave\n"), 2);
    EXPECT_NE(s.out.str().find("WRITE FAILED"), std::string::npos) << s.out.str();
    EXPECT_NE(s.err.str().find("no file yet"), std::string::npos) << s.err.str();
    EXPECT_EQ(s.batch.state().document().CurrentFile, dir.file("New.zlf"));
    EXPECT_EQ(test::ReadFile(dir.file("family.grv")), saved);
}

TEST(AssemblyCommands, AnotherProjectClosesTheOpenOrder) {
    Session s;
    ASSERT_EQ(s.run("new\nnetlist add DOOR\nstation add Doors 1\nstation place DOOR Doors\n"
                    "new\norder ok\n"),
              0)
        << s.err.str();
    EXPECT_EQ(s.lists().NetlistInfoList.Count(), 0u);
    EXPECT_EQ(s.lists().AssemblyOrderList.Count(), 1u); // MAIN, under General
}

} // namespace
} // namespace zolt::cli
