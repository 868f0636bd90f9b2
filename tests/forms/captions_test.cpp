#include "forms/captions.h"

#include "base/encoding.h"

#include <gtest/gtest.h>

#include <map>

namespace ornavel::forms {
namespace {

class Strings final : public StringTable {
public:
    std::optional<Text> find(int id) const override {
        ++asked;
        if (failing) throw Failure(u"no table");
        const auto found = texts.find(id);
        if (found == texts.end()) return {};
        return found->second;
    }
    std::map<int, Text> texts{{1, u"One"}, {7, u"Seven"}, {5013, u"Yes."}, {5014, u"OK"}};
    bool failing = false;
    mutable int asked = 0;
};

/// The control after its form's captions were loaded.
Control loaded(Control control, const StringTable& table = Strings()) {
    control.name = u"control";
    Form form({.name = u"frmTest"}, {control});
    load_captions(form, table);
    return form[u"control"];
}

Form form_with_tag(TextView tag) { return Form({.tag = Text(tag), .caption = u"as designed"}, {}); }

TEST(Captions, TheFormsTagGivesItsCaption) {
    Form form({.name = u"frmTest", .tag = u"1", .caption = u"as designed"}, {});
    load_captions(form, Strings());
    EXPECT_EQ(form.properties.caption, u"One");
}

TEST(Captions, AnEmptyTagOrAWordKeepsTheDesignedCaption) {
    for (const TextView tag : {u"", u"word", u"1a", u"one 1"}) {
        EXPECT_EQ(loaded({.kind = ControlKind::command_button, .tag = Text(tag), .caption = u"as designed"})
                      .caption,
                  u"as designed");
        Form form = form_with_tag(tag);
        load_captions(form, Strings());
        EXPECT_EQ(form.properties.caption, u"as designed");
    }
}

TEST(Captions, AControlsTagGivesItsCaptionAndItsToolTipsNumberItsToolTip) {
    for (const ControlKind kind :
         {ControlKind::command_button, ControlKind::check_box, ControlKind::label, ControlKind::frame}) {
        const Control control = loaded({.kind = kind, .tag = u"5013", .tool_tip = u"7"});
        EXPECT_EQ(control.caption, u"Yes.");
        EXPECT_EQ(control.tool_tip, u"Seven");
        EXPECT_EQ(control.tag, u"5013");
    }
}

TEST(Captions, AToolTipIsReplacedAlsoWhereTheTagIsNoNumber) {
    EXPECT_EQ(loaded({.kind = ControlKind::label, .tag = u"word", .tool_tip = u"7"}).tool_tip, u"Seven");
}

TEST(Captions, AControlWithoutACaptionIsSkippedButItsToolTipIsLoaded) {
    for (const ControlKind kind :
         {ControlKind::image, ControlKind::text_box, ControlKind::combo_box, ControlKind::web_browser}) {
        const Control control = loaded({.kind = kind, .tag = u"1", .tool_tip = u"7"});
        EXPECT_EQ(control.caption, u"");
        EXPECT_EQ(control.text, u"");
        EXPECT_EQ(control.tool_tip, u"Seven");
    }
}

TEST(Captions, AMenuItemsOwnCaptionCarriesTheNumberNotItsTag) {
    EXPECT_EQ(loaded({.kind = ControlKind::menu, .tag = u"1", .caption = u"7"}).caption, u"Seven");
    EXPECT_EQ(loaded({.kind = ControlKind::menu, .tag = u"1", .caption = u"File"}).caption, u"File");
    EXPECT_EQ(loaded({.kind = ControlKind::menu, .caption = u"File", .tool_tip = u"7"}).tool_tip, u"7");
}

TEST(Captions, EachTabTakesItsCaptionFromItsTagAndItsToolTipFromItsNumber) {
    const Control control =
        loaded({.kind = ControlKind::tab_strip,
                .tag = u"1",
                .caption = u"as designed",
                .parts = {{.tag = u"1", .tool_tip = u"7"}, {.tag = u"word", .caption = u"kept"}}});
    EXPECT_EQ(control.parts[0], (Part{.tag = u"1", .caption = u"One", .tool_tip = u"Seven"}));
    EXPECT_EQ(control.parts[1], (Part{.tag = u"word", .caption = u"kept"}));
    EXPECT_EQ(control.caption, u"as designed");
}

TEST(Captions, AToolbarButtonGetsOnlyAToolTipNeverACaptionFromItsTag) {
    const Control control =
        loaded({.kind = ControlKind::toolbar,
                .parts = {{.tag = u"7", .caption = u"kept", .tool_tip = u"1"}, {.tool_tip = u"1"}}});
    EXPECT_EQ(control.parts[0], (Part{.tag = u"7", .caption = u"kept", .tool_tip = u"Seven"}));
    EXPECT_EQ(control.parts[1], (Part{.tool_tip = u"1"}));
}

TEST(Captions, PartsOfAnyOtherControlStayAsTheyAre) {
    const Part part{.tag = u"7", .caption = u"1", .tool_tip = u"1", .text = u"1"};
    EXPECT_EQ(loaded({.kind = ControlKind::label, .parts = {part}}).parts[0], part);
}

TEST(Captions, AListViewsHeaderTakesItsTextFromItsTag) {
    const Control control =
        loaded({.kind = ControlKind::list_view,
                .parts = {{.tag = u"7", .caption = u"1", .tool_tip = u"1", .text = u"kept"}}});
    EXPECT_EQ(control.parts[0], (Part{.tag = u"7", .caption = u"1", .tool_tip = u"1", .text = u"Seven"}));
}

TEST(Captions, ANumberThatTheTableLacksStaysAndTheWalkGoesOn) {
    Form form({.name = u"frmTest", .tag = u"99", .caption = u"as designed"},
              {{.kind = ControlKind::menu, .name = u"mnFirst", .caption = u"4711"},
               {.kind = ControlKind::command_button, .name = u"cmdLast", .tag = u"5014"}});
    load_captions(form, Strings());
    EXPECT_EQ(form.properties.caption, u"as designed");
    EXPECT_EQ(form[u"mnFirst"].caption, u"4711");
    EXPECT_EQ(form[u"cmdLast"].caption, u"OK");
}

TEST(Captions, ATableThatFailsStopsNoFormFromOpening) {
    Strings strings;
    strings.failing = true;
    EXPECT_EQ(loaded({.kind = ControlKind::label, .tag = u"1", .caption = u"as designed", .tool_tip = u"7"},
                     strings)
                  .caption,
              u"as designed");
    EXPECT_EQ(strings.asked, 2);
}

TEST(Captions, NumbersAreReadAsTheRuntimesNumericTestReadsThem) {
    const std::pair<TextView, std::optional<int>> cases[] = {
        {u"5013", 5013},  {u" 5013", 5013},  {u"5013  ", 5013},   {u"+5013", 5013},
        {u"05013", 5013}, {u"5013.0", 5013}, {u"5013.", 5013},    {u".7e1", 7},
        {u"1e3", 1000},   {u"1E+3", 1000},   {u"50130e-1", 5013}, {u"6.5", 6},
        {u"7.5", 8},      {u"-1", -1},       {u"32767", 32767},   {u"0e999", {}},
        {u"", {}},        {u" ", {}},        {u".", {}},          {u"-", {}},
        {u"e3", {}},      {u"1e", {}},       {u"1e+", {}},        {u"50 13", {}},
        {u"5013x", {}},   {u"1.2.3", {}},    {u"--1", {}},        {u"inf", {}},
        {u"nan", {}},     {u"0x10", {}},     {u"32768", {}},      {u"99999999999999999999", {}},
        {u"1e999", {}},   {u"5013\t", {}},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(text_identifier(text), expected) << to_utf8(text);
}

} // namespace
} // namespace ornavel::forms
