// The plain YAML document the WireViz reader walks: what a map answers, what
// an alias is, and the bound on its size.
#include "interchange/yaml_document.h"

#include <gtest/gtest.h>

namespace zolt::interchange {
namespace {

TEST(YamlDocument, AMissingKeyIsNoneAndAnEmptyValueIsNull) {
    const YamlRead read = ReadYaml("a:\nb: 1\nb: 2\n");
    ASSERT_TRUE(read.ok()) << read.error;
    const YamlNode root = read.document.Root();
    EXPECT_FALSE(root["c"]);
    ASSERT_TRUE(root["a"]);
    EXPECT_TRUE(root["a"].IsNull());
    EXPECT_EQ(root["b"].Scalar(), "1"); // the first of a repeated key
    EXPECT_EQ(root["b"].Line(), 2);
}

// Six nodes: the map, its keys a and b, the list and its two items. The
// alias adds none, and is the anchored list itself.
TEST(YamlDocument, AnAliasIsTheAnchoredNodeNotACopy) {
    const YamlRead read = ReadYaml("a: &x [1, 2]\nb: *x\n", 6);
    ASSERT_TRUE(read.ok()) << read.error;
    const YamlNode b = read.document.Root()["b"];
    ASSERT_EQ(b.size(), 2u);
    EXPECT_EQ(b[1].Scalar(), "2");
    EXPECT_EQ(b.Line(), 1);
}

TEST(YamlDocument, OneNodeTooManyIsRefusedAtItsLine) {
    EXPECT_TRUE(ReadYaml("- a\n- b\n- c\n", 4).ok());
    EXPECT_EQ(ReadYaml("- a\n- b\n- c\n- d\n", 4).error,
              "line 4: more than 4 values, more than any drawing holds");
}

} // namespace
} // namespace zolt::interchange
