#include "base/find.h"

#include <gtest/gtest.h>

#include <random>

namespace ornavel {
namespace {

Text random_text(std::mt19937& random, TextView units, std::size_t longest) {
    Text text(random() % (longest + 1), u' ');
    for (char16_t& unit : text) unit = units[random() % units.size()];
    return text;
}

TEST(Find, AgreesWithTheStandardSearchAtEveryLengthAndPosition) {
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        const Text text = random_text(random, u"ab\xD800", 40);
        const Text part = random_text(random, u"ab\xD800", 3);
        const std::size_t from = random() % 45;
        const auto expected = part.empty() ? TextView::npos : TextView(text).find(part, from);
        ASSERT_EQ(find_text(text, part, from), expected);
    }
}

TEST(Find, IgnoresTheCaseOfLettersOnly) {
    std::mt19937 random(2);
    for (int round = 0; round < 20000; ++round) {
        const Text text = random_text(random, u"iIm<M{[\u0149\x10", 40);
        const Text part = random_text(random, u"im<{", 3);
        const std::size_t from = random() % 45;
        const Text lower = lower_case(text);
        const auto expected = part.empty() ? TextView::npos : TextView(lower).find(part, from);
        ASSERT_EQ(find_in_either_case(text, part, from), expected);
    }
}

TEST(Find, WhatBeginsAlikeMayBeginAgainWithinItself) {
    EXPECT_EQ(find_text(u"aaab", u"aab", 0), 1U);
    EXPECT_EQ(find_in_either_case(u"AAAB", u"aab", 0), 1U);
}

TEST(Find, APairDoesNotReachBeyondTheTextThatItIsSoughtIn) {
    const Pair pair{u'a', u'b'};
    const TextView whole = u"xab";
    EXPECT_EQ(find_pair(whole, 0, {&pair, 1}), 1U);
    EXPECT_EQ(find_pair(whole.substr(0, 2), 0, {&pair, 1}), TextView::npos);
}

TEST(Find, FindsTheFirstOfSeveralPairs) {
    const Pair pairs[] = {{u'[', u'#'}, {u'f', u'i'}, {u'z', any_unit, 0, any_unit}};
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        const Text text = random_text(random, u"[#fixyz", 40);
        const std::size_t from = random() % 45;
        const auto expected = std::min({TextView(text).find(u"[#", from), TextView(text).find(u"fi", from),
                                        TextView(text).find(u"z", from)});
        ASSERT_EQ(find_pair(text, from, pairs), expected);
    }
}

TEST(Find, NoPairsAreNowhere) { EXPECT_EQ(find_pair(u"some text or other", 0, {}), TextView::npos); }

} // namespace
} // namespace ornavel
