#include "cli/script_words.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace zolt::cli {
namespace {

std::vector<std::string> texts(const std::string& line) {
    std::vector<std::string> out;
    for (const auto& w : SplitWords(line))
        out.push_back(w.text);
    return out;
}

TEST(ScriptWords, SplitsAtBlanksKeepsQuotedBlanksAndDropsComments) {
    using V = std::vector<std::string>;
    EXPECT_EQ(texts("netlist add NET1"), (V{"netlist", "add", "NET1"}));
    EXPECT_EQ(texts("  answer  \"two words\" ok # the rest"), (V{"answer", "two words", "ok"}));
    EXPECT_EQ(texts("say \"a \"\"quoted\"\" word\""), (V{"say", "a \"quoted\" word"}));
    EXPECT_EQ(texts("# only a comment"), V{});
    EXPECT_EQ(texts("x \"#not a comment\""), (V{"x", "#not a comment"}));
    EXPECT_EQ(texts("x \"\""), (V{"x", ""}));
    EXPECT_TRUE(SplitWords("a \"b\"")[1].quoted);
    EXPECT_FALSE(SplitWords("a b")[1].quoted);
    EXPECT_THROW(SplitWords("x \"open"), std::invalid_argument);
}

TEST(ScriptWords, QuotedEscapesLineBreaksAndQuotes) {
    EXPECT_EQ(Quoted("a\nb"), "\"a\\nb\"");
    EXPECT_EQ(Quoted("a\r\nb"), "\"a\\nb\"");
    EXPECT_EQ(Quoted("say \"hi\""), "\"say \\\"hi\\\"\"");
}

} // namespace
} // namespace zolt::cli
