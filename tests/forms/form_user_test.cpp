#include "forms/form_user.h"
#include "forms/windows.h"
#include "tests/refusal.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

struct FormUserTest : testing::Test {
    Form form{{.name = u"frmOrder", .place = {0, 0, 3000, 2000}, .caption = u"Order"},
              {{.kind = ControlKind::command_button, .name = u"cmdSend"},
               {.kind = ControlKind::check_box, .name = u"chkGift"},
               {.kind = ControlKind::combo_box, .name = u"cboSize", .items = {u"small", u"large"}},
               {.kind = ControlKind::text_box, .name = u"txtNote"},
               {.kind = ControlKind::text_box, .name = u"txtTerms", .locked = true},
               {.kind = ControlKind::command_button, .name = u"cmdHidden", .visible = false},
               {.kind = ControlKind::command_button, .name = u"cmdGrey", .enabled = false}}};
    FormUser user{form};
    Text events;

    void SetUp() override { form.load(); }
    void note(TextView control, Event event, TextView mark) {
        form.on(control, event, [this, mark] { events += mark; });
    }
};

TEST_F(FormUserTest, AClickRunsTheButtonsHandler) {
    note(u"cmdSend", Event::click, u"sent");
    user.click(u"cmdSend");
    EXPECT_EQ(events, u"sent");
}

TEST_F(FormUserTest, AClickOnAControlWithoutAHandlerDoesNothing) { EXPECT_NO_THROW(user.click(u"cmdSend")); }

TEST_F(FormUserTest, CodeThatSetsAControlRunsNoHandler) {
    note(u"chkGift", Event::click, u"click");
    note(u"cboSize", Event::click, u"chosen");
    form[u"chkGift"].ticked = true;
    form[u"cboSize"].select(1);
    EXPECT_EQ(events, u"");
    EXPECT_EQ(form[u"cboSize"].text, u"large");
}

TEST_F(FormUserTest, TickingABoxSetsItBeforeTheHandlerRuns) {
    form.on(u"chkGift", Event::click, [this] { events = form[u"chkGift"].ticked ? u"ticked" : u"empty"; });
    user.tick(u"chkGift", true);
    EXPECT_EQ(events, u"ticked");
    user.click(u"chkGift");
    EXPECT_EQ(events, u"empty");
}

TEST_F(FormUserTest, ABoxThatIsAlreadyAsWantedIsNotTicked) {
    EXPECT_EQ(refusal_of([&] { user.tick(u"chkGift", false); }), u"chkGift is not ticked already");
    user.tick(u"chkGift", true);
    EXPECT_EQ(refusal_of([&] { user.tick(u"chkGift", true); }), u"chkGift is ticked already");
}

TEST_F(FormUserTest, TypingAnEntryOfAComboBoxChoosesIt) {
    note(u"cboSize", Event::click, u"chosen;");
    note(u"cboSize", Event::change, u"typed;");
    user.set_text(u"cboSize", u"large");
    EXPECT_EQ(form[u"cboSize"].index, 1);
    user.set_text(u"cboSize", u"huge");
    EXPECT_EQ(form[u"cboSize"].index, -1);
    EXPECT_EQ(form[u"cboSize"].text, u"huge");
    EXPECT_EQ(events, u"chosen;typed;");
}

TEST_F(FormUserTest, AListThatIsFilledWhenItDropsDownOffersItsEntries) {
    form.on(u"cboSize", Event::drop_down, [this] { form[u"cboSize"].items = {u"one", u"two", u"three"}; });
    user.select(u"cboSize", 2);
    EXPECT_EQ(form[u"cboSize"].text, u"three");
}

TEST_F(FormUserTest, OpeningAListRunsItsHandlerAndChoosesNothing) {
    note(u"cboSize", Event::drop_down, u"open;");
    note(u"cboSize", Event::click, u"chosen;");
    user.drop_down(u"cboSize");
    EXPECT_EQ(events, u"open;");
    EXPECT_EQ(form[u"cboSize"].index, -1);
    EXPECT_THROW(user.drop_down(u"txtNote"), UnusableStep);
}

TEST_F(FormUserTest, TextTypedIntoATextBoxRunsItsChange) {
    note(u"txtNote", Event::change, u"typed");
    user.set_text(u"txtNote", u"hello");
    EXPECT_EQ(form[u"txtNote"].text, u"hello");
    EXPECT_EQ(events, u"typed");
}

TEST_F(FormUserTest, ResizingAndMovingTheWindowChangeItsPlace) {
    form.on_resize = [this] { events += u"resized"; };
    user.resize(4000, 2500);
    user.move(100, 200);
    EXPECT_EQ(form.properties.place, (Bounds{100, 200, 4000, 2500}));
    EXPECT_EQ(events, u"resized");
}

TEST_F(FormUserTest, ClosingByTheFrameUnloadsOnce) {
    form.on_unload = [this] { events += u"unloaded"; };
    user.close();
    form.unload();
    EXPECT_EQ(events, u"unloaded");
    EXPECT_FALSE(form.is_loaded());
}

TEST_F(FormUserTest, NamesCompareWithoutCase) { EXPECT_NO_THROW(user.click(u"CMDSEND")); }

TEST_F(FormUserTest, StepsThatNoUserCouldTakeAreRefusedByTheControlsNameWithTheReason) {
    EXPECT_EQ(refusal_of([&] { user.click(u"cmdHidden"); }), u"cmdHidden is hidden");
    EXPECT_EQ(refusal_of([&] { user.double_click(u"cmdGrey"); }), u"cmdGrey is disabled");
    EXPECT_EQ(refusal_of([&] { user.click(u"cmdNowhere"); }), form.name() + u" has no control cmdNowhere");
    EXPECT_EQ(refusal_of([&] { user.tick(u"chkGift", false); }), u"chkGift is not ticked already");
    EXPECT_EQ(refusal_of([&] { user.tick(u"cmdSend", true); }), u"cmdSend is a control of another kind");
    EXPECT_EQ(refusal_of([&] { user.select(u"cboSize", 2); }), u"cboSize has no entry 2");
    EXPECT_EQ(refusal_of([&] { user.select(u"cboSize", -1); }), u"cboSize has no entry -1");
    EXPECT_EQ(refusal_of([&] { user.select(u"txtNote", 0); }), u"txtNote is a control of another kind");
    EXPECT_EQ(refusal_of([&] { user.set_text(u"txtTerms", u"mine"); }), u"txtTerms can't be changed");
    EXPECT_EQ(refusal_of([&] { user.set_text(u"cmdSend", u"mine"); }),
              u"cmdSend is a control of another kind");
    EXPECT_EQ(form[u"txtTerms"].text, u"");
}

TEST_F(FormUserTest, NothingCanBeDoneToAClosedForm) {
    user.close();
    EXPECT_THROW(user.click(u"cmdSend"), UnusableStep);
    EXPECT_THROW(user.resize(1, 1), UnusableStep);
    EXPECT_THROW(user.move(1, 1), UnusableStep);
    EXPECT_THROW(user.close(), UnusableStep);
}

} // namespace
} // namespace ornavel::forms
