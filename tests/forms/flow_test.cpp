#include "forms/flow.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

class Flow : public testing::Test {
protected:
    Form form{{.name = u"frmFlow", .place = {0, 0, 6090, 3000}},
              {{.kind = ControlKind::command_button, .name = u"cmdOne", .place = {0, 0, 1500, 345}},
               {.kind = ControlKind::check_box, .name = u"chkTwo", .place = {0, 0, 1500, 255}},
               {.kind = ControlKind::label, .name = u"lblThree", .place = {0, 0, 600, 195}},
               {.kind = ControlKind::combo_box, .name = u"cboThree", .place = {0, 0, 1500, 315}}}};
    const Group groups[3] = {{u"cmdOne"}, {u"chkTwo"}, {u"cboThree", u"lblThree"}};

    Bounds place(TextView control) { return form[control].place; }
};

TEST_F(Flow, GroupsStandSideBySideInTheMiddleOfTheirRow) {
    EXPECT_EQ(flow(form, groups), 165 + 345);
    EXPECT_EQ(place(u"cmdOne"), (Bounds{165, 165, 1500, 345}));
    EXPECT_EQ(place(u"chkTwo"), (Bounds{1770, 210, 1500, 255}));
    EXPECT_EQ(place(u"lblThree"), (Bounds{3375, 240, 600, 195}));
    EXPECT_EQ(place(u"cboThree"), (Bounds{4050, 180, 1500, 315}));
}

TEST_F(Flow, WhatIsHiddenLeavesNoGap) {
    form[u"cmdOne"].visible = false;
    flow(form, groups);
    EXPECT_EQ(place(u"chkTwo").left, 165);
}

TEST_F(Flow, AGroupThatHasNoRoomBeginsTheNextRow) {
    form.take_place({0, 0, 4000, 3000});
    EXPECT_EQ(flow(form, groups), 165 + 345 + 105 + 345);
    EXPECT_EQ(place(u"chkTwo").top, 210);
    EXPECT_EQ(place(u"lblThree").left, 165);
    EXPECT_EQ(place(u"cboThree").top, 630);
}

TEST_F(Flow, AGroupThatJustFitsStaysInItsRow) {
    const Group two[] = {{u"cmdOne"}, {u"chkTwo"}};
    form.take_place({0, 0, 90 + 165 + 1500 + 105 + 1500 + 165, 3000});
    EXPECT_EQ(flow(form, two), 165 + 345);
    form.take_place({0, 0, 90 + 165 + 1500 + 105 + 1499 + 165, 3000});
    EXPECT_EQ(flow(form, two), 165 + 345 + 105 + 345);
}

TEST_F(Flow, AGroupThatBeginsARowDoesSoUnlessItIsTheFirst) {
    const Group apart[] = {{u"cmdOne"}, {u"chkTwo", {}, true}};
    flow(form, apart);
    EXPECT_EQ(place(u"chkTwo").left, 165);
    EXPECT_EQ(place(u"chkTwo").top, 165 + 345 + 105 + 45);
    form[u"cmdOne"].visible = false;
    flow(form, apart);
    EXPECT_EQ(place(u"chkTwo").top, 210);
}

TEST_F(Flow, TheWidestGroupSaysHowNarrowTheRoomMayBe) {
    EXPECT_EQ(widest(form, groups), 165 + 600 + 75 + 1500 + 165);
    form[u"cboThree"].visible = false;
    EXPECT_EQ(widest(form, groups), 165 + 1500 + 165);
}

} // namespace
} // namespace ornavel::forms
