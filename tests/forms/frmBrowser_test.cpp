#include "forms/frmBrowser.h"

#include "base/encoding.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"

#include <gtest/gtest.h>

#include <set>

namespace ornavel::forms {
namespace {

using namespace settings;

bool is_hidden_list(TextView name) {
    return name == u"cboListTemplates" || name == u"cboPrevSigs" || name == u"cboListBplates" ||
           name == u"cboBGColourCode";
}

class PreviewWindow : public ::testing::Test {
protected:
    /// Shows the window to a user who acts on it, as the send pipeline does.
    void show(std::function<void(Form&, FormUser)> script) {
        ScriptedWindows windows(std::move(script));
        frmBrowser preview({store, files, windows, errors, launcher, item, u"C:\\app"}, answers,
                           u"C:\\scratch\\page.html", [this](TextView boilerplate) {
                               ++composed;
                               if (refuses_to_compose)
                                   return compose::Composed{.outcome = compose::Outcome::failed};
                               return compose::Composed{.html = Text(boilerplate) + u"with " +
                                                                read(store, user::Template)};
                           });
        preview.form().load();
        preview.render();
        windows.show_modal(preview.form());
    }

    std::optional<Text> stored(const Key& key) const { return store.find(key.section, key.name); }

    MemoryStore store;
    MemoryFiles files;
    RecordingReports errors;
    RecordingLauncher launcher;
    std::vector<Text> journal;
    std::shared_ptr<RecordingObject> host_item = std::make_shared<RecordingObject>(journal, u"MailItem");
    host::MailItem item{host_item};
    PreviewAnswers answers;
    int composed = 0;
    bool refuses_to_compose = false;
};

TEST_F(PreviewWindow, ClosedWithoutAChoiceAnswersThatNothingIsSent) {
    show({});
    EXPECT_FALSE(answers.send);
    EXPECT_FALSE(answers.send_plain);
    EXPECT_FALSE(answers.vcard_chosen);
}

TEST_F(PreviewWindow, LooksAsDrawn) {
    save(store, admin::Help, u"C:\\help\\index.htm");
    files.contents = {{u"C:\\help\\index.htm", ""}};
    int forms = 0;
    show([&](Form& form, FormUser user) {
        if (++forms > 1) return expect_drawn(form, "help");
        expect_drawn(form, "preview");
        user.click(u"cmdOptions");
        expect_drawn(form, "preview with its lists");
        user.click(u"cmdHelp");
    });
    EXPECT_EQ(forms, 2);
}

TEST_F(PreviewWindow, StaysAboveTheEditorThatTheMessageIsWrittenIn) {
    show([](Form& form, FormUser) { EXPECT_TRUE(form.topmost); });
}

TEST_F(PreviewWindow, CanBeSizedAndAnswersEnterWithSendAndEscapeWithClose) {
    show([](Form& form, FormUser) {
        EXPECT_TRUE(form.sizable);
        for (const Control& control : form.controls()) {
            EXPECT_EQ(control.is_default, control.name == u"command1") << to_utf8(control.name);
            EXPECT_EQ(control.is_cancel, control.name == u"cmdClose") << to_utf8(control.name);
        }
    });
}

TEST_F(PreviewWindow, ASignatureIsTakenFromTheListAsATemplateIs) {
    store.save(u"Admin Settings", u"Signatures Path", u"C:\\s");
    files.contents = {{u"C:\\s\\ann.htm", ""}, {u"C:\\s\\bob.htm", ""}};
    store.save(u"Admin Settings", u"PreviewOptionsShow", u"True");
    show([&](Form& form, FormUser user) {
        user.select(u"cboSignatures", 1);
        EXPECT_EQ(form[u"cboSignatures"].items, (std::vector<Text>{u"ann", u"bob"}));
        EXPECT_EQ(read(store, user::Signature), u"bob.htm");
        user.set_text(u"cboSignatures", u"carol");
        EXPECT_EQ(read(store, user::Signature), u"carol.htm");
    });
    EXPECT_EQ(composed, 3);
}

TEST_F(PreviewWindow, ThePageBeginsRightBelowTheControlsThatAreShown) {
    show([](Form& form, FormUser user) {
        for (Control& control : form.controls())
            control.visible = control.name == u"command1" || control.name == u"cmdClose" ||
                              control.name == u"cmdOptions" || control.name == u"brwWebBrowser";
        user.resize(10170, 6000);
        const auto top = [&] { return form[u"brwWebBrowser"].place.top; };
        EXPECT_EQ(top(), 165 + 345 + 105);
        EXPECT_EQ(form[u"cmdClose"].place.left, form[u"command1"].place.left + 1125 + 105);
        user.click(u"cmdOptions");
        EXPECT_EQ(top(), 165 + 345 + 105 + 345 + 105);
        user.click(u"cmdOptions");
        EXPECT_EQ(top(), 165 + 345 + 105);
    });
}

TEST_F(PreviewWindow, NothingOverlapsInTheSmallestWindow) {
    show([](Form& form, FormUser user) {
        for (Control& control : form.controls()) control.visible = !is_hidden_list(control.name);
        user.resize(0, 0);
        expect_apart(form);
        EXPECT_GE(form[u"brwWebBrowser"].place.height, 2250);
    });
}

TEST_F(PreviewWindow, AccessKeysAreUnique) {
    show([](Form& form, FormUser) {
        std::set<char16_t> keys;
        for (const Control& control : form.controls()) {
            const auto mark = control.caption.find(u'&');
            if (mark == Text::npos) continue;
            EXPECT_TRUE(keys.insert(lower_case(control.caption)[mark + 1]).second) << to_utf8(control.name);
        }
        EXPECT_EQ(keys.size(), 15u);
    });
}

TEST_F(PreviewWindow, SendAnswersSendWithoutTheCardWhereTheBoxIsNotTicked) {
    show([](Form&, FormUser user) { user.click(u"command1"); });
    EXPECT_TRUE(answers.send);
    EXPECT_FALSE(answers.vcard_chosen);
}

TEST_F(PreviewWindow, SendPlainCountsAsSend) {
    show([](Form&, FormUser user) { user.click(u"cmdSendPlain"); });
    EXPECT_TRUE(answers.send);
    EXPECT_TRUE(answers.send_plain);
}

TEST_F(PreviewWindow, TheListsHoldOnlyTemplatesWithoutTheirExtension) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    for (const TextView name :
         {u"a.htm", u"B.HTM", u"c.html", u"d_merge.htm", u"D_MERGE.HTM", u"e.txt", u"x.htm.htm"})
        files.contents[u"C:\\t\\" + Text(name)] = "";
    store.save(u"Admin Settings", u"PreviewOptionsShow", u"True");
    show([&](Form& form, FormUser user) {
        user.drop_down(u"cboTemplates");
        EXPECT_EQ(form[u"cboListTemplates"].items, (std::vector<Text>{u"a.htm", u"B.HTM", u"x.htm.htm"}));
        EXPECT_EQ(form[u"cboTemplates"].items, (std::vector<Text>{u"a", u"B.HTM", u"x"}));
        user.select(u"cboTemplates", 2);
        EXPECT_EQ(read(store, user::Template), u"x.htm.htm");
        EXPECT_EQ(files.contents[u"C:\\scratch\\page.html"], "with x.htm.htm");
        user.set_text(u"cboTemplates", u"other");
        EXPECT_EQ(read(store, user::Template), u"other.htm");
    });
    EXPECT_EQ(composed, 3);
}

TEST_F(PreviewWindow, AListThatIsOpenedMarksWhatIsChosen) {
    save(store, admin::HTMFilesPath, u"C:\\t");
    save(store, user::Template, u"letter.htm");
    files.contents = {{u"C:\\t\\card.htm", ""}, {u"C:\\t\\letter.htm", ""}};
    show([](Form& form, FormUser user) {
        user.click(u"cmdOptions");
        EXPECT_EQ(form[u"cboTemplates"].index, -1);
        user.drop_down(u"cboTemplates");
        EXPECT_EQ(form[u"cboTemplates"].index, 1);
    });
}

TEST_F(PreviewWindow, EachAnswerClosesIt) {
    for (const TextView button : {u"command1", u"cmdSendPlain", u"cmdClose"})
        show([&](Form& form, FormUser user) {
            user.click(button);
            EXPECT_FALSE(form.is_loaded()) << to_utf8(button);
        });
}

TEST_F(PreviewWindow, TheNextTemplateAfterAnUnknownOneIsTheFirst) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    store.save(u"User Settings", u"Template", u"gone.htm");
    files.contents = {{u"C:\\t\\a.htm", ""}, {u"C:\\t\\b.htm", ""}};
    show([&](Form&, FormUser user) {
        for (const TextView expected : {u"a.htm", u"b.htm", u"a.htm"}) {
            user.click(u"cmdNext");
            EXPECT_EQ(read(store, user::Template), expected);
        }
    });
}

