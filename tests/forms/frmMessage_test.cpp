#include "forms/frmMessage.h"

#include "base/encoding.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

struct Expected {
    TextView mode, message, title;
    TextView yes{}, no{}; ///< empty where only cmdOK is shown
};

/// The nine modes a second time, as the user reads them.
constexpr Expected expected_modes[] = {
    {u"Reply", u"This is a reply. Do you wish to use a Template?", u"Ornavel Reply", u"Yes. Use a template.",
     u"No. Send 'as is'."},
    {u"Auto-no Template", u"You have chosen 'auto' mode but there is no default Template file.",
     u"Ornavel Template warning"},
    {u"Auto-no signature", u"You have chosen 'auto' mode but there is no default Template file.",
     u"Ornavel Template warning"},
    {u"Security warning",
     u"There is script is this Template. Some users will not be able to see your Template. Continue anyway?",
     u"Ornavel security warning", u"Yes. Send it with script.", u"No. Cancel this."},
    {u"Bad Template", u"This is not a valid Ornavel Template. Please examine it or get help.",
     u"Ornavel Template failure"},
    {u"Choose Template", u"You have not chosen a Template. Please select one...", u"Ornavel Template choice"},
    {u"Choose signature", u"You have not chosen a signature. Please select one...",
     u"Ornavel signature choice"},
    {u"Format Warning",
     u"Your Outlook Mail Format should be HTML or Outlook Rich Text (Word as editor is optional). "
     u"Check your Outlook Options. Some formatting may be lost.",
     u"Ornavel Oulook Mail Format warning"},
    {u"Support email request",
     u"An error has been trapped and logged. Brevant support will be notified by email. OK?",
     u"Ornavel error - notify Brevant support", u"Yes. Notify Brevant support.", u"No. Continue."},
};

/// The answer after a user acted on the dialog in this mode.
Text answer(TextView mode, std::function<void(Form&, FormUser)> script) {
    ScriptedWindows windows(std::move(script));
    PromptDialog prompt(windows, built_in_strings());
    const bool yes = prompt.ask(mode);
    EXPECT_EQ(windows.forms_shown, 1);
    EXPECT_EQ(yes, prompt.values().answer == u"Yes");
    EXPECT_EQ(prompt.values().mode, mode);
    return prompt.values().answer;
}

std::function<void(Form&, FormUser)> clicking(TextView button) {
    return [button](Form&, FormUser user) { user.click(button); };
}

TEST(PromptDialog, LooksAsDrawn) {
    for (const TextView mode : {u"Reply", u"Bad Template", u"unknown"})
        answer(mode, [&](Form& form, FormUser) { expect_drawn(form, "prompt " + to_utf8(mode)); });
}

TEST(PromptDialog, StaysAboveTheEditorThatTheMessageIsWrittenIn) {
    answer(u"Reply", [](Form& form, FormUser) { EXPECT_TRUE(form.topmost); });
}

TEST(PromptDialog, ItsAnswersEndWhereItsMessageEnds) {
    answer(u"Reply", [](Form& form, FormUser) {
        EXPECT_EQ(form[u"imgIcon"].place, (Bounds{165, 165, 480, 480}));
        EXPECT_EQ(form[u"lblMessage"].place, (Bounds{810, 165, 5070, 780}));
        EXPECT_EQ(form[u"cmdYes"].place, (Bounds{675, 1110, 2550, 345}));
        EXPECT_EQ(form[u"cmdNo"].place, (Bounds{3330, 1110, 2550, 345}));
        EXPECT_EQ(form[u"cmdOK"].place, (Bounds{4755, 1110, 1125, 345}));
        EXPECT_EQ(form.room(), (Size{6045, 1620}));
    });
}

TEST(PromptDialog, EachModeHasItsMessageItsTitleAndItsButtons) {
    for (const Expected& mode : expected_modes) {
        SCOPED_TRACE(to_utf8(mode.mode));
        answer(mode.mode, [&](Form& form, FormUser) {
            const bool asks = !mode.yes.empty();
            EXPECT_EQ(form[u"lblMessage"].caption, mode.message);
            EXPECT_EQ(form.properties.caption, mode.title);
            EXPECT_EQ(form[u"cmdOK"].visible, !asks);
            EXPECT_EQ(form[u"cmdOK"].caption, u"OK");
            EXPECT_EQ(form[u"cmdYes"].visible, asks);
            EXPECT_EQ(form[u"cmdNo"].visible, asks);
            EXPECT_EQ(readable_caption(form[u"cmdYes"]), mode.yes);
            EXPECT_EQ(readable_caption(form[u"cmdNo"]), mode.no);
        });
    }
}

TEST(PromptDialog, EachModeHasThePictureOfItsKind) {
    using enum Icon;
    const std::pair<TextView, Icon> pictures[] = {
        {u"Reply", question},
        {u"Auto-no Template", warning},
        {u"Auto-no signature", warning},
        {u"Security warning", warning},
        {u"Bad Template", warning},
        {u"Choose Template", information},
        {u"Choose signature", information},
        {u"Format Warning", warning},
        {u"Support email request", question},
    };
    for (const auto& [mode, picture] : pictures)
        answer(mode, [&mode = mode, picture = picture](Form& form, FormUser) {
            EXPECT_EQ(form[u"imgIcon"].icon, picture) << to_utf8(mode);
            EXPECT_TRUE(form[u"imgIcon"].visible);
        });
}

