#include "rehearsal/excerpt.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

TEST(Excerpt, AShortTextIsWhole) { EXPECT_EQ(around("short", 3), "short"); }

TEST(Excerpt, ALongTextIsCutBetweenItsCharacters) {
    std::string umlauts;
    for (int i = 0; i < 200; ++i) umlauts += "ü";
    const std::string part = around(umlauts, 101);
    EXPECT_TRUE(part.starts_with("…ü") && part.ends_with("ü…")) << part;
}

TEST(Excerpt, TheLongestBeginningIsFoundWhereItStandsFirst) {
    const auto find = [](std::string_view part, std::string_view text) {
        const auto [place, length] = longest_beginning(part, text);
        return std::pair(place, length);
    };
    using Found = std::pair<std::size_t, std::size_t>;
    EXPECT_EQ(find("abcd", "ab abc abcx"), (Found{3, 3}));
    EXPECT_EQ(find("abc", "xabc"), (Found{1, 3}));
    EXPECT_EQ(find("abc", "xyz"), (Found{0, 0}));
    EXPECT_EQ(find("", "xyz"), (Found{0, 0}));
}

} // namespace
} // namespace ornavel::rehearsal