TEST_F(PreviewWindow, WithoutTemplatesTheNextOneChangesNothing) {
    store.save(u"User Settings", u"Template", u"gone.htm");
    show([&](Form&, FormUser user) { user.click(u"cmdNext"); });
    EXPECT_EQ(read(store, user::Template), u"gone.htm");
    EXPECT_EQ(composed, 1);
}

TEST_F(PreviewWindow, APageThatIsWrittenAnewIsShownAnew) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    files.contents = {{u"C:\\t\\a.htm", ""}};
    show([&](Form& form, FormUser user) {
        EXPECT_EQ(form[u"brwWebBrowser"].page, u"C:\\scratch\\page.html");
        EXPECT_EQ(form[u"brwWebBrowser"].visits, 1);
        user.click(u"cmdNext");
        EXPECT_EQ(form[u"brwWebBrowser"].visits, 2);
    });
}

TEST_F(PreviewWindow, AMessageThatCantBeComposedKeepsThePageThatIsShown) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    files.contents = {{u"C:\\t\\a.htm", ""}};
    show([&](Form& form, FormUser user) {
        const std::string before = files.contents[u"C:\\scratch\\page.html"];
        refuses_to_compose = true;
        user.click(u"cmdNext");
        EXPECT_EQ(files.contents[u"C:\\scratch\\page.html"], before);
        EXPECT_EQ(form[u"brwWebBrowser"].visits, 1);
        user.click(u"command1");
    });
    EXPECT_TRUE(answers.send);
}

