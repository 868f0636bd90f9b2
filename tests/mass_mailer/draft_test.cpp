#include "programs/mass_mailer/draft.h"

#include "base/errors.h"

#include <gtest/gtest.h>

namespace ornavel::mass_mailer {
namespace {

using Texts = std::vector<Text>;
const Texts columns{u"Mail", u"First name", u"A&B"};

Text filled(TextView text, Draft::Kind kind, const Texts& cells) {
    const Draft draft(text, kind, columns);
    EXPECT_EQ(draft.problems(), Texts{});
    return draft.filled(cells);
}

TEST(DraftFields, AreReplacedByThePersonsValues) {
    EXPECT_EQ(filled(u"Dear {{First name}}, {{ first NAME }}!", Draft::Kind::line, {u"a@b", u"Ann"}),
              u"Dear Ann, Ann!");
}

TEST(DraftFields, AreEscapedInThePage) {
    EXPECT_EQ(filled(u"<p>{{First name}}</p>", Draft::Kind::html, {u"", u"<b>&\"'"}),
              u"<p>&lt;b&gt;&amp;&quot;&#39;</p>");
}

TEST(DraftFields, AreFoundInThePageAsEditorsWriteThem) {
    EXPECT_EQ(filled(u"{{A&amp;B}} {{First&nbsp;name}} {{First\r\n  name}}", Draft::Kind::html,
                     {u"", u"Ann", u"C"}),
              u"C Ann Ann");
}

TEST(DraftFields, OfTheSubjectNeverBeginAnotherLine) {
    EXPECT_EQ(filled(u"{{First name}}", Draft::Kind::line, {u"", u"Ann\r\nBcc: <all>"}), u"Ann  Bcc: <all>");
}

TEST(DraftFields, AValueIsNotLookedAtForFields) {
    EXPECT_EQ(filled(u"{{First name}}", Draft::Kind::html, {u"", u"{{Mail}}"}), u"{{Mail}}");
}

TEST(DraftFields, ACellThatARowLacksIsEmpty) {
    EXPECT_EQ(filled(u"[{{A&B}}]", Draft::Kind::line, {u"x"}), u"[]");
}

TEST(DraftFields, WhatNoColumnFillsIsAProblemEachOnce) {
    const Draft draft(u"{{Nme}} {{Mail}} {{Nme}} {{First", Draft::Kind::html, columns);
    EXPECT_EQ(draft.problems(),
              (Texts{u"The list has no column \"Nme\".", u"A field never ends: \"{{First\"."}));
    EXPECT_EQ(draft.columns(), std::vector<std::size_t>{0});
}

TEST(DraftFields, OfTwoColumnsNamedAlikeNobodyKnowsWhichIsMeant) {
    const Texts alike{u"Mail", u"Name", u"name"};
    EXPECT_EQ(Draft(u"{{Name}}", Draft::Kind::line, alike).problems(),
              Texts{u"The list has more than one column \"Name\"."});
    EXPECT_EQ(Draft(u"{{Mail}}", Draft::Kind::line, alike).problems(), Texts{});
}

TEST(DraftFields, ATextWithoutFieldsStaysAsItIs) {
    const TextView css = u"@media x{a{b:c}}";
    EXPECT_EQ(filled(css, Draft::Kind::html, {}), css);
}

TEST(DraftFields, AMessageThatWouldGrowBeyondTheLargestTextIsAnError) {
    Text page;
    for (int i = 0; i < 100; ++i) page += u"{{Mail}}";
    const Draft draft(page, Draft::Kind::line, columns);
    EXPECT_THROW(draft.filled(Texts{Text(1'000'000, u'x')}), TextTooLarge);
}

} // namespace
} // namespace ornavel::mass_mailer
