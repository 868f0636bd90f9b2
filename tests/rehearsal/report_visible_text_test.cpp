#include "rehearsal/report/visible_text.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal::report {
namespace {

using Words = std::vector<std::string>;

TEST(VisibleText, MarkupPartsWordsAndIsNotSeen) {
    EXPECT_EQ(visible_words("<p>Dear&nbsp;Ann,<br>yes&nbsp &amp; no</p>"),
              (Words{"Dear", "Ann,", "yes", "&amp;", "no"}));
    EXPECT_EQ(visible_words("a\xC2\xA0"
                            "b\r\n\tc"),
              (Words{"a", "b", "c"}));
}

TEST(VisibleText, CommentsStylesScriptsAndTitlesAreNotSeen) {
    EXPECT_EQ(visible_words("<TITLE>x</TITLE>a<style>p > a {}</style>b<!-- c > d -->e<SCRIPT>f</SCRIPT>g"),
              (Words{"a", "b", "e", "g"}));
    EXPECT_EQ(visible_words("a<!-- open"), Words{"a"});
    EXPECT_EQ(visible_words("a<style>open"), Words{"a"});
}

TEST(VisibleText, OnlyWhatABrowserTakesForATagIsOne) {
    EXPECT_EQ(visible_words("1 < 2 <3"), (Words{"1", "<", "2", "<3"}));
    EXPECT_EQ(visible_words("to <ann@example.com> now"), (Words{"to", "now"}));
}

std::string missing(const char* text, const char* html) {
    return missing_words(words_of(text), visible_words(html));
}

TEST(VisibleText, WhatIsThereInItsOrderIsNotMissing) {
    EXPECT_EQ(missing("Dear Ann, yes.", "<td>Letterhead</td><p>Dear <b>Ann,</b></p> yes. <p>Jo"), "");
    EXPECT_EQ(missing("", "<p>x"), "");
    EXPECT_EQ(missing("own words here -----Original", "<b>own words here</b> Jo Sender -----Original"), "");
}

TEST(VisibleText, WordsThatAreWrittenApartOrTogetherAreThere) {
    EXPECT_EQ(missing("see (www.a.example), thanks", "see (<a href=x>www.a.example</a>), thanks"), "");
    EXPECT_EQ(missing("one two", "onetwo"), "");
}

TEST(VisibleText, TheFirstMissingWordsAreTold) {
    EXPECT_EQ(missing("Dear Ann, yes.", "<td>Letterhead</td>"), "Dear Ann, yes.");
    EXPECT_EQ(missing("write to <ann@example.com> now", "write to <ann@example.com> now"),
              "<ann@example.com> now");
    EXPECT_EQ(missing("1 2 3 4 5 6 7 8 9 10", ""), "1 2 3 4 5 6 7 8");
    EXPECT_EQ(missing("b a", "a b"), "a");
}

} // namespace
} // namespace ornavel::rehearsal::report