TEST_F(PreviewWindow, APageThatCantBeWrittenIsLoggedAndTheWindowStillAnswers) {
    files.refused.insert(u"C:\\scratch\\page.html");
    show([](Form&, FormUser user) { user.click(u"command1"); });
    EXPECT_TRUE(answers.send);
    ASSERT_EQ(errors.entries.size(), 1u);
}

TEST_F(PreviewWindow, TheBrowserTakesWhatTheWindowLeaves) {
    show([](Form& form, FormUser user) {
        const Bounds before = form[u"brwWebBrowser"].place;
        user.resize(11170, 7000);
        EXPECT_EQ(form[u"brwWebBrowser"].place.width, before.width + 1000);
        EXPECT_EQ(form[u"brwWebBrowser"].place.height, before.height + 1000);
        user.resize(100, 100);
        EXPECT_EQ(form[u"brwWebBrowser"].place.width, form.room().width - 2 * 165);
        EXPECT_EQ(form[u"brwWebBrowser"].place.height, 2250);
    });
}

TEST_F(PreviewWindow, ItsPlaceIsKeptAsTwips) {
    show([](Form&, FormUser user) { user.move(300, 450); });
    EXPECT_EQ(stored(user::BrowserLeft), u"300");
    EXPECT_EQ(stored(user::BrowserTop), u"450");
    EXPECT_EQ(stored(user::BrowserWidth), u"10170");
    EXPECT_EQ(stored(user::BrowserHeight), u"6000");
}

struct Designed {
    TextView name, caption, tool_tip;
    int width;
    bool visible;
};

TEST_F(PreviewWindow, HasItsControlsWithTheirWords) {
    const Designed expected[] = {
        {u"command1", u"&Send", u"", 1125, true},
        {u"cmdSendPlain", u"Send &Plain", u"", 1350, true},
        {u"cmdClose", u"&Close", u"", 1125, true},
        {u"cmdNext", u"> &Template", u"Next template", 1350, true},
        {u"cmdSignNext", u"> S&ignature", u"Next signature", 1350, true},
        {u"cmdOptions", u"> &Options", u"", 1245, true},
        {u"chkvCard", u"&vCard", u"", 900, true},
        {u"chkShowPreview", u"&do not show Preview", u"", 2400, true},
        {u"lblTemplates", u"Te&mplate", u"", 780, false},
        {u"cboTemplates", u"", u"", 2100, false},
        {u"cboListTemplates", u"", u"", 2100, false},
        {u"lblSignatures", u"Si&gnature", u"", 840, false},
        {u"cboSignatures", u"", u"", 2100, false},
        {u"cboPrevSigs", u"", u"", 2100, false},
        {u"lblAttachments", u"Attachments", u"", 1080, false},
        {u"txtAttachments", u"", u"", 2400, false},
    };
    show([&](Form& form, FormUser) {
        for (const auto& [name, caption, tool_tip, width, visible] : expected) {
            const Control& control = form[name];
            EXPECT_EQ(control.caption, caption);
            EXPECT_EQ(control.tool_tip, tool_tip);
            EXPECT_EQ(control.place.width, width) << to_utf8(name);
            EXPECT_EQ(control.visible, visible) << to_utf8(name);
        }
        EXPECT_EQ(form.properties.caption, u"Ornavel Preview");
        EXPECT_EQ(form.properties.place, (Bounds{2595, 990, 10170, 6000}));
    });
}

