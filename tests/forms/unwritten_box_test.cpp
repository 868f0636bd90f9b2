#include "forms/unwritten_box.h"

#include "settings/catalogue.h"
#include "tests/fakes/scripted_boxes.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

/// What the user is told when so many settings stay changed.
Text told(std::size_t number) {
    ScriptedBoxes boxes;
    settings::Unwritten unwritten{&settings::admin::SigFax, {}};
    unwritten.changed.assign(number, &settings::user::vCard);
    tell_unwritten(boxes, u"Title", unwritten);
    EXPECT_EQ(boxes.shown[0].title, u"Title");
    return boxes.shown[0].text;
}

TEST(UnwrittenBox, NamesTenSettingsAndCountsTheRest) {
    const Text begin =
        u"The setting SigFax can't be written, and what was written before it can't be taken back: ";
    const auto named = [](int number) {
        Text names = u"vCard";
        while (--number > 0) names += u", vCard";
        return names;
    };
    EXPECT_EQ(told(1), begin + u"vCard.");
    EXPECT_EQ(told(10), begin + named(10) + u".");
    EXPECT_EQ(told(12), begin + named(10) + u" and 2 more.");
    EXPECT_EQ(told(0), u"Nothing was changed, because the setting SigFax can't be written.");
}

} // namespace
} // namespace ornavel::forms