/// The button that Enter presses.
Text default_of(TextView mode) {
    Text name;
    answer(mode, [&](Form& form, FormUser) {
        for (const Control& control : form.controls())
            if (control.visible && control.is_default) name += control.name;
    });
    return name;
}

TEST(PromptDialog, EnterGivesTheHarmlessAnswerToARiskyQuestion) {
    EXPECT_EQ(default_of(u"Security warning"), u"cmdNo");
    EXPECT_EQ(default_of(u"Support email request"), u"cmdNo");
    EXPECT_EQ(default_of(u"Reply"), u"cmdYes");
    EXPECT_EQ(default_of(u"Bad Template"), u"cmdOK");
}

TEST(PromptDialog, AnswersHaveTheirFirstLettersAsAccessKeys) {
    answer(u"Reply", [](Form& form, FormUser) {
        EXPECT_EQ(form[u"cmdYes"].caption, u"&Yes. Use a template.");
        EXPECT_EQ(form[u"cmdNo"].caption, u"&No. Send 'as is'.");
    });
}

TEST(PromptDialog, YesIsTheAnswerOnlyOfTheModesThatAsk) {
    for (const Expected& mode : expected_modes) {
        SCOPED_TRACE(to_utf8(mode.mode));
        if (mode.yes.empty())
            EXPECT_THROW(answer(mode.mode, clicking(u"cmdYes")), UnusableStep);
        else
            EXPECT_EQ(answer(mode.mode, clicking(u"cmdYes")), u"Yes");
    }
}

TEST(PromptDialog, NoOkAndTheClosedFrameLeaveTheAnswerNo) {
    for (const Expected& mode : expected_modes) {
        SCOPED_TRACE(to_utf8(mode.mode));
        EXPECT_EQ(answer(mode.mode, clicking(mode.yes.empty() ? u"cmdOK" : u"cmdNo")), u"No");
        EXPECT_EQ(answer(mode.mode, [](Form&, FormUser user) { user.close(); }), u"No");
    }
}

TEST(PromptDialog, EachButtonClosesTheForm) {
    for (const TextView button : {u"cmdYes", u"cmdNo"})
        answer(u"Reply", [&](Form& form, FormUser user) {
            user.click(button);
            EXPECT_FALSE(form.is_loaded());
        });
    answer(u"Format Warning", [](Form& form, FormUser user) {
        user.click(u"cmdOK");
        EXPECT_FALSE(form.is_loaded());
    });
}

TEST(PromptDialog, AModeThatItDoesNotKnowLeavesTheFormAsDesigned) {
    for (const TextView mode :
         {u"reply", u"REPLY", u"Auto-no Signature", u"Choose Signature", u"", u"Reply "})
        EXPECT_EQ(answer(mode,
                         [](Form& form, FormUser user) {
                             EXPECT_EQ(form[u"lblMessage"].caption, u"");
                             EXPECT_EQ(form.properties.caption, u"Ornavel");
                             EXPECT_FALSE(form[u"cmdYes"].visible);
                             EXPECT_FALSE(form[u"cmdNo"].visible);
                             user.click(u"cmdOK");
                         }),
                  u"No");
}

TEST(PromptDialog, KeepsNothingBetweenPrompts) {
    ScriptedWindows windows(
        [](Form& form, FormUser user) { user.click(form[u"cmdYes"].visible ? u"cmdYes" : u"cmdOK"); });
    PromptDialog prompt(windows, built_in_strings());
    EXPECT_TRUE(prompt.ask(u"Security warning"));
    EXPECT_EQ(prompt.values().answer, u"Yes");
    EXPECT_FALSE(prompt.ask(u"Bad Template"));
}

TEST(PromptDialog, OnlyTheFormSetsTheAnswerOtherThanNo) {
    PromptValues shared{.mode = u"Format Warning", .answer = u"what the caller set"};
    frmMessage prompt(shared, built_in_strings());
    prompt.form().load();
    FormUser(prompt.form()).click(u"cmdOK");
    EXPECT_EQ(shared.answer, u"what the caller set");
}

class NoStrings final : public StringTable {
    std::optional<Text> find(int) const override { return {}; }
};

TEST(PromptDialog, OpensWithoutItsStrings) {
    PromptValues shared{.mode = u"Support email request", .answer = u"No"};
    const NoStrings none;
    frmMessage prompt(shared, none);
    prompt.form().load();
    EXPECT_TRUE(prompt.form().is_loaded());
    EXPECT_EQ(readable_caption(prompt.form()[u"cmdNo"]), u"No. Continue.");
    EXPECT_EQ(prompt.form()[u"lblMessage"].caption, u"");
}

} // namespace
} // namespace ornavel::forms