TEST_F(PreviewWindow, EachColourHasItsNameAndItsCode) {
    const std::vector<std::pair<Text, Text>> expected = {
        {u"None", u"#FFFFFF"},  {u"Ivory", u"#FFFFF0"},    {u"Linen", u"#FAF0E6"},
        {u"Sand", u"#F5F0E1"},  {u"Wheat", u"#F5E9D0"},    {u"Peach", u"#FBE9DD"},
        {u"Rose", u"#F8E6E8"},  {u"Lavender", u"#ECE9F5"}, {u"Ice blue", u"#E8F1F8"},
        {u"Sky", u"#DCE9F5"},   {u"Mint", u"#E6F4EC"},     {u"Pale green", u"#EAF5E1"},
        {u"Sage", u"#E4EBDD"},  {u"Stone", u"#E6E4DF"},    {u"Light grey", u"#F5F5F5"},
        {u"Silver", u"#EEEEEE"}};
    show([&](Form& form, FormUser) {
        const auto& names = form[u"cboBGColourName"].items;
        const auto& codes = form[u"cboBGColourCode"].items;
        ASSERT_EQ(names.size(), expected.size());
        ASSERT_EQ(codes.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(std::pair(names[i], codes[i]), expected[i]) << to_utf8(names[i]);
    });
}

TEST_F(PreviewWindow, TheColoursBeginWithNoneWhichIsWhite) {
    show([&](Form& form, FormUser user) {
        EXPECT_EQ(form[u"cboBGColourName"].items.front(), u"None");
        EXPECT_EQ(form[u"cboBGColourName"].items.size(), form[u"cboBGColourCode"].items.size());
        EXPECT_EQ(form[u"cboBGColourName"].text, u"None");
        EXPECT_EQ(stored(admin::SigBGColor), std::nullopt);
        user.select(u"cboBGColourName", 2);
        EXPECT_EQ(stored(admin::SigBGColor), form[u"cboBGColourCode"].items[2]);
        user.select(u"cboBGColourName", 0);
        EXPECT_EQ(stored(admin::SigBGColor), u"#FFFFFF");
    });
    EXPECT_EQ(composed, 3);
    EXPECT_TRUE(answers.selected);
}

TEST_F(PreviewWindow, WithoutBoilerplatesTheirListIsHiddenAndEmpty) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    store.save(u"Admin Settings", u"Show Boilerplates", u"true");
    files.contents = {{u"C:\\t\\note.txt", ""}};
    show([](Form& form, FormUser) {
        EXPECT_FALSE(form[u"cboBplates"].visible);
        EXPECT_TRUE(form[u"cboBplates"].items.empty());
    });
}

TEST_F(PreviewWindow, AChosenBoilerplateIsInEveryRenderingUntilItIsTakenBack) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    files.contents = {{u"C:\\t\\Note.TXT", ""}, {u"C:\\t\\a.htm", ""}, {u"C:\\t\\b.txt", ""}};
    const auto page = [&] { return files.contents[u"C:\\scratch\\page.html"]; };
    show([&](Form& form, FormUser user) {
        EXPECT_EQ(form[u"cboBplates"].items, (std::vector<Text>{u"b.txt", u"Note.TXT"}));
        user.select(u"cboBplates", 1);
        EXPECT_EQ(page(), "Note.TXTwith ");
        user.click(u"cmdNext");
        EXPECT_EQ(page(), "Note.TXTwith a.htm");
        user.set_text(u"cboBplates", u"No");
        EXPECT_EQ(page(), "Note.TXTwith a.htm");
        user.set_text(u"cboBplates", u"");
        EXPECT_EQ(page(), "with a.htm");
        user.select(u"cboBplates", 0);
        user.click(u"command1");
    });
    EXPECT_EQ(answers.boilerplate, u"b.txt");
}

