#include "rehearsal/model/custom_ui.h"

#include "base/encoding.h"
#include "connect/ribbon.h"
#include "rehearsal/xml.h"
#include "tests/refusal.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace ornavel::rehearsal {
namespace {

/// The words of the refusal; empty where the markup was taken.
Text refusal(TextView markup) {
    return refusal_of([&] { read_custom_ui(markup); });
}

TEST(Markup, ElementsAndAttributesAreRead) {
    const XmlElement root =
        parse_xml(u" <a one = 'x' two=\"&lt;&amp;&gt;&quot;&apos;\">\r\n <b/><c ></c > </a> ");
    EXPECT_EQ(root.name, u"a");
    ASSERT_TRUE(root.find(u"two"));
    EXPECT_EQ(*root.find(u"two"), u"<&>\"'");
    EXPECT_EQ(root.find(u"three"), nullptr);
    ASSERT_EQ(root.children.size(), 2u);
    EXPECT_EQ(root.children[1].name, u"c");
}

TEST(Markup, WhatIsNotWellFormedIsRefused) {
    for (const TextView markup : {u"",
                                  u"a",
                                  u"<a",
                                  u"<a>",
                                  u"<a></b>",
                                  u"<a/><b/>",
                                  u"<a/>x",
                                  u"<a>x</a>",
                                  u"<a b/>",
                                  u"<a b=c/>",
                                  u"<a b='c/>",
                                  u"<a b='1' b='2'/>",
                                  u"<a b='<'/>",
                                  u"<a b='&nbsp;'/>",
                                  u"<a b='&'/>",
                                  u"<1/>",
                                  u"< a/>",
                                  u"<a b='1'c='2'/>",
                                  u"<a><b></a></b>",
                                  u"<a:b/>",
                                  u"</a>"})
        EXPECT_THROW(parse_xml(markup), Failure) << to_utf8(markup);
}

/// The part of the schema of 2006/01 that is used here, written down a second time: for each element the one
/// that it stands in, and its attributes.
struct Documented {
    TextView parent;
    std::set<TextView> attributes;
};
const std::set<TextView> of_every_control{
    u"id",           u"idQ",    u"idMso",     u"label",          u"getLabel",        u"visible",
    u"getVisible",   u"keytip", u"getKeytip", u"insertAfterMso", u"insertBeforeMso", u"insertAfterQ",
    u"insertBeforeQ"};
const std::set<TextView> of_group_and_button{u"image",        u"imageMso", u"getImage",   u"screentip",
                                             u"getScreentip", u"supertip", u"getSupertip"};
const std::set<TextView> of_button_alone{u"tag",         u"onAction",       u"enabled",   u"getEnabled",
                                         u"description", u"getDescription", u"showLabel", u"getShowLabel",
                                         u"showImage",   u"getShowImage",   u"size",      u"getSize"};

std::set<TextView> together(std::initializer_list<std::set<TextView>> parts) {
    std::set<TextView> all;
    for (const auto& part : parts) all.insert(part.begin(), part.end());
    return all;
}

const std::map<TextView, Documented> schema{
    {u"customUI", {u"", {u"xmlns", u"onLoad", u"loadImage"}}},
    {u"ribbon", {u"customUI", {u"startFromScratch"}}},
    {u"tabs", {u"ribbon", {}}},
    {u"tab", {u"tabs", together({of_every_control, {u"tag"}})}},
    {u"group", {u"tab", together({of_every_control, of_group_and_button})}},
    {u"button", {u"group", together({of_every_control, of_group_and_button, of_button_alone})}},
};

/// A whole document around one element, whose attribute says something fit.
Text document_with(TextView name, TextView attribute) {
    const Text value = attribute == u"xmlns"  ? u"http://schemas.microsoft.com/office/2006/01/customui"
                       : attribute == u"size" ? u"large"
                                              : u"x";
    const bool is_identifier = attribute == u"id" || attribute == u"idQ" || attribute == u"idMso";
    const auto begin = [&](TextView element, TextView own) {
        const bool is_it = element == name;
        Text text = u"<" + Text(element);
        if (!own.empty() && !(is_it && (attribute == own.substr(0, own.find(u'=')) || is_identifier)))
            text += u" " + Text(own);
        return is_it ? text + u" " + Text(attribute) + u"='" + value + u"'>" : text + u">";
    };
    return begin(u"customUI", u"xmlns='http://schemas.microsoft.com/office/2006/01/customui'") +
           begin(u"ribbon", u"") + begin(u"tabs", u"") + begin(u"tab", u"idMso='TabMail'") +
           begin(u"group", u"id='g'") + begin(u"button", u"id='b'") +
           u"</button></group></tab></tabs></ribbon></customUI>";
}

TEST(CustomUi, AnElementHasTheAttributesOfTheSchemaAndNoOther) {
    std::set<TextView> attributes{u"colour", u"ID", u"getPicture"};
    for (const auto& [name, element] : schema)
        attributes.insert(element.attributes.begin(), element.attributes.end());
    for (const auto& [name, element] : schema)
        for (const TextView attribute : attributes)
            EXPECT_EQ(refusal(document_with(name, attribute)).empty(), element.attributes.contains(attribute))
                << to_utf8(name) << " " << to_utf8(attribute);
}

/// An element with whatever it needs.
Text bare(TextView name, TextView inside) {
    const Text needs = name == u"customUI" ? u" xmlns='http://schemas.microsoft.com/office/2006/01/customui'"
                       : name == u"tab" || name == u"group" || name == u"button"
                           ? u" id='" + Text(name) + u"'"
                           : Text();
    return u"<" + Text(name) + needs + u">" + Text(inside) + u"</" + Text(name) + u">";
}

TEST(CustomUi, AnElementStandsInItsPlaceAlone) {
    for (const auto& [name, element] : schema)
        for (const auto& [parent, above] : schema) {
            Text document = bare(parent, bare(name, u""));
            for (TextView outer = above.parent; !outer.empty(); outer = schema.at(outer).parent)
                document = bare(outer, document);
            EXPECT_EQ(refusal(document).empty(), element.parent == parent) << to_utf8(document);
        }
}

TEST(CustomUi, WhatExcludesEachOtherIsRefused) {
    const auto button = [](TextView attributes) {
        return bare(u"customUI",
                    bare(u"ribbon", bare(u"tabs", bare(u"tab", bare(u"group", u"<button " + Text(attributes) +
                                                                                  u"/>")))));
    };
    EXPECT_EQ(refusal(button(u"id='a' label='x' imageMso='y' size='large'")), u"");
    for (const TextView attributes :
         {u"", u"label='x'", u"id='a' idMso='b'", u"id='a' label='x' getLabel='y'",
          u"id='a' visible='x' getVisible='y'", u"id='a' imageMso='x' getImage='y'",
          u"id='a' size='large' getSize='y'", u"id='a' size='huge'", u"id='a' label=''", u"id='group'",
          u"id='a' insertAfterMso='x' insertBeforeMso='y'"})
        EXPECT_NE(refusal(button(attributes)), u"") << to_utf8(attributes);
}

TEST(CustomUi, ADocumentIsOfThisNameSpaceAndHasOneRibbon) {
    EXPECT_EQ(refusal(bare(u"customUI", u"")), u"");
    EXPECT_NE(refusal(u"<customUI/>"), u"");
    EXPECT_NE(refusal(u"<customUI xmlns='http://schemas.microsoft.com/office/2009/07/customui'/>"), u"");
    EXPECT_NE(refusal(bare(u"customUI", u"<ribbon/><ribbon/>")), u"");
    EXPECT_NE(refusal(bare(u"customUI", u"<ribbon><tabs/><tabs/></ribbon>")), u"");
}

TEST(CustomUi, TheAddInsOwnMarkupFollowsTheSchema) {
    const CustomUI explorer = read_custom_ui(connect::GetCustomUI(u"Microsoft.Outlook.Explorer"));
    EXPECT_EQ(explorer.on_load, u"onLoad");
    ASSERT_EQ(explorer.controls.size(), 3u);
    EXPECT_EQ(explorer.controls[0].get_visible, u"getVisible");
    EXPECT_EQ(explorer.controls[1].tag, u"ButtonWiz");
    EXPECT_EQ(explorer.controls[2].tag, u"EmailMonitor");
    const CustomUI message = read_custom_ui(connect::GetCustomUI(u"Microsoft.Outlook.Mail.Compose"));
    ASSERT_EQ(message.controls.size(), 2u);
    EXPECT_EQ(message.controls[1].tag, u"SendOptions");
    EXPECT_NE(message.controls[1].picture, u"");
}

} // namespace
} // namespace ornavel::rehearsal
