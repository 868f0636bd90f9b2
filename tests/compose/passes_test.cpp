#include "tests/compose/plain_passes.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>

namespace ornavel::compose {
namespace {

using Random = std::mt19937;

TextView pick(Random& random, std::span<const TextView> from) { return from[random() % from.size()]; }

Text glue(Random& random, std::span<const TextView> pieces, std::size_t most) {
    Text text;
    for (std::size_t i = random() % (most + 1); i > 0; --i) text.append(pick(random, pieces));
    return text;
}

/// Passes that own their texts.
struct OwnPasses {
    std::deque<Text> texts;
    std::vector<Pass> passes;
    void add(Text search, Text replacement) {
        texts.push_back(std::move(search));
        texts.push_back(std::move(replacement));
        passes.push_back({texts[texts.size() - 2], texts.back()});
    }
};

void expect_exact(const Text& text, std::span<const Pass> passes) {
    Text quick = text;
    ASSERT_EQ(Passes(passes).apply(quick), passes.size());
    Text in_order = text;
    ASSERT_EQ(Passes(passes).apply_in_order(in_order), passes.size());
    const Text expected = plain_passes(text, passes);
    ASSERT_EQ(quick, expected) << "body of " << text.size();
    ASSERT_EQ(in_order, expected);
}

TEST(Passes, AreExactOnTextsOfFewUnitsWherePatternsOverlapAndAreBornAtJoins) {
    const TextView units[] = {u"a", u"b", u"c", u"z", u"\xD800"};
    Random random(11);
    for (int round = 0; round < 120000; ++round) {
        OwnPasses own;
        for (std::size_t i = random() % 5 + 1; i > 0; --i)
            own.add(glue(random, units, 4), glue(random, units, 3));
        ASSERT_NO_FATAL_FAILURE(expect_exact(glue(random, units, 60), own.passes)) << round;
    }
}

TEST(Passes, AreExactOnFieldsWhoseValuesHoldLaterFields) {
    const TextView pieces[] = {
        u"[#SigFax#]", u"[#SigCell#]", u"[#SigFaxLabel#]", u"[#", u"#]",   u"[",        u"Sig",       u"Fax",
        u"<BR>",       u" ",           u"Fax: ",           u"x",  u"\r\n", u"[#SigFax", u"SigCell#]", u"z",
        u"[#Other#]"};
    Random random(12);
    for (int round = 0; round < 60000; ++round) {
        OwnPasses own;
        for (std::size_t i = random() % 9 + 1; i > 0; --i)
            own.add(glue(random, pieces, 3), glue(random, pieces, 3));
        ASSERT_NO_FATAL_FAILURE(expect_exact(glue(random, pieces, 30), own.passes)) << round;
    }
}

TEST(Passes, AreExactWhereChangesTravelFarBeyondTheirRegion) {
    // Each pass brings the next mark nearer to the edge: an effect that walks through a text without
    // barriers.
    const TextView pieces[] = {u"ab", u"ba", u"aab", u"abb", u"b", u"a"};
    Random random(13);
    for (int round = 0; round < 20000; ++round) {
        OwnPasses own;
        for (int i = 0; i < 12; ++i) own.add(i % 2 == 0 ? u"ab" : u"ba", glue(random, pieces, 2));
        Text text(random() % 400, u'a');
        for (std::size_t i = random() % 4; i > 0 && !text.empty(); --i) text[random() % text.size()] = u'b';
        ASSERT_NO_FATAL_FAILURE(expect_exact(text, own.passes)) << round;
    }
}

TEST(Passes, WalkTheWholeTextWhenThereAreTooManyBeginnings) {
    OwnPasses own;
    for (char16_t unit = u'a'; unit <= u'z'; ++unit) own.add(Text(2, unit), Text(1, unit));
    expect_exact(u"aabbccddeeffggzzzz", own.passes);
    Text all = u"aabbccddeeffggzzzz";
    EXPECT_TRUE(Passes(own.passes).apply_all(all));
    EXPECT_EQ(all, u"abcdefgzz");
}

TEST(Passes, AnEmptySearchTextChangesNothing) {
    OwnPasses own;
    own.add(u"", u"x");
    own.add(u"b", u"c");
    expect_exact(u"abc", own.passes);
}

TEST(Passes, StopAtThePassThatWouldGrowTooFarAndKeepWhatWasDone) {
    const Text large(1 << 20, u'y');
    OwnPasses own;
    own.add(u"a", u"b");
    own.add(u"x", large);
    own.add(u"b", u"c");
    Text text = Text(1 << 10, u'x') + u"a";
    EXPECT_EQ(Passes(own.passes).apply(text), 1U);
    EXPECT_EQ(text, Text(1 << 10, u'x') + u"b");
    Text whole = Text(1 << 10, u'x') + u"a";
    EXPECT_FALSE(Passes(own.passes).apply_all(whole));
    EXPECT_EQ(whole, Text(1 << 10, u'x') + u"a");
}

TEST(Passes, StopAlsoWhenALaterPassWouldShrinkTheTextAgain) {
    const Text large(1 << 20, u'y');
    OwnPasses own;
    own.add(u"x", large);
    own.add(u"y", u"");
    Text text(1 << 10, u'x');
    EXPECT_EQ(Passes(own.passes).apply(text), 0U);
    EXPECT_EQ(text, Text(1 << 10, u'x'));
}

} // namespace
} // namespace ornavel::compose
