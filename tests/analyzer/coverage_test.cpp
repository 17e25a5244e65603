#include "analyzer/coverage.h"
#include "analyzer_images.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace zolt::analyzer {
namespace {

const std::vector<FaultClass> kAll(std::begin(kFaultClasses), std::end(kFaultClasses));

std::set<std::string> Undetected(const Coverage& coverage, const PointNames& names,
                                 const Harness& harness) {
    std::set<std::string> texts;
    for (const auto& u : coverage.undetected)
        texts.insert(FaultText(u.fault.fault, names, harness));
    return texts;
}

// A random partition of a few points into nets, netlists that each take some of
// them, a diode or two, and a sequence of scans, branches and counters.
compile::ProgramImage RandomProgram(std::mt19937& random) {
    const auto pick = [&random](int n) {
        return static_cast<int>(random() % static_cast<unsigned>(n));
    };
    const int points = 6 + pick(10);
    std::vector<compile::TestPointSet> nets(static_cast<std::size_t>(2 + pick(5)));
    for (int p = 0; p < points; ++p)
        nets[static_cast<std::size_t>(pick(static_cast<int>(nets.size())))].push_back(
            static_cast<std::uint16_t>(p * 3));
    std::erase_if(nets, [](const auto& net) { return net.empty(); });
    std::vector<compile::ImageNetlist> netlists;
    const char* names[] = {"A", "B", "MAIN"};
    for (const char* name : names) {
        std::vector<compile::TestPointSet> some;
        for (const auto& net : nets)
            if (pick(3) > 0)
                some.push_back(net);
        std::vector<compile::ImageComponent> components;
        if (some.size() >= 2 && pick(2) == 0)
            components.push_back(test::Diode(1 + pick(2), 0, 1));
        if (some.size() >= 2 && pick(2) == 0)
            components.push_back({"RESM", 3, 1, 0, 1});
        netlists.push_back(test::MakeNetlist(name, some, components));
        if (pick(2) == 0)
            netlists.back().switches.push_back({"J1", "S1", "", 1, 60, 61});
    }
    const std::vector<test::Lines> pieces = {
        {{"TEST", "MAIN"}},  {{"CONTINUITY", "A"}}, {{"SHORT", "B"}},    {{"TEST", "A"}},
        {{"HOLDING=", "1"}}, {{"HOLDING=", "0"}},   {{"SETLOWER", "6"}}, {{"SETUPPER", "30"}},
        {{"MISWIREON", ""}}, {{"LOOP", ""}},        {{"RCOUNT++", ""}},  {{"SW-CLOSED", "MAIN"}},
        {{"SW-OPEN", "A"}}};
    test::Lines lines;
    const int length = 2 + pick(6);
    for (int i = 0; i < length; ++i) {
        if (pick(4) == 0) {
            const char* branches[] = {"BHR", "BNHR", "GOTO", "BER"};
            lines.emplace_back(branches[pick(4)], std::to_string(i + 2 + pick(3)));
            continue;
        }
        for (const auto& line :
             pieces[static_cast<std::size_t>(pick(static_cast<int>(pieces.size())))])
            lines.push_back(line);
    }
    for (int i = 0; i < 3; ++i)
        lines.emplace_back("NOP", "");
    auto image = test::MakeProgram(lines, netlists);
    image.testParameters = {{5, 2, 2, 2}, {5, 2.2f, 1.8f, 2}};
    return image;
}

TEST(Coverage, JudgedByScansEqualsRunningEveryFault) {
    std::mt19937 random(20261125);
    int judged = 0, detected = 0, undetected = 0;
    for (int round = 0; round < 200; ++round) {
        const auto image = RandomProgram(random);
        const PointNames names({&image});
        const Harness harness = DesignedHarness(image);
        const Coverage coverage = MeasureCoverage(image, harness, names, kAll, {});
        std::set<std::string> missed;
        for (const auto& f : SingleFaults(image, harness, names, kAll))
            if (!DetectedByRun(image, harness, names, {}, coverage.good, f.fault))
                missed.insert(FaultText(f.fault, names, harness));
        ASSERT_EQ(Undetected(coverage, names, harness), missed) << "round " << round;
        judged += coverage.judgedByScans;
        detected += coverage.detected;
        undetected += coverage.faults - coverage.detected;
    }
    // The programs must exercise both answers, mostly by the fast path.
    EXPECT_GT(judged, 150);
    EXPECT_GT(detected, 1000);
    EXPECT_GT(undetected, 1000);
}

// clang-format off
struct ReasonCase { std::string name; test::Lines lines; std::string fault; std::string reason; };
// clang-format on

class Reasons : public ::testing::TestWithParam<ReasonCase> {};

// The door harness plus netlist SIDE, which only joins J1-3 to 0-020, netlist
// SPARE with one net of its own, a second diode D2 beside D1, and resistor R3
// from J1-3 to J1-4 read at 900 to 1100 ohms.
TEST_P(Reasons, UndetectedFaultSaysWhy) {
    auto image = test::DoorProgram(GetParam().lines);
    image.netlists.front().components.push_back(test::Diode(2, 0, 1));
    image.netlists.front().components.push_back({"RESM", 3, 2, 3, 1});
    image.testParameters = {{5, 2, 2, 2}, {5, 2.2f, 1.8f, 2}};
    image.netlists.push_back(test::MakeNetlist("SIDE", {{4, 20}}));
    image.netlists.push_back(test::MakeNetlist("SPARE", {{30, 31}}));
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    const Coverage coverage = MeasureCoverage(image, harness, names, kAll, {});
    std::map<std::string, std::string> reasons;
    for (const auto& u : coverage.undetected)
        reasons[FaultText(u.fault.fault, names, harness)] = u.reason;
    ASSERT_TRUE(reasons.contains(GetParam().fault)) << GetParam().fault;
    EXPECT_EQ(reasons[GetParam().fault], GetParam().reason);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Analyzer, Reasons, ::testing::Values(
    ReasonCase{"NetlistNotInTheSequence", {{"TEST", "MAIN"}}, "open:0-020", "its netlist is not in the sequence (SIDE)"},
    ReasonCase{"BranchSkipsTheScan", {{"TEST", "MAIN"}, {"GOTO", "4"}, {"TEST", "SIDE"}, {"END", ""}}, "open:0-020", "a branch skips the scan on line 3"},
    ReasonCase{"ScannedButNotForContinuity", {{"SHORT", "MAIN"}}, "open:J2-1", "MAIN is scanned, but not for continuity"},
    ReasonCase{"ShortBetweenPointsNoNetlistHolds", {{"TEST", "MAIN"}, {"TEST", "SIDE"}}, "short:J1-1,0-030", "a short between points the scans never see"},
    ReasonCase{"SoftShortScannedOnlyForContinuity", {{"CONTINUITY", "MAIN"}}, "short:J1-1,J1-2=10000", "MAIN is scanned, but not for shorts"},
    ReasonCase{"ResistorValueScannedOnlyForShorts", {{"SHORT", "MAIN"}}, "value:R3=2200", "MAIN is scanned, but not for components"},
    ReasonCase{"ParallelComponentHidesIt", {{"TEST", "MAIN"}}, "missing:D1", "a component in parallel hides it (D2)"},
    ReasonCase{"ShortScanLimits", {{"SETUPPER", "4"}, {"TEST", "MAIN"}}, "short:J1-1,J1-4", "the short scan limits (SETLOWER, SETUPPER) leave it out"}),
    [](const auto& info) { return info.param.name; });
// clang-format on

TEST(Coverage, ProgramFailingItsOwnHarnessRunsEveryFault) {
    // SIDE joins J1-1 to J1-2, which MAIN keeps apart: the designed harness leaves
    // SIDE out, and TEST SIDE reports it open.
    auto image = test::DoorProgram({{"TEST", "SIDE"}});
    image.netlists.push_back(test::MakeNetlist("SIDE", {{0, 2}}));
    const PointNames names({&image});
    const Harness harness = DesignedHarness(image);
    const Coverage coverage = MeasureCoverage(image, harness, names, kAll, {});
    EXPECT_FALSE(coverage.judgedByScans);
    EXPECT_FALSE(coverage.good.Passed());
    // Joining J1-1 to J1-2 takes the error away; opening J2-1 leaves it as it is.
    const auto undetected = Undetected(coverage, names, harness);
    EXPECT_FALSE(undetected.contains("short:J1-1,J1-2"));
    EXPECT_TRUE(undetected.contains("open:J2-1"));
}

} // namespace
} // namespace zolt::analyzer
