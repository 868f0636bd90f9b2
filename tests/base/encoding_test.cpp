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

TEST(Encoding, IllFormedSequencesAreNotUtf8) {
    for (const auto* bytes :
         {"\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82", "\x80", "\xE0\x80\x80"})
        EXPECT_FALSE(is_utf8(bytes)) << bytes;
    EXPECT_TRUE(is_utf8("\xF0\x9F\x98\x80"));
}

TEST(Encoding, PlanesBeyondTheFirstAreSurrogatePairs) {
    EXPECT_EQ(from_utf8("\xF0\x9F\x98\x80"), u"\U0001F600");
    EXPECT_EQ(to_utf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(Encoding, ALoneSurrogateIsWrittenAsTheReplacementCharacter) {
    EXPECT_EQ(to_utf8(u"a\xD800"), "a\xEF\xBF\xBD");
    EXPECT_EQ(to_utf8(u"\xDC00z"), "\xEF\xBF\xBDz");
}

TEST(Encoding, HtmlIsAsciiAsItStandsOrUtf8WithAMark) {
    EXPECT_EQ(encode_html(u"<p>"), "<p>");
    EXPECT_EQ(encode_html(u"\u00E9"), "\xEF\xBB\xBF\xC3\xA9");
}

TEST(Encoding, TheAnsiCodePageRefusesWhatItLacks) {
    EXPECT_EQ(windows_1252().encode(u"\u20AC5"), "\x80"
                                                 "5");
    EXPECT_FALSE(windows_1252().encode(u"\u0416"));
}

TEST(Encoding, EveryByteOfTheAnsiCodePageSurvivesARoundTrip) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(windows_1252().encode(windows_1252().decode(bytes)), bytes);
    }
}

} // namespace
} // namespace ornavel
