#include "programs/one_line.h"

#include <gtest/gtest.h>

namespace ornavel::programs {
namespace {

TEST(OneLine, ShowsAValueAsItIsWhereItHasOneLine) {
    EXPECT_EQ(in_one_line(u""), u"");
    EXPECT_EQ(in_one_line(u"  Jo \U0001F600 & \u00C4nne "), u"  Jo \U0001F600 & \u00C4nne ");
}

TEST(OneLine, HasABlankForEachLineBreakAndEachControlSign) {
    EXPECT_EQ(in_one_line(u"a\r\nb\nc\rd\te"), u"a b c d e");
    EXPECT_EQ(in_one_line(Text(u"a\0b", 3)), u"a b");
    EXPECT_EQ(in_one_line(u"\r\n\r\n"), u"  ");
}

TEST(OneLine, EndsInAnEllipsisWhereTheValueIsLonger) {
    EXPECT_EQ(in_one_line(Text(100, u'x')), Text(100, u'x'));
    EXPECT_EQ(in_one_line(Text(101, u'x')), Text(100, u'x') + u"\u2026");
}

TEST(OneLine, CutsNoPairInTwo) {
    const Text before(99, u'x'), pair = u"\U0001F600";
    EXPECT_EQ(in_one_line(before + pair), before + u"\u2026");
    EXPECT_EQ(in_one_line(before.substr(1) + pair), before.substr(1) + pair);
    EXPECT_EQ(in_one_line(before.substr(1) + pair + u"y"), before.substr(1) + pair + u"\u2026");
    EXPECT_EQ(in_one_line(u"ab\xDC00", 2), u"ab\u2026");
    for (const TextView first_and_last : {u"\xD800\xDC00", u"\xDBFF\xDFFF"})
        EXPECT_EQ(in_one_line(u"a" + Text(first_and_last), 2), u"a\u2026");
    for (const TextView no_pair : {u"\xD7FF\xDC00", u"\xDC00\xDC00", u"\xD800\xDBFF", u"\xD800\xE000"})
        EXPECT_EQ(in_one_line(u"a" + Text(no_pair), 2), u"a" + Text(no_pair.substr(0, 1)) + u"\u2026");
    // A lone half is a sign like any other.
    EXPECT_EQ(in_one_line(before + u"\xD83D" + u"yz"), before + u"\xD83D" + u"\u2026");
}

} // namespace
} // namespace ornavel::programs
