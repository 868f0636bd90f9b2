#include "forms/frmBrowser.h"

#include "base/encoding.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_windows.h"

#include <gtest/gtest.h>

#include <set>

namespace ornavel::forms {
namespace {

using namespace settings;

bool overlap(const Place& one, const Place& other) {
    const auto apart = [](int begin, int size, int other_begin, int other_size) {
        return begin + size <= other_begin || other_begin + other_size <= begin;
    };
    return !apart(one.left, one.width, other.left, other.width) &&
           !apart(one.top, one.height, other.top, other.height);
}

class PreviewWindow : public ::testing::Test {
protected:
    /// Shows the window to a user who acts on it, as the send pipeline does.
    void show(std::function<void(Form&, FormUser)> script) {
        ScriptedWindows windows(std::move(script));
        frmBrowser preview({store, files, windows, errors}, answers, u"C:\\scratch\\page.html", [this] {
            ++composed;
            if (refuses_to_compose) throw Failure(u"no body");
            return u"with " + read(store, user::Template);
        });
        preview.form().load();
        preview.render();
        windows.show_modal(preview.form());
    }

    std::optional<Text> stored(const Key& key) const { return store.find(key.section, key.name); }

    MemoryStore store;
    MemoryFiles files;
    RecordingReports errors;
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
        for (const TextView hidden : {u"cmdSendPlain", u"cmdNext", u"cmdSignNext", u"chkvCard"})
            form[hidden].visible = false;
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
        for (Control& control : form.controls())
            if (control.name != u"cboListTemplates" && control.name != u"cboPrevSigs") control.visible = true;
        user.resize(0, 0);
        for (const Control& one : form.controls()) {
            EXPECT_LE(one.place.left + one.place.width, form.room().width) << to_utf8(one.name);
            EXPECT_LE(one.place.top + one.place.height, form.room().height) << to_utf8(one.name);
            for (const Control& other : form.controls()) {
                if (&one == &other || !one.visible || !other.visible) continue;
                EXPECT_FALSE(overlap(one.place, other.place)) << to_utf8(one.name + u", " + other.name);
            }
        }
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
        EXPECT_EQ(keys.size(), 10u);
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

TEST_F(PreviewWindow, AMessageThatCantBeComposedIsLoggedAndTheWindowStillAnswers) {
    refuses_to_compose = true;
    show([](Form&, FormUser user) { user.click(u"command1"); });
    EXPECT_TRUE(answers.send);
    ASSERT_EQ(errors.entries.size(), 1u);
}

TEST_F(PreviewWindow, TheBrowserTakesWhatTheWindowLeaves) {
    show([](Form& form, FormUser user) {
        const Place before = form[u"brwWebBrowser"].place;
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
        for (std::size_t i = 0; i < std::size(expected); ++i) {
            const Control& control = form.controls().at(i);
            EXPECT_EQ(control.name, expected[i].name);
            EXPECT_EQ(control.caption, expected[i].caption);
            EXPECT_EQ(control.tool_tip, expected[i].tool_tip);
            EXPECT_EQ(control.place.width, expected[i].width) << to_utf8(control.name);
            EXPECT_EQ(control.visible, expected[i].visible) << to_utf8(control.name);
        }
        EXPECT_EQ(form.properties.caption, u"Ornavel Preview");
        EXPECT_EQ(form.properties.place, (Place{2595, 990, 10170, 6000}));
    });
}

} // namespace
} // namespace ornavel::forms
