#include "programs/site_assistant/markup.h"

#include <gtest/gtest.h>

namespace ornavel::programs {
namespace {

struct Row {
    TextView typed, html;
};

TEST(Markup, ATextIsWrittenSoThatHTMLShowsIt) {
    constexpr Row rows[] = {
        {u"Marlow & Hale", u"Marlow &amp; Hale"},
        {u"a < b > c", u"a &lt; b &gt; c"},
        {u"<b>Jo</b>", u"&lt;b&gt;Jo&lt;/b&gt;"},
        {u"R&D; and T&C", u"R&D; and T&amp;C"},
        {u"&", u"&amp;"},
        {u"&;", u"&amp;;"},
        {u"&2a;&[a;&`a;&{a;", u"&amp;2a;&amp;[a;&amp;`a;&amp;{a;"},
        {u"&#/;&#:;&#x`;&#xg;&#x@;", u"&amp;#/;&amp;#:;&amp;#x`;&amp;#xg;&amp;#x@;"},
        {u"&#;&#x;&#xG;&#12", u"&amp;#;&amp;#x;&amp;#xG;&amp;#12"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(as_HTML(row.typed), row.html);
        EXPECT_TRUE(reads_as_markup(row.typed));
    }
}

TEST(Markup, EntitiesStayAsTheyAre) {
    for (const TextView text : {u"Marlow &amp; Hale", u"&eacute;", u"&Zeta;&yuml;&zwj;&AElig;&sup2;&frac19;",
                                u"&#0;&#233;&#9;", u"&#xE9;", u"&#XE9;&#xaf;&#xAF;&#x09;", u"Grüße", u""}) {
        EXPECT_EQ(as_HTML(text), text);
        EXPECT_FALSE(reads_as_markup(text));
    }
}

} // namespace
} // namespace ornavel::programs
