#include "forms/frmPropPage.h"

#include "base/encoding.h"
#include "settings/modes.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/fakes/stubborn_store.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;

class OptionsPage : public ::testing::Test {
protected:
    OptionsPage() {
        save(store, admin::HTMFilesPath, u"C:\\t");
        save(store, admin::SignaturesPath, u"C:\\s");
        save(store, user::SettingButtonBar, modes::automatic);
        save(store, user::Template, u"letter.htm");
        save(store, user::Signature, u"none");
        files.contents = {{u"C:\\t\\card.htm", ""}, {u"C:\\t\\letter.htm", ""}, {u"C:\\s\\jo.htm", ""}};
    }
    frmPropPage& page() {
        if (!page_)
            page_ = std::make_unique<frmPropPage>(
                frmPropPage::Needs{store, files, windows, launcher, u"C:\\app",
                                   [this](TextView before, TextView now) {
                                       modes.push_back({Text(before), Text(now)});
                                   },
                                   [this] { ++told; }});
        page_->form().load();
        return *page_;
    }
    FormUser user() { return FormUser(page().form()); }
    std::optional<Text> stored(const Key& key) const { return store.find(key.section, key.name); }

    StubbornStore store;
    MemoryFiles files;
    ScriptedWindows windows;
    RecordingLauncher launcher;
    std::vector<std::pair<Text, Text>> modes;
    int told = 0;

private:
    std::unique_ptr<frmPropPage> page_;
};

TEST_F(OptionsPage, LooksAsDrawn) { expect_drawn(page().form(), "options page"); }

TEST_F(OptionsPage, HasEachLabelInTheLineOfItsList) {
    Form& form = page().form();
    int above = 0;
    for (const auto& [label, list] : {std::pair{u"lblMode", u"cboMode"},
                                      {u"lblTemplates", u"cboTemplates"},
                                      {u"lblSignatures", u"cboSignatures"}}) {
        const Bounds beside = form[label].place, place = form[list].place;
        EXPECT_GE(beside.top, place.top);
        EXPECT_LE(beside.top + beside.height, place.top + place.height);
        EXPECT_LE(beside.left + beside.width, place.left);
        EXPECT_GE(place.top, above);
        above = place.top + place.height;
    }
}

TEST_F(OptionsPage, IsCleanUntilSomethingDiffersAndAgainWhenItNoLongerDoes) {
    EXPECT_FALSE(page().is_dirty());
    user().select(u"cboTemplates", 0);
    EXPECT_TRUE(page().is_dirty());
    user().select(u"cboTemplates", 1);
    EXPECT_FALSE(page().is_dirty());
    user().tick(u"chkReplyAsIs", true);
    EXPECT_TRUE(page().is_dirty());
}

TEST_F(OptionsPage, TellsTheDialogOfEachChange) {
    user().select(u"cboMode", 2);
    user().set_text(u"cboSignatures", u"typed");
    user().tick(u"chkAutoPreview", true);
    user().tick(u"chkReplyAsIs", true);
    user().select(u"cboTemplates", 0);
    EXPECT_EQ(told, 5);
}

TEST_F(OptionsPage, WritesNothingBeforeItIsApplied) {
    user().select(u"cboTemplates", 0);
    EXPECT_EQ(stored(user::Template), u"letter.htm");
    page().apply();
    EXPECT_EQ(stored(user::Template), u"card.htm");
    EXPECT_FALSE(page().is_dirty());
}

TEST_F(OptionsPage, LeavesAbsentWhatTheUserDidNotChange) {
    user().select(u"cboTemplates", 0);
    page().apply();
    EXPECT_EQ(stored(admin::AutoPreview), std::nullopt);
    EXPECT_EQ(stored(user::ReplyAsIs), std::nullopt);
}

TEST_F(OptionsPage, ATickIsWrittenInTheWordsOfItsSetting) {
    user().tick(u"chkAutoPreview", true);
    user().tick(u"chkReplyAsIs", true);
    page().apply();
    EXPECT_EQ(stored(admin::AutoPreview), u"True");
    EXPECT_EQ(stored(user::ReplyAsIs), u"1");
    user().tick(u"chkAutoPreview", false);
    user().tick(u"chkReplyAsIs", false);
    page().apply();
    EXPECT_EQ(stored(admin::AutoPreview), u"False");
    EXPECT_EQ(stored(user::ReplyAsIs), u"0");
}

TEST_F(OptionsPage, WhatIsChosenShowsItsWholeName) {
    user().select(u"cboTemplates", 0);
    EXPECT_EQ(page().form()[u"cboTemplates"].tool_tip, u"card");
}

TEST_F(OptionsPage, NoSignatureIsAChoiceToo) {
    save(store, user::Signature, u"jo.htm");
    user().select(u"cboSignatures", 0);
    page().apply();
    EXPECT_EQ(stored(user::Signature), u"none");
}

TEST_F(OptionsPage, AnEmptiedListChangesNothing) {
    user().set_text(u"cboTemplates", u"");
    page().apply();
    EXPECT_EQ(stored(user::Template), u"letter.htm");
}

