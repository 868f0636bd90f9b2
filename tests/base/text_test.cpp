#include "base/errors.h"
#include "base/text.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

TEST(Text, LowerCasingKeepsLengthsAndTouchesAsciiOnly) {
    EXPECT_EQ(lower_case(u"<BODY \u00C4\u0130>"), u"<body \u00C4\u0130>");
}

TEST(Text, EveryAsciiLetterHasItsOtherCase) {
    constexpr TextView large = u"@ABCDEFGHIJKLMNOPQRSTUVWXYZ[", small = u"@abcdefghijklmnopqrstuvwxyz[";
    EXPECT_EQ(lower_case(large), small);
    EXPECT_EQ(upper_case(small), large);
    EXPECT_EQ(upper_case(u"`{"), u"`{");
    EXPECT_TRUE(same_name(large, small));
}

TEST(Text, NamesCompareWithoutCase) {
    EXPECT_TRUE(same_name(u"SigFax", u"Sigfax"));
    EXPECT_FALSE(same_name(u"SigFax", u"SigFax2"));
    EXPECT_TRUE(name_before(u"alpha.htm", u"Beta.htm"));
    EXPECT_FALSE(name_before(u"beta.htm", u"Alpha.htm"));
}

TEST(Text, TrimmingTakesBlanksOnly) {
    EXPECT_EQ(trim(u"  a b \t "), u"a b \t");
    EXPECT_EQ(trim(u"   "), u"");
}

struct Replacement {
    TextView text, search, replacement, result;
};

TEST(Text, ReplacesEveryOccurrenceInOnePass) {
    const Replacement cases[] = {
        {u"aXbXc", u"X", u"--", u"a--b--c"},
        {u"aaa", u"aa", u"a", u"aa"},
        {u"abc", u"", u"x", u"abc"},
        {u"abc", u"B", u"x", u"abc"},
        {u"", u"a", u"b", u""},
        {u"\xD800x", u"\xD800", u"y", u"yx"},
        {u"XX", u"X", u"XX", u"XXXX"},
    };
    for (const auto& c : cases) EXPECT_EQ(replace_all(Text(c.text), c.search, c.replacement), c.result);
}

TEST(Text, AReplacementThatGrowsWithoutBoundIsAFailure) {
    const Text many(1 << 14, u'x');
    const Text large(1 << 13, u'y');
    EXPECT_THROW(replace_all(many, u"x", large), Failure);
    EXPECT_EQ(replace_all(many, u"x", u"").size(), 0U);
}

TEST(Text, SplitsAtEverySeparator) {
    EXPECT_EQ(split(u"a;b;;c", u";"), (std::vector<Text>{u"a", u"b", u"", u"c"}));
    EXPECT_EQ(split(u"", u";"), (std::vector<Text>{u""}));
    EXPECT_EQ(split(u"a\r\nb", u"\r\n"), (std::vector<Text>{u"a", u"b"}));
}

TEST(Text, LinesEndAtAnyLineEndAndAFinalOneMakesNoFurtherLine) {
    EXPECT_EQ(lines_of(u"a\r\nb\nc\rd"), (std::vector<Text>{u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(lines_of(u"a\r\n"), (std::vector<Text>{u"a"}));
    EXPECT_EQ(lines_of(u"\r\n\r\n"), (std::vector<Text>{u"", u""}));
    EXPECT_TRUE(lines_of(u"").empty());
}

TEST(Text, ANumericValueIsTheLongestRunOfLeadingDigits) {
    EXPECT_EQ(numeric_value(u"  15 tips"), 15);
    EXPECT_EQ(numeric_value(u""), 0);
    EXPECT_EQ(numeric_value(u"x1"), 0);
    EXPECT_EQ(numeric_value(u"-4"), 0);
    EXPECT_EQ(numeric_value(u"99999999999999999999"), 2147483647);
}

TEST(Text, ASignedValueMayHaveAMinusInFront) {
    EXPECT_EQ(signed_value(u" -4500 twips"), -4500);
    EXPECT_EQ(signed_value(u"4500"), 4500);
    EXPECT_EQ(signed_value(u"-99999999999999999999"), -2147483647);
    for (const TextView none : {u"", u"  ", u"-", u"x-4"}) EXPECT_EQ(signed_value(none), 0);
}

TEST(Text, OneDigitGetsAZeroInFrontAndTwoGetNone) {
    EXPECT_EQ(two_digits(0), u"00");
    EXPECT_EQ(two_digits(9), u"09");
    EXPECT_EQ(two_digits(10), u"10");
    EXPECT_EQ(two_digits(59), u"59");
}

} // namespace
} // namespace ornavel
