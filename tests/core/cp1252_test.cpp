#include "core/cp1252.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

TEST(Cp1252, EveryByteRoundTrips) {
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    const std::string utf8 = cp1252::toUtf8(all);
    EXPECT_EQ(cp1252::fromUtf8(utf8), all);
    EXPECT_NE(utf8, all);
}

TEST(Cp1252, MapsTheCodePageAndItsHoles) {
    const std::pair<unsigned char, const char*> cases[] = {
        {0x41, "A"},      {0x80, "\u20AC"}, {0x81, "\u0081"}, {0x8D, "\u008D"},
        {0x8F, "\u008F"}, {0x90, "\u0090"}, {0x9D, "\u009D"}, {0x9F, "\u0178"},
        {0xA0, "\u00A0"}, {0xE4, "\u00E4"}, {0xFF, "\u00FF"}, {0x96, "\u2013"},
    };
    for (const auto& [byte, utf8] : cases) {
        EXPECT_EQ(cp1252::toUtf8(std::string(1, static_cast<char>(byte))), utf8) << int(byte);
        EXPECT_EQ(cp1252::fromUtf8(utf8), std::string(1, static_cast<char>(byte))) << int(byte);
    }
}

TEST(Cp1252, TextOutsideTheCodePageBecomesQuestionMarks) {
    EXPECT_EQ(cp1252::fromUtf8("\u4E2D"), "?"); // not in the code page
    EXPECT_EQ(cp1252::fromUtf8("a\xC3"), "a?"); // cut sequence
    EXPECT_EQ(cp1252::fromUtf8("\xFF"
                               "b"),
              "?b");                                // not UTF-8 at all
    EXPECT_EQ(cp1252::fromUtf8("\U0001F600"), "?"); // beyond the basic plane
}

} // namespace
} // namespace zolt
