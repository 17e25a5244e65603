#include "cli/assembly_commands.h"
#include "cli/batch_session.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace zolt::cli {
namespace {

namespace fs = std::filesystem;

struct Scratch {
    fs::path path =
        fs::temp_directory_path() / ("zolt-cli-grv-" + std::to_string(std::random_device()()));
    Scratch() { fs::create_directories(path); }
    ~Scratch() { fs::remove_all(path); }
    std::string file(const std::string& name) const { return (path / name).string(); }
};

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

std::string family(const Scratch& dir) {
    std::string script = kFamily;
    script.replace(script.find("{dir}"), 5, dir.path.string());
    return script;
}

TEST(AssemblyCommands, FeatureCodesAndTheLine) {
    Scratch dir;
    Session s;
    ASSERT_EQ(s.run(family(dir)), 0) << s.err.str();
    EXPECT_EQ(s.lists().FeatureCodeData, (std::vector<std::string>{"Base,MAIN,DOOR", "Seat,SEAT"}));
    ASSERT_EQ(s.lists().NetlistInfoList.Count(), 3u);
    const CNetlistInfo& seat = *s.lists().NetlistInfoList.Item("SEAT");
    EXPECT_EQ(seat.Station, "Seats");
    EXPECT_EQ(seat.Pattern, 2);
    EXPECT_TRUE(seat.PartOfMain);
    EXPECT_EQ(seat.Description, "Fit seat");
    ASSERT_EQ(s.run("feature rename Base Core\nfeature add Seat\nfeature delete Core\n"), 0);
    EXPECT_NE(s.out.str().find("BOX \"Feature Code Naming Violation\""), std::string::npos);
    EXPECT_EQ(s.lists().FeatureCodeData, (std::vector<std::string>{"Seat,SEAT"}));
}

TEST(AssemblyCommands, ScriptErrorsNameTheProblem) {
    Scratch dir;
    Session s;
    ASSERT_EQ(s.run(family(dir)), 0) << s.err.str();
    EXPECT_EQ(s.run("feature add Extra NOSUCH\n"), 2);
    EXPECT_NE(s.err.str().find("'NOSUCH' is not a netlist"), std::string::npos);
    EXPECT_EQ(s.run("station add Doors 3\n"), 2);
    EXPECT_EQ(s.run("station add Far 51\n"), 2);
    EXPECT_EQ(s.run("feature select Nothing\n"), 2);
}

TEST(AssemblyCommands, GrvCompileWritesThePlainProgram) {
    Scratch dir;
    Session s;
    ASSERT_EQ(
        s.run(family(dir) + "feature select Base\ngrv-compile " + dir.file("base.zlf") + "\n"), 0)
        << s.err.str();
    EXPECT_NE(s.out.str().find("PROGRESS \"Finished\""), std::string::npos);
    EXPECT_EQ(s.batch.state().document().CurrentFile, dir.file("base.zlf"));
    EXPECT_TRUE(s.lists().FeatureCodeData.empty());
    // The .grv stays as it was saved, its data intact.
    Session again;
    ASSERT_EQ(again.run("open " + dir.file("family.grv") + "\n"), 0);
    EXPECT_EQ(again.lists().FeatureCodeData.size(), 2u);
}

TEST(AssemblyCommands, CommandLineCompile) {
    Scratch dir;
    {
        Session s;
        ASSERT_EQ(s.run(family(dir) + "save\n"), 0) << s.err.str();
    }
    std::ostringstream out, err;
    EXPECT_EQ(GrvCompileProgramFile(dir.file("family.grv"), {"Base", "Seat"}, dir.file("all.zlf"),
                                    ZOLT_BIN_DIR, out, err),
              0)
        << out.str() << err.str();
    EXPECT_TRUE(fs::exists(dir.file("all.zlf")));
    std::ostringstream out2, err2;
    EXPECT_EQ(GrvCompileProgramFile(dir.file("family.grv"), {"Nope"}, dir.file("x.zlf"),
                                    ZOLT_BIN_DIR, out2, err2),
              1);
    EXPECT_NE(err2.str().find("no feature code named 'Nope'"), std::string::npos);
}

} // namespace
} // namespace zolt::cli

namespace zolt::cli {
namespace {

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