TEST_F(OptionsPage, AFileMayBeTypedAsItsEntryReadsOrByItsName) {
    for (const TextView typed : {u"card", u"CARD", u"card.htm", u" Card.HTM "}) {
        user().set_text(u"cboTemplates", typed);
        page().apply();
        EXPECT_EQ(stored(user::Template), u"card.htm") << to_utf8(typed);
        user().select(u"cboTemplates", 1);
        page().apply();
    }
    user().set_text(u"cboTemplates", u"letter.htm");
    EXPECT_FALSE(page().is_dirty());
    user().set_text(u"cboSignatures", u"None");
    EXPECT_FALSE(page().is_dirty());
}

TEST_F(OptionsPage, AFileThatIsNotThereMayBeTypedToo) {
    for (const TextView typed : {u"later", u"later.htm"}) {
        user().set_text(u"cboTemplates", typed);
        page().apply();
        EXPECT_EQ(stored(user::Template), u"later.htm");
    }
    user().set_text(u"cboTemplates", u"later.html");
    page().apply();
    EXPECT_EQ(stored(user::Template), u"later.html");
}

TEST_F(OptionsPage, AFileThatIsNotThereIsKeptUntilAnotherIsChosen) {
    save(store, user::Template, u"gone.htm");
    EXPECT_EQ(page().form()[u"cboTemplates"].text, u"gone");
    EXPECT_FALSE(page().is_dirty());
    user().select(u"cboTemplates", 0);
    user().set_text(u"cboTemplates", u"gone");
    EXPECT_FALSE(page().is_dirty());
}

TEST_F(OptionsPage, AModeThatIsNotSetIsNoneUntilOneIsChosen) {
    store.remove(user::SettingButtonBar.section, user::SettingButtonBar.name);
    EXPECT_EQ(page().form()[u"cboMode"].index, -1);
    EXPECT_FALSE(page().is_dirty());
    user().select(u"cboMode", 0);
    EXPECT_TRUE(page().is_dirty());
    page().apply();
    EXPECT_EQ(stored(user::SettingButtonBar), modes::automatic);
}

TEST_F(OptionsPage, WhatAnotherProgramWritesMeanwhileStaysUnlessItsUserChangedItHere) {
    EXPECT_FALSE(page().is_dirty());
    save(store, user::Template, u"card.htm");
    save(store, user::SettingButtonBar, modes::off);
    save(store, admin::AutoPreview, on);
    EXPECT_FALSE(page().is_dirty());
    user().tick(u"chkReplyAsIs", true);
    page().apply();
    EXPECT_EQ(stored(user::Template), u"card.htm");
    EXPECT_EQ(stored(user::SettingButtonBar), modes::off);
    EXPECT_EQ(stored(admin::AutoPreview), on);
    EXPECT_EQ(stored(user::ReplyAsIs), u"1");
    EXPECT_TRUE(modes.empty());
    EXPECT_FALSE(page().is_dirty());
}

TEST_F(OptionsPage, AskedForItsFilesItShowsThatTheUserWaits) {
    files.at_look = [this](TextView path) { EXPECT_TRUE(windows.user_waits) << to_utf8(path); };
    page();
    EXPECT_FALSE(windows.user_waits);
}

TEST_F(OptionsPage, HandsAChangedModeOverWithTheOneBefore) {
    user().select(u"cboMode", 3);
    page().apply();
    ASSERT_EQ(modes.size(), 1U);
    EXPECT_EQ(modes[0], (std::pair<Text, Text>{u"auto", u"eSignature"}));
    user().select(u"cboTemplates", 0);
    page().apply();
    EXPECT_EQ(modes.size(), 1U);
}

TEST_F(OptionsPage, AModeThatCantBeTakenBackIsHandedOverAllTheSame) {
    user().select(u"cboMode", 2);
    user().select(u"cboTemplates", 0);
    store.writes_left = 1;
    page().apply();
    EXPECT_EQ(stored(user::SettingButtonBar), modes::off);
    EXPECT_EQ(modes, (std::vector<std::pair<Text, Text>>{{u"auto", u"off"}}));
    EXPECT_EQ(windows.boxes,
              std::vector<Text>{u"Ornavel: The setting Template can't be written, and what was written "
                                u"before it can't be taken back: SettingButtonBar."});
}

TEST_F(OptionsPage, KeepsTheSpellingOfANameThatDiffersInCaseOnly) {
    save(store, user::Template, u"LETTER.HTM");
    EXPECT_FALSE(page().is_dirty());
    EXPECT_EQ(page().form()[u"cboTemplates"].index, 1);
}

TEST_F(OptionsPage, ListsGrowWithTheRoomThatTheDialogGives) {
    Form& form = page().form();
    form.take_room({4500, 4000});
    const int narrow = form[u"cboMode"].place.width;
    form.take_room({6000, 4000});
    EXPECT_EQ(form[u"cboMode"].place.width, narrow + 1500);
    for (const Control& control : form.controls())
        EXPECT_LE(control.place.left + control.place.width, 6000 - 165) << to_utf8(control.name);
}

TEST_F(OptionsPage, HasAnAccessKeyOfItsOwnForEverythingThatTheUserReaches) {
    const Form& form = page().form();
    expect_apart(form);
    const auto captions = std::ranges::count_if(
        form.controls(), [](const Control& control) { return has_caption(control.kind); });
    EXPECT_EQ(std::ssize(unique_access_keys(form)), captions);
}

} // namespace
} // namespace ornavel::forms
