#include "forms/input_box.h"

#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

std::optional<Text> answer_of(std::function<void(Form&, FormUser)> script) {
    ScriptedWindows windows(std::move(script));
    return ask_for_text(windows, u"Name", u"What is the name?", u"old");
}

TEST(InputBox, LooksAsDrawn) {
    answer_of([](Form& form, FormUser) { expect_drawn(form, "input box"); });
}

TEST(InputBox, GivesBackWhatTheUserTyped) {
    EXPECT_EQ(answer_of([](Form&, FormUser user) {
                  user.set_text(input_box_answer, u"new");
                  user.click(input_box_ok);
              }),
              u"new");
    EXPECT_EQ(answer_of([](Form&, FormUser user) { user.click(input_box_ok); }), u"old");
    EXPECT_EQ(answer_of([](Form&, FormUser user) {
                  user.set_text(input_box_answer, u"");
                  user.click(input_box_ok);
              }),
              u"");
}

TEST(InputBox, IsCancelledByItsButtonAndByItsFrame) {
    EXPECT_EQ(answer_of([](Form& form, FormUser user) {
                  user.click(u"cmdCancel");
                  EXPECT_FALSE(form.is_loaded());
              }),
              std::nullopt);
    EXPECT_EQ(answer_of([](Form&, FormUser user) { user.close(); }), std::nullopt);
}

TEST(InputBox, ClosesWhereItsAnswerIsGiven) {
    answer_of([](Form& form, FormUser user) {
        user.click(input_box_ok);
        EXPECT_FALSE(form.is_loaded());
    });
}

TEST(InputBox, MayAskWithoutWords) {
    ScriptedWindows windows([](Form& form, FormUser) { EXPECT_EQ(form[input_box_prompt].caption, u""); });
    EXPECT_EQ(ask_for_text(windows, u"Name", u"", u""), std::nullopt);
    EXPECT_EQ(windows.forms_shown, 1);
}

TEST(InputBox, BeginsWithThePromptWhoseAccessKeyLeadsToTheAnswer) {
    answer_of([](Form& form, FormUser) {
        EXPECT_EQ(form.controls()[0].caption, u"&What is the name?");
        EXPECT_EQ(form.controls()[1].name, input_box_answer);
        EXPECT_EQ(form.controls()[1].text, u"old");
        EXPECT_TRUE(form[input_box_ok].is_default);
        EXPECT_TRUE(form[u"cmdCancel"].is_cancel);
    });
}

} // namespace
} // namespace ornavel::forms
