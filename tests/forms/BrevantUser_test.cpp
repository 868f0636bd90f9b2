#include "forms/BrevantUser.h"

#include "base/encoding.h"
#include "forms/captions.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

namespace ornavel::forms {
namespace {

using namespace settings;

class SendOptions : public ::testing::Test {
protected:
    SendOptions() {
        set(admin::HTMFilesPath, u"C:\\t");
        set(admin::SignaturesPath, u"C:\\s");
        set(user::Template, u"letter.htm");
        set(user::Signature, u"none");
        files.contents = {{u"C:\\t\\letter.htm", "<[#Input your message here#]>"},
                          {u"C:\\t\\card.htm", "[[#Input your message here#]]"},
                          {u"C:\\s\\jo.htm", "Jo"}};
        host_item->values = {{u"HTMLBody", Text(u"Hello")},
                             {u"Importance", std::int32_t{1}},
                             {u"Sensitivity", std::int32_t{0}},
                             {u"Attachments", host::ObjectPtr(attachments)}};
    }

    /// Shows the form to a user who acts on it; what the script does not close is closed by its frame.
    void show(std::function<void(Form&, FormUser)> script) {
        ScriptedWindows windows(std::move(script));
        const compose::Services composing{store,   files,  clock,       windows,
                                          objects, errors, application, start_up};
        BrevantUser options({.composing = composing,
                             .windows = windows,
                             .launcher = launcher,
                             .strings = built_in_strings(),
                             .item = item,
                             .page = u"C:\\scratch\\page.html",
                             .program_folder = u"C:\\app",
                             .language = language,
                             .find_reply = [] { return compose::Reply(); }},
                            answer);
        windows.show_modal(options.form());
        vcard_chosen = options.vcard_chosen();
        sent_to_many = options.sent_to_many();
        boxes = windows.boxes;
    }
    void set(const Key& key, TextView value) { save(store, key, value); }
    std::optional<Text> stored(const Key& key) const { return store.find(key.section, key.name); }
    void keep_choices() { set(user::Default, u"1"); }

    MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    PreparedObjects objects;
    RecordingReports errors;
    RecordingLauncher launcher;
    host::Application application;
    compose::StartUpValues start_up;
    std::vector<Text> journal;
    std::shared_ptr<RecordingObject> host_item = std::make_shared<RecordingObject>(journal, u"Item");
    std::shared_ptr<RecordingObject> attachments = std::make_shared<RecordingObject>(journal, u"Attachments");
    host::MailItem item{host_item};
    Text language = u"English";
    bool answer = true, vcard_chosen = false, sent_to_many = false;
    std::vector<Text> boxes;
};

// What it looks like.

TEST_F(SendOptions, LooksAsDrawn) {
    show([](Form& form, FormUser) { expect_drawn(form, "send options"); });
    set(user::vCard, u"Jo");
    set(admin::ShowLogoMainForm, u"True");
    set(admin::WizardLogo, u"C:\\logo");
    files.contents[u"C:\\logo\\logo.gif"] = "GIF89a";
    show([](Form& form, FormUser user) {
        user.click(u"cmdOptions");
        expect_drawn(form, "send options with all that they can have");
    });
}

TEST_F(SendOptions, ItsTrapsAreCalledAsTheErrorLogIsReadFor) {
    expect_as_written(in_lines(send_options_traps()), "forms/traps.txt");
}

TEST_F(SendOptions, NothingOverlapsOrLeavesItsFrame) {
    set(user::vCard, u"Jo");
    show([](Form& form, FormUser) {
        form[u"cbovCard"].visible = true;
        form[u"imgLogo"].visible = true;
        for (const Control& one : form.controls()) {
            const Size room = one.frame.empty()
                                  ? Size{form.room().width, 7275 - 375}
                                  : Size{form[one.frame].place.width, form[one.frame].place.height};
            EXPECT_LE(one.place.left + one.place.width, room.width) << to_utf8(one.name);
            EXPECT_LE(one.place.top + one.place.height, room.height) << to_utf8(one.name);
            for (const Control& other : form.controls())
                if (&one != &other && one.visible && other.visible && one.frame == other.frame) {
                    EXPECT_FALSE(overlap(one.place, other.place)) << to_utf8(one.name + u", " + other.name);
                }
        }
    });
}

TEST_F(SendOptions, ATickStandsInTheMiddleOfTheLineOfWhatItRules) {
    set(user::vCard, u"Jo");
    show([](Form& form, FormUser) {
        for (const auto& [tick, ruled] : {std::pair{u"chkvCard", u"cbovCard"},
                                          {u"chkUpdateCategories", u"txtCategories"},
                                          {u"chkFollowUp", u"txtFollowUpFlag"}}) {
            const Bounds one = form[tick].place, other = form[ruled].place;
            EXPECT_EQ(2 * one.top + one.height, 2 * other.top + other.height) << to_utf8(tick);
        }
    });
}

TEST_F(SendOptions, EachHeightShowsItsPartWhole) {
    const auto bottom = [](Form& form, TextView name) {
        return form[name].place.top + form[name].place.height;
    };
    show([&](Form& form, FormUser) {
        // A frame of Windows XP is 9 pixels thicker than the usual one.
        constexpr int thick_frame = 375 + 135;
        EXPECT_LE(bottom(form, u"cmdOkToSend"), 3210 - thick_frame);
        EXPECT_LE(bottom(form, u"frmOutlookOptions"), 6105 - thick_frame);
        EXPECT_LE(bottom(form, u"imgLogo"), 7275 - thick_frame);
    });
}

TEST_F(SendOptions, AccessKeysAreUniqueAndLabelsStandRightBeforeTheirLists) {
    set(user::vCard, u"Jo");
    show([](Form& form, FormUser) {
        std::set<char16_t> keys;
        for (const Control& control : form.controls()) {
            const auto mark = control.caption.find(u'&');
            if (mark != Text::npos) {
                EXPECT_TRUE(keys.insert(lower_case(control.caption)[mark + 1]).second)
                    << to_utf8(control.name);
            }
            if (control.kind == ControlKind::label) {
                EXPECT_EQ((&control + 1)->kind, ControlKind::combo_box) << to_utf8(control.name);
            }
        }
        EXPECT_EQ(keys.size(), 16u);
        EXPECT_TRUE(form[u"cmdOkToSend"].is_default);
        EXPECT_TRUE(form[u"cmdCancel"].is_cancel);
    });
}

TEST_F(SendOptions, EveryTextComesFromTheTable) {
    show([](Form& form, FormUser) {
        EXPECT_EQ(form.properties.caption, u"Ornavel Send Options");
        EXPECT_EQ(form[u"cmdSendAsIs"].tool_tip, u"Send without any changes (without a template)");
        EXPECT_EQ(form[u"cmdCancel"].tool_tip, u"Click Cancel to return to the email item.");
        EXPECT_EQ(form[u"chkDefault"].tool_tip, u"When clicked, your choices will be your defaults");
        for (const Control& control : form.controls()) {
            EXPECT_FALSE(text_identifier(control.tool_tip)) << to_utf8(control.name);
            EXPECT_EQ(control.tag.empty(), control.caption.empty()) << to_utf8(control.name);
        }
    });
}

TEST_F(SendOptions, IsTopmostWhereTheSettingSaysSo) {
    show([](Form& form, FormUser) { EXPECT_TRUE(form.topmost); });
    set(user::WipeoutFormFocus, u"False");
    show([](Form& form, FormUser) { EXPECT_FALSE(form.topmost); });
}

// What it offers.

TEST_F(SendOptions, OffersTemplatesButNoWorkFilesAndNoOtherEnding) {
    files.contents = {{u"C:\\t\\a.HTM", ""},
                      {u"C:\\t\\a_merge.htm", ""},
                      {u"C:\\t\\A_MERGE.HTM", ""},
                      {u"C:\\t\\b.html", ""}};
    show([](Form& form, FormUser) { EXPECT_EQ(form[u"cboTemplates"].items, std::vector<Text>{u"a.HTM"}); });
}

TEST_F(SendOptions, OnlyHtmlFilesAreSignatures) {
    files.contents[u"C:\\s\\notes.txt"] = "Jo";
    show([](Form& form, FormUser) {
        EXPECT_EQ(form[u"cboSignature"].items, (std::vector<Text>{u"none", u"jo.htm"}));
    });
}

TEST_F(SendOptions, SignaturesBeginWithNoneAlsoWithoutTheirFolder) {
    show([](Form& form, FormUser) {
        EXPECT_EQ(form[u"cboSignature"].items, (std::vector<Text>{u"none", u"jo.htm"}));
    });
    set(admin::SignaturesPath, u"C:\\missing");
    show([](Form& form, FormUser user) {
        EXPECT_EQ(form[u"cboSignature"].items, std::vector<Text>{u"none"});
        user.click(u"cmdOkToSend");
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(answer);
}

TEST_F(SendOptions, ShowsTheItemsOwnOptions) {
    host_item->values[u"Importance"] = std::int32_t{2};
    host_item->values[u"Sensitivity"] = std::int32_t{3};
    host_item->values[u"ReadReceiptRequested"] = true;
    show([](Form& form, FormUser) {
        EXPECT_EQ(form[u"cboImportance"].text, u"High");
        EXPECT_EQ(form[u"cboImportance"].index, 2);
        EXPECT_EQ(form[u"cboSensitivity"].text, u"Confidential");
        EXPECT_TRUE(form[u"chkRequestReadReceipt"].ticked);
        EXPECT_FALSE(form[u"chkRequestDeliveryReceipt"].ticked);
    });
}

TEST_F(SendOptions, AFrenchWordIsShownAndItsEmptyNumberReachesTheMailClient) {
    language = u"French";
    host_item->values[u"Importance"] = std::int32_t{2};
    show([](Form& form, FormUser user) {
        EXPECT_EQ(form[u"cboImportance"].text, u"Haut");
        EXPECT_EQ(form[u"cboImportance"].index, -1);
        user.click(u"cmdOkToSend");
    });
    EXPECT_EQ(std::ranges::count(journal, Text(u"Item.Importance = ")), 1);
    EXPECT_EQ(std::ranges::count(journal, Text(u"Item.HTMLBody = <Hello>\r\n")), 1);
}

TEST_F(SendOptions, AnOptionThatCantBeReadKeepsNothingElseFromTheForm) {
    for (const TextView member :
         {u"Importance", u"Sensitivity", u"ReadReceiptRequested", u"OriginatorDeliveryReportRequested"}) {
        errors.entries.clear();
        host_item->failing = {Text(member)};
        show([](Form& form, FormUser) { EXPECT_EQ(form[u"cboTemplates"].text, u"letter.htm"); });
        ASSERT_EQ(errors.entries.size(), 1u) << to_utf8(member);
        EXPECT_EQ(errors.entries[0].sub_function, u"Form_Load");
    }
}

TEST_F(SendOptions, SavedChoicesAreLoadedOnlyWhereTheUserKeepsThem) {
    set(user::Importance, u"Haut");
    set(user::Sensitivity, u"Private");
    for (const Key& key : {Key(user::Delivery), Key(user::Receipt), Key(user::Categories),
                           Key(user::FollowUp), Key(admin::SkipInternal)})
        set(key, u"1");
    set(user::CategoryVal, u"Sales");
    set(user::FollowUpVal, u"Call");
    const TextView ticks[] = {u"chkRequestDeliveryReceipt", u"chkRequestReadReceipt", u"chkUpdateCategories",
                              u"chkFollowUp", u"chkInternal"};
    show([&](Form& form, FormUser) {
        EXPECT_EQ(form[u"cboImportance"].text, u"Normal");
        for (const TextView box : ticks) EXPECT_FALSE(form[box].ticked);
        EXPECT_EQ(form[u"txtCategories"].text, u"");
    });
    keep_choices();
    show([&](Form& form, FormUser) {
        EXPECT_EQ(form[u"cboImportance"].text, u"Haut");
        EXPECT_EQ(form[u"cboSensitivity"].text, u"Private");
        for (const TextView box : ticks) EXPECT_TRUE(form[box].ticked) << to_utf8(box);
        EXPECT_EQ(form[u"txtCategories"].text, u"Sales");
        EXPECT_EQ(form[u"txtFollowUpFlag"].text, u"Call");
    });
}

// Sending.

TEST_F(SendOptions, SendAppliesTheOptionsAndDressesTheItem) {
    show([](Form&, FormUser user) {
        user.set_text(u"cboTemplates", u"card.htm");
        user.set_text(u"cboSignature", u"jo.htm");
        user.select(u"cboImportance", 2);
        user.select(u"cboSensitivity", 1);
        user.tick(u"chkRequestDeliveryReceipt", true);
        user.tick(u"chkUpdateCategories", true);
        user.set_text(u"txtCategories", u"Sales");
        user.tick(u"chkFollowUp", true);
        user.click(u"cmdOkToSend");
    });
    EXPECT_TRUE(answer);
    EXPECT_EQ(journal, (std::vector<Text>{u"Item.OriginatorDeliveryReportRequested = True",
                                          u"Item.ReadReceiptRequested = False", u"Item.Importance = 2",
                                          u"Item.Sensitivity = 2", u"Item.HTMLBody = [Hello<P>Jo\r\n]\r\n",
                                          u"Item.Categories = Sales"}));
    EXPECT_EQ(stored(user::Template), u"card.htm");
    EXPECT_EQ(stored(user::Signature), u"jo.htm");
    EXPECT_EQ(stored(user::Default), u"0");
    EXPECT_EQ(stored(user::Importance), std::nullopt);
    EXPECT_EQ(stored(system::MainFormHeight), std::nullopt);
}

TEST_F(SendOptions, ChoicesAreSavedWhereTheUserKeepsThem) {
    show([](Form&, FormUser user) {
        user.tick(u"chkDefault", true);
        user.set_text(u"cboImportance", u"Haut");
        user.tick(u"chkFollowUp", true);
        user.set_text(u"txtFollowUpFlag", u"Call");
        user.tick(u"chkShowMessage", false);
        user.click(u"cmdOkToSend");
    });
    EXPECT_EQ(stored(user::Default), u"1");
    EXPECT_EQ(stored(user::Importance), u"Haut");
    EXPECT_EQ(stored(user::Sensitivity), u"Normal");
    EXPECT_EQ(stored(user::Delivery), u"0");
    EXPECT_EQ(stored(user::Receipt), u"0");
    EXPECT_EQ(stored(user::Categories), u"0");
    EXPECT_EQ(stored(user::CategoryVal), u"");
    EXPECT_EQ(stored(user::FollowUp), u"1");
    EXPECT_EQ(stored(user::FollowUpVal), u"Call");
    EXPECT_EQ(stored(system::MainFormHeight), u"6105");
    EXPECT_EQ(stored(user::ShowMessageBox), u"0");
}

TEST_F(SendOptions, EveryPropertyThatCantBeSetIsLoggedAndTheRestIsApplied) {
    const TextView members[] = {u"Importance",           u"Sensitivity",
                                u"ReadReceiptRequested", u"OriginatorDeliveryReportRequested",
                                u"Categories",           u"FlagRequest"};
    for (const TextView member : members) {
        errors.entries.clear();
        journal.clear();
        show([&](Form&, FormUser user) {
            user.tick(u"chkUpdateCategories", true);
            user.set_text(u"txtCategories", u"Sales");
            user.tick(u"chkFollowUp", true);
            user.set_text(u"txtFollowUpFlag", u"Call");
            host_item->failing = {Text(member)};
            user.click(u"cmdOkToSend");
            host_item->failing.clear();
        });
        EXPECT_TRUE(answer);
        EXPECT_EQ(journal.size(), 6u) << to_utf8(member);
        ASSERT_EQ(errors.entries.size(), 1u) << to_utf8(member);
        EXPECT_EQ(errors.entries[0].sub_function, u"cmdOkToSend_Click");
    }
}

TEST_F(SendOptions, ABodyThatCantBeSetLeavesTheFormOpen) {
    show([&](Form& form, FormUser user) {
        host_item->failing = {u"HTMLBody"};
        user.set_text(u"cboTemplates", u"card.htm");
        user.click(u"cmdOkToSend");
        EXPECT_TRUE(form.is_loaded());
        EXPECT_FALSE(answer);
        EXPECT_EQ(stored(user::Template), u"card.htm");
        host_item->failing.clear();
        user.click(u"cmdOkToSend");
        EXPECT_FALSE(form.is_loaded());
    });
    EXPECT_TRUE(answer);
}

TEST_F(SendOptions, ARefusedScriptLeavesTheFormOpenAndTheBodyUntouched) {
    files.contents[u"C:\\t\\letter.htm"] = "<script></script>[#Input your message here#]";
    show([&](Form& form, FormUser user) {
        user.click(u"cmdOkToSend");
        EXPECT_TRUE(form.is_loaded());
        EXPECT_FALSE(answer);
        user.click(u"cmdCancel");
    });
    EXPECT_FALSE(answer);
    for (const Text& line : journal) EXPECT_FALSE(line.starts_with(u"Item.HTMLBody")) << to_utf8(line);
}

TEST_F(SendOptions, ATemplateThatIsGoneIsNoValidOne) {
    set(user::Template, u"gone.htm");
    show([](Form& form, FormUser user) {
        user.click(u"cmdOkToSend");
        EXPECT_EQ(form[u"cboTemplates"].text, u"");
        EXPECT_TRUE(form.is_loaded());
    });
    EXPECT_EQ(boxes, std::vector<Text>{
                         u"Selection error: You have not chosen a valid Template. Please select one..."});
    EXPECT_TRUE(journal.empty());
}

TEST_F(SendOptions, WithoutATemplateTheFolderItselfIsAskedFor) {
    set(user::Template, u"");
    show([](Form&, FormUser user) { user.click(u"cmdOkToSend"); });
    EXPECT_EQ(boxes,
              std::vector<Text>{u"Selection error: You have not chosen a Template. Please select one..."});
    files.contents.clear();
    show([](Form&, FormUser user) { user.click(u"cmdOkToSend"); });
    EXPECT_EQ(boxes, std::vector<Text>{
                         u"Selection error: You have not chosen a valid Template. Please select one..."});
}

TEST_F(SendOptions, WithoutAnAnswerFromTheDiskNothingIsSent) {
    show([&](Form& form, FormUser user) {
        files.at_look = [](TextView) { throw Failure(u"no disk"); };
        user.click(u"cmdOkToSend");
        EXPECT_TRUE(form.is_loaded());
    });
    EXPECT_TRUE(journal.empty());
    ASSERT_FALSE(errors.entries.empty());
    EXPECT_EQ(errors.entries[0].description, u"no disk");
}

TEST_F(SendOptions, WithoutASignatureNothingIsSent) {
    set(user::Signature, u"");
    show([](Form& form, FormUser user) {
        user.click(u"cmdOkToSend");
        EXPECT_TRUE(form.is_loaded());
    });
    EXPECT_EQ(boxes,
              std::vector<Text>{u"Selection error: You have not chosen a signature. Please select one..."});
}

TEST_F(SendOptions, EachAnswerClosesIt) {
    for (const TextView button : {u"cmdOkToSend", u"cmdSendAsIs", u"cmdCancel"})
        show([&](Form& form, FormUser user) {
            user.click(button);
            EXPECT_FALSE(form.is_loaded()) << to_utf8(button);
        });
}

TEST_F(SendOptions, AFormThatIsClosedAfterASendThatStoppedAnswersYesDeliberately) {
    set(user::Signature, u"");
    show([](Form&, FormUser user) {
        user.click(u"cmdOkToSend");
        user.close();
    });
    EXPECT_TRUE(answer);
    EXPECT_TRUE(journal.empty());
}

TEST_F(SendOptions, ClosingTheFrameCancelsAndSavesTheTemplateAllTheSame) {
    show([](Form&, FormUser user) { user.set_text(u"cboTemplates", u"card.htm"); });
    EXPECT_FALSE(answer);
    EXPECT_EQ(stored(user::Template), u"card.htm");
}

TEST_F(SendOptions, SendAsIsChangesNothingButTheSavedTemplate) {
    show([](Form&, FormUser user) {
        user.tick(u"chkRequestReadReceipt", true);
        user.set_text(u"cboTemplates", u"card.htm");
        user.set_text(u"cboSignature", u"jo.htm");
        user.click(u"cmdSendAsIs");
    });
    EXPECT_TRUE(answer);
    EXPECT_TRUE(journal.empty());
    EXPECT_EQ(stored(user::Template), u"card.htm");
    EXPECT_EQ(stored(user::Signature), u"none");
    EXPECT_EQ(stored(user::Default), std::nullopt);
}

TEST_F(SendOptions, CancelAnswersNoAlsoAfterASendThatStopped) {
    set(user::Signature, u"");
    show([](Form&, FormUser user) {
        user.click(u"cmdOkToSend");
        user.click(u"cmdCancel");
    });
    EXPECT_FALSE(answer);
    EXPECT_EQ(stored(system::MainFormHeight), u"6105");
}

// Folding.

TEST_F(SendOptions, OptionsFoldAndUnfoldInTheMiddleOfTheScreen) {
    show([](Form& form, FormUser user) {
        form.screen = {0, 0, 19200, 15360};
        user.click(u"cmdOptions");
        EXPECT_EQ(form.properties.place.height, 3210);
        EXPECT_EQ(form.properties.place.top, (15360 - 3210) / 2);
        EXPECT_FALSE(form[u"frmOutlookOptions"].visible);
        user.click(u"cmdOptions");
        EXPECT_EQ(form.properties.place.height, 6105);
        EXPECT_TRUE(form[u"frmOutlookOptions"].visible);
        user.click(u"cmdOptions");
        user.click(u"cmdCancel");
    });
    EXPECT_EQ(stored(system::MainFormHeight), u"3210");
}

TEST_F(SendOptions, TheLogoHasAStripOfItsOwnWhichIsNotSaved) {
    set(admin::ShowLogoMainForm, u"True");
    set(admin::WizardLogo, u"C:\\logo");
    files.contents[u"C:\\logo\\logo.gif"] = "GIF";
    keep_choices();
    show([](Form& form, FormUser user) {
        EXPECT_EQ(form.properties.place.height, 7275);
        EXPECT_TRUE(form[u"imgLogo"].visible);
        EXPECT_EQ(form[u"imgLogo"].picture, u"C:\\logo\\logo.gif");
        user.click(u"cmdOptions");
        EXPECT_EQ(form.properties.place.height, 3210);
        user.click(u"cmdOptions");
        EXPECT_EQ(form.properties.place.height, 7275);
        user.click(u"cmdOkToSend");
    });
    EXPECT_EQ(stored(system::MainFormHeight), u"6105");
}

TEST_F(SendOptions, AMissingPictureLeavesTheStripEmpty) {
    set(admin::ShowLogoMainForm, u"True");
    files.contents[u"\\logo.gif"] = "GIF89a"; // in no folder that was chosen
    keep_choices();
    for (const TextView folder : {u"C:\\logo", u""}) {
        set(admin::WizardLogo, folder);
        show([](Form& form, FormUser) {
            EXPECT_EQ(form.properties.place.height, 7275);
            EXPECT_EQ(form[u"imgLogo"].picture, u"");
        });
    }
}

TEST_F(SendOptions, AnyOtherSavedHeightFoldsTheOptions) {
    keep_choices();
    for (const TextView height : {u"3210", u"7275", u"", u"6105 ", u"tall"}) {
        set(system::MainFormHeight, height);
        show([](Form& form, FormUser) { EXPECT_EQ(form.properties.place.height, 3210); });
    }
    set(user::Default, u"0");
    show([](Form& form, FormUser) { EXPECT_EQ(form.properties.place.height, 6105); });
}

// Tips.

TEST_F(SendOptions, TheTipsBoxFollowsTheUserUnlessTheAdministratorDecides) {
    set(user::ShowMessageBox, u"0");
    show([](Form& form, FormUser user) {
        EXPECT_FALSE(form[u"txtHeader"].visible);
        user.tick(u"chkShowMessage", true);
        EXPECT_TRUE(form[u"txtHeader"].visible);
    });
    set(admin::ShowMessageBoxAdminOnly, u"True");
    show([](Form& form, FormUser) {
        EXPECT_TRUE(form[u"txtHeader"].visible);
        EXPECT_TRUE(form[u"chkShowMessage"].ticked);
        EXPECT_FALSE(form[u"chkShowMessage"].enabled);
    });
}

TEST_F(SendOptions, ADoubleClickShowsTheNextTip) {
    set(admin::TipsFileLocation, u"C:\\tips.txt");
    files.contents[u"C:\\tips.txt"] = std::string(20, '\n') + "15 First\r\n16 Second\r\n";
    show([](Form& form, FormUser user) {
        EXPECT_EQ(form[u"txtHeader"].text, u"First");
        user.double_click(u"txtHeader");
        EXPECT_EQ(form[u"txtHeader"].text, u"Second");
    });
    EXPECT_EQ(stored(system::LastTipNumber), u"17");
    EXPECT_EQ(stored(user::SendQuoteString), std::nullopt);
    EXPECT_TRUE(errors.entries.empty());
}

TEST_F(SendOptions, TheTipStandsBelowTheNextAppointmentInALineOfItsOwn) {
    const auto object = [&](std::map<Text, host::Value> values) {
        auto made = std::make_shared<RecordingObject>(journal);
        made->values = std::move(values);
        return host::ObjectPtr(made);
    };
    const auto review = object({{u"Subject", Text(u"Review")}, {u"Start", host::Date{37945 + 16.0 / 24}}});
    const auto today = object({{u"GetFirst", review}});
    const auto calendar = object({{u"Items", object({{u"Restrict", today}})}});
    application = host::Application(object({{u"GetNamespace", object({{u"GetDefaultFolder", calendar}})}}));
    const auto expect_shown = [&](TextView text) {
        show([text](Form& form, FormUser) { EXPECT_EQ(form[u"txtHeader"].text, text); });
    };
    set(user::ShowNextAppointmentTips, u"True");
    expect_shown(u"Review at 4:00 PM");
    set(admin::TipsFileLocation, u"C:\\tips.txt");
    files.contents[u"C:\\tips.txt"] = std::string(20, '\n') + "15 First\r\n16 Second\r\n";
    expect_shown(u"Review at 4:00 PM\r\nFirst");
    set(user::ShowNextAppointmentTips, u"False");
    expect_shown(u"Second");
}

// The vCard.

TEST_F(SendOptions, WithoutAVCardTheCaptionOfOnesOwnIsNotRead) {
    set(admin::ProFormCaption, u"Post");
    show([](Form& form, FormUser) {
        EXPECT_EQ(form.properties.caption, u"Ornavel Send Options");
        EXPECT_FALSE(form[u"chkvCard"].visible);
        EXPECT_FALSE(form[u"cbovCard"].visible);
    });
    set(user::vCard, u"Jo");
    show([](Form& form, FormUser) {
        EXPECT_EQ(form.properties.caption, u"Post");
        EXPECT_TRUE(form[u"chkvCard"].visible);
    });
}

TEST_F(SendOptions, WithoutAVCardItsFrameShrinksAndWhatStandsBelowClosesRanks) {
    const auto places = [this] {
        std::array<int, 3> all{};
        show([&](Form& form, FormUser) {
            all = {form[u"frmChoices"].place.height, form[u"cmdOkToSend"].place.top,
                   form[u"frmOutlookOptions"].place.top};
        });
        return all;
    };
    const auto without = places();
    set(user::vCard, u"Jo");
    const auto with = places();
    for (std::size_t i = 0; i < with.size(); ++i) EXPECT_EQ(with[i] - without[i], 420);
}

TEST_F(SendOptions, ATickOffersTheCardsAndSavesTheFirst) {
    set(user::vCard, u"Private;Work;Spare");
    set(user::vCardPath, u"C:\\p.vcf;C:\\w.vcf");
    show([&](Form& form, FormUser user) {
        user.tick(u"chkvCard", true);
        EXPECT_TRUE(form[u"cbovCard"].visible);
        EXPECT_EQ(stored(user::SendvCard), u"True");
        EXPECT_EQ(stored(user::vCardSelected), u"Private");
        EXPECT_EQ(stored(user::vCardPathSelected), u"C:\\p.vcf");
        user.select(u"cbovCard", 1);
        EXPECT_EQ(stored(user::vCardPathSelected), u"C:\\w.vcf");
        user.select(u"cbovCard", 2);
        EXPECT_EQ(stored(user::vCardSelected), u"Spare");
        EXPECT_EQ(stored(user::vCardPathSelected), u"");
        user.click(u"cmdOkToSend");
    });
    EXPECT_TRUE(vcard_chosen);
}

TEST_F(SendOptions, ATickOffersTheCardsThatThereAreNow) {
    set(user::vCard, u"Jo");
    show([&](Form& form, FormUser user) {
        set(user::vCard, u"Jo;Al");
        user.tick(u"chkvCard", true);
        EXPECT_EQ(form[u"cbovCard"].items, (std::vector<Text>{u"Jo", u"Al"}));
    });
}

TEST_F(SendOptions, AnOfferedCardIsTickedWhereItAlwaysGoes) {
    set(user::vCard, u"Private;Work");
    set(user::vCardPath, u"C:\\p.vcf;C:\\w.vcf");
    set(user::vCardSelected, u"Work");
    set(user::SendvCard, u"True");
    show([&](Form& form, FormUser user) {
        EXPECT_FALSE(form[u"chkvCard"].ticked);
        EXPECT_TRUE(form[u"cbovCard"].visible);
        EXPECT_EQ(form[u"cbovCardPath"].text, u"C:\\w.vcf");
        user.tick(u"chkvCard", true);
        user.tick(u"chkvCard", false);
        EXPECT_FALSE(form[u"cbovCard"].visible);
        EXPECT_EQ(stored(user::SendvCard), u"False");
        set(user::SendvCard, u"True");
    });
    set(admin::SendvCardAlways, u"True");
    show([](Form& form, FormUser) { EXPECT_TRUE(form[u"chkvCard"].ticked); });
    EXPECT_FALSE(vcard_chosen);
}

// Preview and help.

TEST_F(SendOptions, APreviewOfItsOwnBrowserIsLeftOpenUntilTheFormIsCancelled) {
    set(system::WebBrowserControlOK, u"False");
    set(admin::BrowserWarnPastedImages, u"True");
    objects.prepared[u"InternetExplorer.Application"] =
        std::make_shared<RecordingObject>(journal, u"Browser");
    show([&](Form& form, FormUser user) {
        user.click(u"cmdPreview");
        EXPECT_TRUE(form.is_loaded());
        EXPECT_EQ(
            files.contents[u"C:\\scratch\\page.html"],
            "<form><input type='button' value='Close Preview Window' onClick='window.close()'></form><font "
            "face=Verdana size=1>Note: pasted images will not appear in this preview, but will be seen in "
            "the "
            "sent version.</font><br>\r\n<Hello>\r\n");
        user.click(u"cmdCancel");
    });
    EXPECT_EQ(journal, (std::vector<Text>{u"Browser.Navigate C:\\scratch\\page.html",
                                          u"Browser.AddressBar = False", u"Browser.FullScreen = True",
                                          u"Browser.StatusBar = False", u"Browser.TheaterMode = False",
                                          u"Browser.Visible = True", u"Browser.Quit"}));
    EXPECT_EQ(stored(user::Signature), u"none");
}

TEST_F(SendOptions, WhatWasChosenInThePreviewIsSent) {
    set(admin::ShowPreviewSelectButton, u"True");
    show([&](Form& form, FormUser user) {
        if (form.name() == u"BrevantUser") return user.click(u"cmdPreview");
        EXPECT_FALSE(form[u"cmdSendPlain"].visible);
        EXPECT_FALSE(form[u"chkvCard"].visible);
        EXPECT_EQ(files.contents[u"C:\\scratch\\page.html"], "<Hello>\r\n");
        user.click(u"cmdNext");
        user.click(u"cmdSignNext");
        EXPECT_EQ(files.contents[u"C:\\scratch\\page.html"], "[Hello<P>Jo\r\n]\r\n");
        user.click(u"command1");
    });
    EXPECT_TRUE(answer);
    EXPECT_EQ(std::ranges::count(journal, Text(u"Item.HTMLBody = [Hello<P>Jo\r\n]\r\n")), 1);
}

TEST_F(SendOptions, APreviewThatWasSentToManyIsKeptForTheOtherProgram) {
    set(admin::ShowSendToMany, u"True");
    host_item->values[u"Subject"] = Text(u"Hello");
    show([](Form& form, FormUser user) {
        if (form.name() != u"BrevantUser") return user.click(u"cmdSendToMany");
        user.click(u"cmdPreview");
        user.click(u"cmdPreview");
    });
    EXPECT_TRUE(sent_to_many);
}

TEST_F(SendOptions, WhatTheUserChoosesAfterThePreviewCountsAgain) {
    set(admin::ShowPreviewSelectButton, u"True");
    show([&](Form& form, FormUser user) {
        if (form.name() != u"BrevantUser") return user.click(u"cmdNext");
        user.click(u"cmdPreview");
        EXPECT_EQ(stored(user::Template), u"card.htm");
        user.set_text(u"cboTemplates", u"letter.htm");
        user.set_text(u"cboSignature", u"jo.htm");
        user.click(u"cmdOkToSend");
    });
    EXPECT_EQ(std::ranges::count(journal, Text(u"Item.HTMLBody = <Hello<P>Jo\r\n>\r\n")), 1);
}

TEST_F(SendOptions, APreviewThatIsClosedSendsNothingAndLeavesTheItem) {
    show([&](Form& form, FormUser user) {
        if (form.name() != u"BrevantUser") return;
        user.click(u"cmdPreview");
        EXPECT_TRUE(form.is_loaded());
        EXPECT_FALSE(answer);
    });
    EXPECT_FALSE(answer);
    EXPECT_TRUE(journal.empty());
}

TEST_F(SendOptions, ATemplateThatChangesAfterThePreviewIsReadAnew) {
    show([&](Form& form, FormUser user) {
        if (form.name() != u"BrevantUser") return;
        user.click(u"cmdPreview");
        files.contents[u"C:\\t\\letter.htm"] = "new [#Input your message here#]";
        user.click(u"cmdOkToSend");
    });
    EXPECT_EQ(std::ranges::count(journal, Text(u"Item.HTMLBody = new Hello\r\n")), 1);
}

TEST_F(SendOptions, AFolderThatVanishesWhileTheFormIsOpenStopsTheSend) {
    show([&](Form& form, FormUser user) {
        files.contents.clear();
        user.click(u"cmdOkToSend");
        EXPECT_TRUE(form.is_loaded());
    });
    EXPECT_EQ(boxes, std::vector<Text>{
                         u"Selection error: You have not chosen a valid Template. Please select one..."});
    EXPECT_TRUE(journal.empty());
}

TEST_F(SendOptions, HelpWithoutThePreviewWindowIsOpenedByTheSystem) {
    set(system::WebBrowserControlOK, u"False");
    set(admin::Help, u"C:\\help.htm");
    show([](Form&, FormUser user) { user.click(u"cmdHelp"); });
    EXPECT_EQ(launcher.programs, std::vector<Text>{u"C:\\help.htm"});
}

} // namespace
} // namespace ornavel::forms
