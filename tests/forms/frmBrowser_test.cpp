#include "forms/frmBrowser.h"

#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_windows.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

using namespace settings;

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
        EXPECT_EQ(form[u"brwWebBrowser"].place.width, 0);
        EXPECT_EQ(form[u"brwWebBrowser"].place.height, 0);
    });
}

TEST_F(PreviewWindow, ItsPlaceIsKeptAsTwips) {
    show([](Form&, FormUser user) { user.move(300, 450); });
    EXPECT_EQ(read(store, user::BrowserLeft), u"300");
    EXPECT_EQ(read(store, user::BrowserTop), u"450");
    EXPECT_EQ(read(store, user::BrowserWidth), u"10170");
    EXPECT_EQ(read(store, user::BrowserHeight), u"6000");
}

} // namespace
} // namespace ornavel::forms
