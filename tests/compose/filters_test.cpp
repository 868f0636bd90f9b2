#include "compose/filters.h"

#include "base/errors.h"
#include "tests/compose/plain_filters.h"

#include <gtest/gtest.h>

#include <random>
#include <span>

namespace ornavel::compose {
namespace {

struct Example {
    TextView text, result;
};

Text bared(Text text) {
    bare_body_tag(text);
    return text;
}

TEST(BodyTag, LosesItsAttributes) {
    const Example examples[] = {
        {u"<html><body bgcolor=red>x</body>", u"<html><BODY>x</body>"},
        {u"<body>x", u"<body>x"},
        {u" <body>x", u" <BODY>x"},
        {u"<Body >x<body a>", u"<BODY>x<body a>"},
        {u"<body bgcolor=red", u"<body bgcolor=red"},
        {u"no tag", u"no tag"},
    };
    for (const auto& [text, result] : examples) EXPECT_EQ(bared(Text(text)), result);
}

TEST(StyleBlock, OnlyTheFirstIsEmptied) {
    Text text = u"a<Style>b</STYLE>c<style>d</style>";
    EXPECT_TRUE(empty_style_block(text).has_value());
    EXPECT_EQ(text, u"a<STYLE></STYLE>c<style>d</style>");
}

TEST(StyleBlock, WithAttributesOrWithoutAnEndStays) {
    for (const TextView kept : {u"<style type=x>b</style>", u"</style><style>b", u""}) {
        Text text(kept);
        EXPECT_FALSE(empty_style_block(text).has_value());
        EXPECT_EQ(text, kept);
    }
}

TEST(Images, ThoseWithARelationOrADescriptionGo) {
    const Example examples[] = {
        {u"<IMG SRC=x ALT=y>", u"<xIMG>"},
        {u"<img src=x>", u"<IMG  src=x>"},
        {u"<img id=rid7>", u"<xIMG>"},
        {u"<img a<img alt=b>c", u"<xIMG>c"},
        {u"<img a><img alt=b", u"<IMG  a><img alt=b"},
        {u"<img a <img b>", u"<IMG  a <IMG  b>"},
        {u"<xxxIMG old><img", u"<IMG  old><img"},
        {u"<img a<xxximg alt=>", u"<xIMG>"},
        {u"", u""},
    };
    for (const auto& [text, result] : examples) EXPECT_EQ(without_images(text), result);
}

TEST(ImageLetters, AreBrokenInAnyCase) {
    Text text = u"<img><Img>imIMGg";
    break_image_tags(text);
    EXPECT_EQ(text, u"<xMG><xMG>imxMGg");
}

TEST(Links, EndAtATerminatorAndKeepAFullStop) {
    const Example examples[] = {
        {u"see www.a.com.", u"see <a href=\"http://www.a.com.\">www.a.com.</a>"},
        {u"(www.a)", u"(<a href=\"http://www.a\">www.a</a>)"},
        {u"www.a\nb c", u"<a href=\"http://www.a\nb\">www.a\nb</a> c"},
        {u"www.a www.a", u"<a href=\"http://www.a\">www.a</a> <a href=\"http://www.a\">www.a</a>"},
        {u"www.a@b c", u"<a href=\"http://www.a@b\">www.a@b</a> c"},
        {u"no address", u"no address"},
    };
    for (const auto& [text, result] : examples) EXPECT_EQ(with_links(text, u"www."), result);
}

TEST(Links, EveryTerminatorEndsAWord) {
    for (const char16_t unit : TextView(u" \r\t)?,:;!")) {
        const Text text = Text(u"www.a") + unit + u"b";
        EXPECT_EQ(with_links(text, u"www."), Text(u"<a href=\"http://www.a\">www.a</a>") + unit + u"b");
    }
}

TEST(Links, AnAddressRepeatedFortyTimesIsLinkedOnceAtEachPlace) {
    Text text, expected;
    for (int i = 0; i < 40; ++i) {
        text += u"www.example.com ";
        expected += u"<a href=\"http://www.example.com\">www.example.com</a> ";
    }
    EXPECT_EQ(with_links(text, u"www."), expected);
}

TEST(Links, WordsInsideWordsGrowOnlyUpToTheBound) {
    Text text;
    for (int i = 0; i < 40; ++i) text += u"www.";
    EXPECT_THROW(with_links(text, u"www."), TextTooLarge);
}

Text with_tabs_replaced(Text text) {
    replace_tabs(text);
    return text;
}

TEST(PlainLines, BecomeDivisionsAndTabsBecomeBlanks) {
    EXPECT_EQ(lines_as_divisions(u"a\r\n \r\nb\nc"),
              u"<div><span>a</span></div><div><span>&nbsp </span></div>"
              u"<div><span>b\nc</span></div>");
    EXPECT_EQ(lines_as_divisions(u""), u"<div><span>&nbsp</span></div>");
    EXPECT_EQ(with_tabs_replaced(u"a\t\tb"), u"a&nbsp;&nbsp;&nbsp;&nbsp&nbsp;&nbsp;&nbsp;b");
    EXPECT_EQ(with_tabs_replaced(u" "), u"&nbsp ");
    EXPECT_EQ(with_tabs_replaced(u"a b"), u"a b");
}

TEST(PlainLines, WhoseTabsWouldMakeThemTooLargeStayAsTheyAre) {
    const Text tabs(largest_text / 12, u'\t');
    Text text = tabs;
    EXPECT_THROW(replace_tabs(text), TextTooLarge);
    EXPECT_EQ(text, tabs);
}

/// Texts glued from pieces by chance.
class Pieces {
public:
    Pieces(unsigned seed, std::span<const TextView> pieces) : random_(seed), pieces_(pieces) {}

