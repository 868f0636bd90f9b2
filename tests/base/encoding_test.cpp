#include "base/encoding.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

using namespace std::string_literals;

TEST(Encoding, AByteOrderMarkDecidesAndIsNotPartOfTheText) {
    EXPECT_EQ(decode("\xEF\xBB\xBF\xC3\xA9", windows_1252()), u"\u00E9");
    EXPECT_EQ(decode("\xFF\xFE\xE9\x00"s, windows_1252()), u"\u00E9");
    EXPECT_EQ(decode("\xFE\xFF\x00\xE9"s, windows_1252()), u"\u00E9");
}

TEST(Encoding, WithoutAMarkValidUtf8IsUtf8AndTheRestIsAnsi) {
    EXPECT_EQ(decode("\xC3\xA9", windows_1252()), u"\u00E9");
    EXPECT_EQ(decode("caf\xE9 \x80", windows_1252()), u"caf\u00E9 \u20AC");
}

TEST(Encoding, AnOddByteBehindAMarkedTextIsNoUnit) {
    EXPECT_EQ(decode("\xFF\xFE\xE9\x00\x41"s, windows_1252()), u"\u00E9");
}

TEST(Encoding, IllFormedSequencesAreNotUtf8) {
    for (const auto* bytes :
         {"\xC0\x80", "\xC1\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF5\x80\x80\x80", "\xF4\x90\x80\x80",
          "\xF0\x8F\xBF\xBF", "\xE2\x82", "\x80", "\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xC3\x28",
          "\xC3\xC3", "\xE2\x28\xA1", "\xE2\x82\x28"})
        EXPECT_FALSE(is_utf8(bytes)) << bytes;
    EXPECT_TRUE(is_utf8("\xF0\x9F\x98\x80"));
}

struct Encoded {
    Text text;
    std::string bytes;
};

TEST(Encoding, EachLengthOfASequenceHasItsFirstAndItsLastCharacter) {
    const Encoded cases[] = {{{u'\0'}, {'\0'}},
                             {u"\x7F", "\x7F"},
                             {u"\x80", "\xC2\x80"},
                             {u"\u07FF", "\xDF\xBF"},
                             {u"\u0800", "\xE0\xA0\x80"},
                             {u"\xD7FF", "\xED\x9F\xBF"},
                             {u"\xE000", "\xEE\x80\x80"},
                             {u"\xFFFF", "\xEF\xBF\xBF"},
                             {u"\U00010000", "\xF0\x90\x80\x80"},
                             {u"\U000FFFFF", "\xF3\xBF\xBF\xBF"},
                             {u"\U0010FFFF", "\xF4\x8F\xBF\xBF"}};
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(to_utf8(text), bytes);
        EXPECT_EQ(from_utf8(bytes), text);
        EXPECT_TRUE(is_utf8(bytes));
    }
}

TEST(Encoding, EachByteThatBelongsToNoCharacterIsReplaced) {
    EXPECT_EQ(from_utf8("a\xE2\x82z\xFF"), u"a\uFFFD\uFFFDz\uFFFD");
}

TEST(Encoding, PlanesBeyondTheFirstAreSurrogatePairs) {
    EXPECT_EQ(from_utf8("\xF0\x9F\x98\x80"), u"\U0001F600");
    EXPECT_EQ(to_utf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(Encoding, ALoneSurrogateIsWrittenAsTheReplacementCharacter) {
    EXPECT_EQ(to_utf8(u"a\xD800"), "a\xEF\xBF\xBD");
    EXPECT_EQ(to_utf8(u"\xDC00z"), "\xEF\xBF\xBDz");
    EXPECT_EQ(to_utf8(u"\xD800\xE000"), "\xEF\xBF\xBD\xEE\x80\x80");
    EXPECT_EQ(to_utf8(u"\xDBFF\xDBFF"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(to_utf8(u"\xDC00\xDC00"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Encoding, HtmlIsAsciiAsItStandsOrUtf8WithAMark) {
    EXPECT_EQ(encode_html(u"<p>\x7F"), "<p>\x7F");
    EXPECT_EQ(encode_html(u"\x80"), "\xEF\xBB\xBF\xC2\x80");
    EXPECT_EQ(encode_html(u"\u00E9"), "\xEF\xBB\xBF\xC3\xA9");
}

TEST(Encoding, TheAnsiCodePageRefusesWhatItLacks) {
    EXPECT_EQ(windows_1252().encode(u"\u20AC5"), "\x80"
                                                 "5");
    EXPECT_FALSE(windows_1252().encode(u"\u0416"));
}

TEST(Encoding, TheAnsiCodePageHasItsOwnSignsBetweenTheTwoTables) {
    const TextView signs = u"\x7F€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8DŽ\x8F\x90‘’“”•–—˜™š›œ\x9DžŸ\xA0";
    for (int byte = 0x7F; byte <= 0xA0; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(windows_1252().decode(bytes), signs.substr(static_cast<std::size_t>(byte - 0x7F), 1))
            << byte;
    }
    EXPECT_EQ(windows_1252().decode("\xFF"), u"\u00FF");
    EXPECT_FALSE(windows_1252().encode(u"\u0100"));
    EXPECT_FALSE(windows_1252().encode(u"\x80"));
    EXPECT_EQ(windows_1252().encode(u"\x7F\u00A0\u00FF"), "\x7F\xA0\xFF");
}

TEST(Encoding, EveryByteOfTheAnsiCodePageSurvivesARoundTrip) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(windows_1252().encode(windows_1252().decode(bytes)), bytes);
    }
}

} // namespace
} // namespace ornavel
