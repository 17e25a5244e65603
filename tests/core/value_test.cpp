#include "core/value.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

struct NumericCase {
    const char* text;
    bool numeric;
    double val;
};

TEST(Value, NumericTestAndValAgreeWithTheRunTime) {
    const NumericCase cases[] = {
        {"12", true, 12},     {"  12  ", true, 12}, {"-3.5", true, -3.5}, {"+7", true, 7},
        {"1E3", true, 1000},  {"1.5D2", true, 150}, {".5", true, 0.5},    {"&H10", true, 16},
        {"&HFFFF", true, -1}, {"&O17", true, 15},   {"", false, 0},       {"   ", false, 0},
        {"abc", false, 0},    {"12abc", false, 12}, {"1 2", false, 12},   {"-", false, 0},
        {".", false, 0},      {"1E", false, 1},     {"3-000", false, 3},  {"0-000", false, 0},
        {"1e+", false, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(vb::IsNumeric(std::string_view(c.text)), c.numeric) << c.text;
        EXPECT_DOUBLE_EQ(vb::Val(c.text), c.val) << c.text;
    }
}

TEST(Value, NumberTextIsTheShortestRunTimeForm) {
    // clang-format off
    const std::pair<double, const char*> cases[] = {
        {0, "0"}, {1, "1"}, {-2, "-2"}, {0.5, "0.5"}, {0.1, "0.1"}, {2.0, "2"}, {1e20, "1E+20"},
        {1.5e-7, "1.5E-07"}, {123456789012345.0, "123456789012345"}, {1.0 / 3, "0.333333333333333"}};
    // clang-format on
    for (const auto& [n, text] : cases)
        EXPECT_EQ(vb::NumberText(n), text) << n;
}

TEST(Value, IntegerConversionsRoundHalfToEvenAndRefuseOverflow) {
    EXPECT_EQ(vb::CInt(Value("2.5")), std::int16_t{2});
    EXPECT_EQ(vb::CInt(Value("3.5")), std::int16_t{4});
    EXPECT_EQ(vb::CInt(Value(-2.5)), std::int16_t{-2});
    EXPECT_EQ(vb::CInt(Value("32767")), std::int16_t{32767});
    EXPECT_FALSE(vb::CInt(Value("32768")));
    EXPECT_FALSE(vb::CInt(Value("-32769")));
    EXPECT_FALSE(vb::CInt(Value("x")));
    EXPECT_FALSE(vb::CInt(Value()));
    EXPECT_EQ(vb::CLng(Value("99999")), 99999);
    EXPECT_EQ(vb::CLng(Value(2147483647.0)), 2147483647);
    EXPECT_FALSE(vb::CLng(Value(2147483648.0)));
}

TEST(Value, TextOfEachKind) {
    EXPECT_EQ(Value().text(), "");
    EXPECT_EQ(Value(std::int16_t{-5}).text(), "-5");
    EXPECT_EQ(Value(std::int32_t{70000}).text(), "70000");
    EXPECT_EQ(Value(2.0).text(), "2");
    EXPECT_EQ(Value(true).text(), "True");
    EXPECT_EQ(Value(true).number(), -1.0);
    EXPECT_FALSE(Value("x").number());
}

TEST(Value, TrimRemovesBlanksOnlyAndCaseMapsCodePageLetters) {
    EXPECT_EQ(vb::Trim("  a b  "), "a b");
    EXPECT_EQ(vb::Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(vb::LTrim("  x "), "x ");
    EXPECT_EQ(vb::RTrim("  x "), "  x");
    EXPECT_EQ(vb::UCase("net1 äöü ÿ œ"), "NET1 ÄÖÜ Ÿ Œ");
    EXPECT_EQ(vb::LCase("NET1 ÄÖÜ Ÿ"), "net1 äöü ÿ");
    EXPECT_EQ(vb::UCase("÷ß"), "÷ß");
}

TEST(Value, ComparisonsFollowTheRunTime) {
    EXPECT_FALSE(vb::TextEquals("Pin", "PIN"));
    EXPECT_TRUE(vb::TextEqualsNoCase("Pin", "PIN"));
    EXPECT_TRUE(vb::LooseEquals(Value("1"), Value(std::int32_t{1})));
    EXPECT_TRUE(vb::LooseEquals(Value(0.1), Value("0.1")));
    EXPECT_FALSE(vb::LooseEquals(Value("1"), Value("1.0")));
    EXPECT_FALSE(vb::LooseEquals(Value(), Value("")));
    EXPECT_TRUE(vb::LooseEquals(Value(), Value()));
}

} // namespace
} // namespace zolt