    Text text(std::size_t most) {
        Text text;
        for (std::size_t i = random_() % (most + 1); i > 0; --i)
            text.append(pieces_[random_() % pieces_.size()]);
        return text;
    }

private:
    std::mt19937 random_;
    std::span<const TextView> pieces_;
};

TEST(Filters, AreExactOnRandomMarkup) {
    const TextView pieces[] = {u"<img", u"<IMG",    u"<im",      u"g",        u">",     u"alt=",
                               u"ALT",  u"=",       u"id=rid",   u"ID=R",     u"id",    u"<xxximg",
                               u"<xxx", u"IMG",     u" ",        u"x",        u"<body", u"<BODY>",
                               u"<",    u"<style>", u"</style>", u"</Style>", u"\xD800"};
    Pieces texts(31, pieces);
    for (int round = 0; round < 100000; ++round) {
        const Text text = texts.text(14);
        ASSERT_EQ(bared(text), plain_body_tag(text)) << round;
        Text styled = text;
        bool found = false;
        const Text expected = plain_style_block(text, found);
        ASSERT_EQ(empty_style_block(styled).has_value(), found) << round;
        ASSERT_EQ(styled, expected) << round;
        ASSERT_EQ(without_images(text), plain_images(text)) << round;
        Text broken = text;
        break_image_tags(broken);
        ASSERT_EQ(broken, plain_image_letters(text)) << round;
    }
}

TEST(Filters, AreExactOnRandomPlainText) {
    const TextView pieces[] = {u"www.", u"www.a", u"www.ab",  u"ww", u"w.",    u"a",  u"b",
                               u" ",    u"\r\n",  u"\r",      u"\n", u"\t",    u"\"", u">",
                               u"\">",  u"</a>",  u"www.a\"", u":",  u"\xDC00"};
    Pieces texts(32, pieces);
    for (int round = 0; round < 100000; ++round) {
        const Text text = texts.text(10);
        ASSERT_EQ(with_links(text, u"www."), plain_links(text, u"www.")) << round;
        ASSERT_EQ(lines_as_divisions(text), plain_divisions(text)) << round;
        ASSERT_EQ(with_tabs_replaced(text), plain_tabs(text)) << round;
    }
}

} // namespace
} // namespace ornavel::compose
