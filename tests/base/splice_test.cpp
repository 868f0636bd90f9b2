#include "base/splice.h"

#include "base/errors.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

Text spliced(Text text, std::vector<std::uint32_t> places, std::size_t removed, TextView replacement) {
    splice(text, places, removed, replacement);
    return text;
}

TEST(Splice, MovesWhatIsKeptAndPutsTheReplacementAtEachPlace) {
    EXPECT_EQ(spliced(u"abc", {}, 1, u"x"), u"abc");
    EXPECT_EQ(spliced(u"abcdef", {0, 3}, 2, u""), u"cf");
    EXPECT_EQ(spliced(u"abcdef", {1, 4}, 2, u"x"), u"axdx");
    EXPECT_EQ(spliced(u"abcdef", {1, 4}, 2, u"xy"), u"axydxy");
    EXPECT_EQ(spliced(u"abcdef", {0, 2, 4}, 2, u"xyz"), u"xyzxyzxyz");
    EXPECT_EQ(spliced(u"abc", {0, 1, 3}, 0, u"-"), u"-a-bc-");
}

/// By the rule, one occurrence after the other.
Text replaced_one_by_one(Text text, TextView search, TextView replacement) {
    for (auto at = text.find(search); at != Text::npos; at = text.find(search, at + replacement.size()))
        text.replace(at, search.size(), replacement);
    return text;
}

TEST(Substitute, ReplacesEveryOccurrenceFromTheFirstUnitOn) {
    const Text text = u"one two one twone";
    for (const TextView search : {u"one", u"o", u"twone", u"x"})
        for (const TextView replacement : {u"", u"1", u"one", u"longer than before"}) {
            Text changed = text;
            substitute(changed, search, replacement);
            EXPECT_EQ(changed, replaced_one_by_one(text, search, replacement));
        }
}

TEST(Substitute, LeavesATextAsItIsThatWouldOutgrowTheLargest) {
    const Text many(1 << 10, u'x');
    Text text = many;
    EXPECT_THROW(substitute(text, u"x", Text((largest_text >> 10) + 1, u'y')), TextTooLarge);
    EXPECT_EQ(text, many);
}

} // namespace
} // namespace ornavel
