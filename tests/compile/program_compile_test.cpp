// The compile as a function of a project: the same project gives the same
// bytes, and neither the project nor any file changes.
#include "compile_project.h"
#include "file/program_file.h"

#include <gtest/gtest.h>

namespace zolt::test {
namespace {

TEST(ProgramCompile, AConstProjectCompilesTwiceToTheSameBytesTouchingNothing) {
    CompileProject p;
    p.state.params().SetVal(param::SeqBuild, Value(std::int32_t{1}));
    p.fill(table::Fixture, {{"0-000", "J1", "1"}, {"0-001", "J1", "2"}});
    p.fill(table::Connector, {{"J1", "2"}});
    p.fill(table::Wire, {{"A", "RED"}, {"B", "GRN"}});
    p.fill(table::Pin, {{"J1", "2", "A"}, {"J1", "1", "B"}});
    p.sequence({{"CONTINUITY", "MAIN"}, {"END", ""}});
    p.state.SetDirty(false);
    const auto before = file::ProgramFileBytes(p.state, "door test.zlf");
    const compile::CompileRequest request = compile::CompileDriver(p.state, p.clock).Request();

    const Project& project = p.state.project();
    const compile::CompileResult first = compile::Compile(project, request);
    const compile::CompileResult second = compile::Compile(project, request);
    EXPECT_EQ(first.end, compile::CompileEnd::Finished);
    EXPECT_EQ(first.errors, 0) << first.results;
    ASSERT_EQ(first.files.size(), 2u); // the image and the .dgn
    EXPECT_EQ(first.files[0].first, (p.folder / "door test.bin").string());
    EXPECT_EQ(first.files, second.files);
    EXPECT_EQ(first.results, second.results);
    EXPECT_EQ(first.wireOrders.size(), 1u); // the order is CompileDriverTest's

    EXPECT_EQ(file::ProgramFileBytes(p.state, "door test.zlf"), before);
    EXPECT_FALSE(p.state.IsDirty());
    EXPECT_TRUE(std::filesystem::is_empty(p.folder));
}

} // namespace
} // namespace zolt::test
