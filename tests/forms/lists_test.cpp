#include "forms/form_user.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

struct Lists : testing::Test {
    Form form{{.name = u"frmOrder", .caption = u"Order"},
              {{.kind = ControlKind::list_box, .name = u"lstGoods", .items = {u"ink", u"paper"}},
               {.kind = ControlKind::combo_box,
                .name = u"cboSize",
                .items = {u"small", u"large"},
                .fixed_entries = true}}};
    FormUser user{form};
    int clicks = 0, double_clicks = 0;

    void SetUp() override {
        for (const TextView list : {u"lstGoods", u"cboSize"})
            form.on(list, Event::click, [this] { ++clicks; });
        form.on(u"lstGoods", Event::double_click, [this] { ++double_clicks; });
        form.load();
    }
};

TEST_F(Lists, AnEntryOfAListBoxIsMarkedByItsPlaceOrItsText) {
    user.select(u"lstGoods", 1);
    EXPECT_EQ(form[u"lstGoods"].index, 1);
    user.set_text(u"lstGoods", u"ink");
    EXPECT_EQ(form[u"lstGoods"].index, 0);
    EXPECT_EQ(form[u"lstGoods"].text, u"");
    EXPECT_EQ(clicks, 2);
    user.double_click(u"lstGoods");
    EXPECT_EQ(double_clicks, 1);
}

TEST_F(Lists, WhatIsNotInAListCantBeChosen) {
    EXPECT_THROW(user.select(u"lstGoods", 2), UnusableStep);
    EXPECT_THROW(user.set_text(u"lstGoods", u"pens"), UnusableStep);
    EXPECT_THROW(user.set_text(u"cboSize", u"huge"), UnusableStep);
    EXPECT_EQ(form[u"lstGoods"].index, -1);
    EXPECT_EQ(form[u"cboSize"].text, u"");
    EXPECT_EQ(clicks, 0);
}

TEST_F(Lists, AnEntryOfAFixedComboBoxIsChosenByItsText) {
    user.set_text(u"cboSize", u"large");
    EXPECT_EQ(form[u"cboSize"].index, 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, AFormThatMayNotBeClosedStaysOpen) {
    bool may = false;
    form.may_close = [&] { return may; };
    user.close();
    EXPECT_TRUE(form.is_loaded());
    may = true;
    user.close();
    EXPECT_FALSE(form.is_loaded());
}

} // namespace
} // namespace ornavel::forms