TEST_F(PreviewWindow, OneThatIsClosedAnswersNoBoilerplate) {
    store.save(u"Admin Settings", u"HTM Files Path", u"C:\\t");
    files.contents = {{u"C:\\t\\b.txt", ""}};
    show([](Form&, FormUser user) { user.select(u"cboBplates", 0); });
    EXPECT_EQ(answers.boilerplate, u"");
}

TEST_F(PreviewWindow, AProfileIsCopiedOverTheUsersFieldsAndEmptiesThoseThatItLacks) {
    store.save(u"Admin Settings", u"Multiple Signatures", u"True");
    store.save(u"User Settings", u"SignatureList", u"Main signature;Sales");
    store.save(u"Admin Settings", u"Current Signature", u"0");
    store.save(u"Admin Settings", u"SigCell", u"old");
    store.save(u"Admin Settings", u"SigBranch", u"kept");
    store.save(u"Sales", u"SigFullname", u"Jo of Sales");
    store.save(u"Sales", u"SigOrganizationNameFR", u"Ventes");
    show([&](Form& form, FormUser user) {
        EXPECT_EQ(form[u"cboSig"].text, u"Main signature");
        user.select(u"cboSig", 1);
    });
    EXPECT_EQ(stored(admin::SigFullname), u"Jo of Sales");
    EXPECT_EQ(stored(admin::SigOrganizationNameFR), u"Ventes");
    EXPECT_EQ(stored(admin::SigCell), u"");
    EXPECT_EQ(stored(admin::SigBranch), u"kept");
    EXPECT_EQ(stored(admin::CurrentSignature), u"1");
    EXPECT_EQ(composed, 2);
}

TEST_F(PreviewWindow, WithoutProfilesTheirListIsHidden) {
    show([](Form& form, FormUser) { EXPECT_FALSE(form[u"cboSig"].visible); });
}

TEST_F(PreviewWindow, SendToManyHandsThePageOnAndCloses) {
    store.save(u"Admin Settings", u"ShowSendToMany", u"True");
    host_item->values[u"Subject"] = Text(u"Offer");
    show([](Form& form, FormUser user) {
        user.click(u"cmdSendToMany");
        EXPECT_FALSE(form.is_loaded());
    });
    EXPECT_EQ(stored(admin::SendToManySubject), u"Offer");
    EXPECT_EQ(launcher.programs, (std::vector<Text>{u"C:\\app\\MassMailer.exe"}));
    EXPECT_TRUE(answers.sent_to_many);
    EXPECT_FALSE(answers.send);
}

TEST_F(PreviewWindow, ASendToManyThatFailsIsLoggedAndTheWindowCloses) {
    store.save(u"Admin Settings", u"ShowSendToMany", u"True");
    launcher.fails = true;
    show([](Form& form, FormUser user) {
        user.click(u"cmdSendToMany");
        EXPECT_FALSE(form.is_loaded());
    });
    EXPECT_FALSE(answers.sent_to_many);
    ASSERT_EQ(errors.entries.size(), 1u);
}

TEST_F(PreviewWindow, LookingAtHelpLeavesTheSavedPlace) {
    store.save(u"Admin Settings", u"Help", u"C:\\help\\index.htm");
    store.save(u"User Settings", u"BrowserLeft", u"450");
    int forms = 0;
    show([&](Form& form, FormUser user) {
        if (++forms == 1) {
            user.click(u"cmdHelp");
            EXPECT_EQ(stored(user::BrowserLeft), u"450");
            return;
        }
        EXPECT_EQ(form.properties.caption, u"Ornavel Help");
        EXPECT_EQ(form[u"brwWebBrowser"].page, u"C:\\help\\index.htm");
        EXPECT_TRUE(form[u"brwWebBrowser"].follows_links);
        for (const Control& control : form.controls())
            EXPECT_EQ(control.visible, control.name == u"cmdClose" || control.name == u"brwWebBrowser");
        user.move(30, 30);
        user.click(u"cmdClose");
        EXPECT_EQ(stored(user::BrowserLeft), u"30");
    });
    EXPECT_EQ(forms, 2);
}

} // namespace
} // namespace ornavel::forms
