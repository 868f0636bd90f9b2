#include "forms/form.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

TEST(Form, AControlThatItDoesNotHaveIsNamedBesideTheForm) {
    Form form({.name = u"frmOrder"}, {{.name = u"cmdSend"}});
    EXPECT_EQ(form[u"CMDSEND"].name, u"cmdSend");
    try {
        form[u"cmdNowhere"];
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.description(), u"frmOrder has no control cmdNowhere");
    }
}

TEST(Form, AThickerFrameLeavesTheRoomOrThePlace) {
    constexpr Size frame{180, 465};
    Form fixed({.place = {0, 0, 3000, 2000}}, {}), kept({.place = {0, 0, 3000, 2000}}, {}),
        sizable({.place = {0, 0, 3000, 2000}}, {});
    kept.keeps_size = sizable.sizable = true;
    for (Form* form : {&fixed, &kept, &sizable}) form->take_frame(frame);
    EXPECT_EQ(fixed.room(), (Size{2910, 1625}));
    EXPECT_EQ(fixed.properties.place, (Bounds{0, 0, 3090, 2090}));
    for (Form* form : {&kept, &sizable}) {
        EXPECT_EQ(form->room(), (Size{2820, 1535}));
        EXPECT_EQ(form->properties.place, (Bounds{0, 0, 3000, 2000}));
    }
}

TEST(Form, ItsControlsAreLaidOutAnewWhereItsRoomChanges) {
    Form form({.place = {0, 0, 3000, 2000}}, {});
    form.sizable = true;
    int laid_out = 0;
    form.on_resize = [&] { ++laid_out; };
    form.take_frame({120, 405}); // the usual one
    EXPECT_EQ(laid_out, 0);
    form.take_frame({180, 465});
    EXPECT_EQ(laid_out, 1);
    form.take_room({9000, 6000});
    EXPECT_EQ(laid_out, 2);
}

TEST(Form, WithoutAWindowItsFrameIsThatOfAnOldSystem) {
    Form form({.place = {0, 0, 3000, 2000}}, {});
    EXPECT_EQ(form.room(), (Size{2910, 1625}));
    form.sizable = true;
    EXPECT_EQ(form.room(), (Size{2880, 1595}));
}

} // namespace
} // namespace ornavel::forms
