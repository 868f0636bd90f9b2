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
        {u"&#;&#x;&#xG;&#12", u"&amp;#;&amp;#x;&amp;#xG;&amp;#12"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(as_HTML(row.typed), row.html);
        EXPECT_TRUE(reads_as_markup(row.typed));
    }
}

TEST(Markup, EntitiesStayAsTheyAre) {
    for (const TextView text :
         {u"Marlow &amp; Hale", u"&eacute;", u"&#233;", u"&#xE9;", u"&#XE9;", u"Grüße", u""}) {
        EXPECT_EQ(as_HTML(text), text);
        EXPECT_FALSE(reads_as_markup(text));
    }
}

} // namespace
} // namespace ornavel::programs
