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

TEST(Form, WithoutAWindowItsFrameIsThatOfAnOldSystem) {
    Form form({.place = {0, 0, 3000, 2000}}, {});
    EXPECT_EQ(form.room(), (Size{2910, 1625}));
    form.sizable = true;
    EXPECT_EQ(form.room(), (Size{2880, 1595}));
}

} // namespace
} // namespace ornavel::forms
