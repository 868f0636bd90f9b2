#include "programs/site_assistant/frmSiteAssistant.h"
#include "settings/modes.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"
#include "tests/programs/identity.h"
#include "tests/programs/program_stage.h"

#include <gtest/gtest.h>

namespace ornavel::programs {
namespace {

using namespace settings;
using forms::Control;
using forms::Form;
using forms::FormUser;
using forms::UnusableStep;

/// Somebody who has set up everything, in front of the wizard.
struct SiteAssistant : testing::Test {
    ProgramStage stage;
    std::optional<frmSiteAssistant> wizard;

    SiteAssistant() {
        stage.files.folders = {u"C:\\stationery", u"C:\\signatures", u"C:\\scratch"};
        stage.files.contents = {{u"C:\\stationery\\letter.htm", "<b>[#Input your message here#]</b>"},
                                {u"C:\\stationery\\card.htm", "<i>[#Input your message here#]</i>"},
                                {u"C:\\stationery\\old_merge.htm", "x"},
                                {u"C:\\signatures\\partner.htm", "[#SigFullname#]"}};
        save_identity(stage.store);
        stage.set(admin::HTMFilesPath, u"C:\\stationery");
        stage.set(admin::SignaturesPath, u"C:\\signatures");
        stage.set(user::Template, u"letter.htm");
        stage.set(user::Signature, u"none");
    }

    Form& open() {
        wizard.emplace(stage.platform);
        wizard->form().load();
        return wizard->form();
    }
    Form& form() { return wizard->form(); }
    FormUser user() { return FormUser(form()); }
    void click(TextView control) { user().click(control); }
    void type(TextView control, TextView text) { user().set_text(control, text); }
    void go_to(TextView page) {
        while (!form()[page].visible) {
            const Text before = shown();
            click(u"cmdNext");
            ASSERT_NE(shown(), before) << "the page can't be left";
        }
    }
    void finish() {
        go_to(u"fraReady");
        click(u"cmdFinish");
    }

    /// The frame that is visible.
    Text shown() {
        Text frames;
        for (const Control& control : form().controls())
            if (control.kind == forms::ControlKind::frame && control.visible) frames += control.name;
        return frames;
    }
    Text problem() { return form()[u"lblProblem"].caption; }
    const std::vector<Text>& lines() { return form()[u"lstChanges"].items; }
    Text preview() {
        const auto page = stage.files.contents.find(u"C:\\scratch\\OrnavelSetupPreview.html");
        return page == stage.files.contents.end() ? Text() : decode(page->second, windows_1252());
    }
};

TEST_F(SiteAssistant, LooksAsDrawn) {
    open();
    click(u"chkFrench");
    for (const TextView page : {u"fraYou", u"fraFrench", u"fraLetterhead", u"fraSending", u"fraReady"}) {
        go_to(page);
        expect_drawn(form(), "setup " + to_utf8(page));
    }
}

struct Page {
    TextView frame, first;
    std::size_t access_keys;
};

TEST_F(SiteAssistant, EachPageIsReachedByKeysOfItsOwnAndNothingOverlaps) {
    open();
    click(u"chkFrench");
    constexpr Page pages[] = {{u"fraYou", u"txtSigFullname", 15},
                              {u"fraFrench", u"txtSigFullnameFR", 10},
                              {u"fraLetterhead", u"cboTemplates", 8},
                              {u"fraSending", u"cboMode", 10},
                              {u"fraReady", u"cmdFinish", 3}};
    for (const Page& page : pages) {
        go_to(page.frame);
        expect_apart(form());
        EXPECT_EQ(unique_access_keys(form()).size(), page.access_keys) << to_utf8(page.frame);
        EXPECT_EQ(form().next_focus, page.first);
    }
}

TEST_F(SiteAssistant, ShowsOnePageAtATime) {
    open();
    EXPECT_EQ(shown(), u"fraYou");
    EXPECT_FALSE(form()[u"cmdBack"].enabled);
    EXPECT_FALSE(form()[u"cmdFinish"].visible);
    EXPECT_THROW(click(u"chkSendQuote"), UnusableStep);
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
    EXPECT_THROW(type(u"txtSigFax", u"1"), UnusableStep);
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraSending");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraReady");
    EXPECT_FALSE(form()[u"cmdNext"].visible);
    EXPECT_TRUE(form()[u"cmdFinish"].visible);
    click(u"cmdBack");
    EXPECT_EQ(shown(), u"fraSending");
}

TEST_F(SiteAssistant, ShowsThePageForFrenchTextsOnlyWhereTheyAreWanted) {
    open();
    EXPECT_FALSE(form()[u"chkFrench"].ticked);
    click(u"chkFrench");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraFrench");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
    click(u"cmdBack");
    EXPECT_EQ(shown(), u"fraFrench");
    click(u"cmdBack");
    click(u"chkFrench");
    click(u"cmdNext");
    click(u"cmdBack");
    EXPECT_EQ(shown(), u"fraYou");
}

TEST_F(SiteAssistant, StartsWithTheFrenchTextsWantedWhereOneIsFilled) {
    stage.set(admin::SigAddress4FR, u"Suisse");
    open();
    EXPECT_TRUE(form()[u"chkFrench"].ticked);
}

TEST_F(SiteAssistant, FrenchTextsThatAreNoLongerWantedAreNotWritten) {
    open();
    click(u"chkFrench");
    click(u"cmdNext");
    type(u"txtSigPositionFR", u"Directrice");
    click(u"cmdBack");
    click(u"chkFrench");
    finish();
    EXPECT_EQ(stage.stored(admin::SigPositionFR), std::nullopt);
}

TEST_F(SiteAssistant, ShowsTheSettingsAsTheyAre) {
    stage.set(admin::AutoPreview, on);
    stage.set(user::ReplyAsIs, u"1");
    stage.set(user::SendQuote, u"true");
    stage.set(user::SettingButtonBar, modes::off);
    open();
    EXPECT_EQ(form()[u"txtSigFullname"].text, u"Jo Sender");
    EXPECT_EQ(form()[u"txtTemplatesFolder"].text, u"C:\\stationery");
    EXPECT_EQ(form()[u"cboTemplates"].text, u"letter.htm");
    EXPECT_EQ(form()[u"cboMode"].text, u"Off");
    EXPECT_TRUE(form()[u"chkAutoPreview"].ticked);
    EXPECT_TRUE(form()[u"chkReplyAsIs"].ticked);
    EXPECT_FALSE(form()[u"chkSendQuote"].ticked);
}

struct NewUser : SiteAssistant {
    NewUser() {
        stage.store.stored = {};
        stage.machine.owner = u"Ann Lee";
        stage.machine.organization = u"Lee Ltd";
    }
};

TEST_F(NewUser, BeginsWithWhatWindowsKnows) {
    open();
    EXPECT_EQ(form()[u"txtSigFullname"].text, u"Ann Lee");
    EXPECT_EQ(form()[u"txtSigOrganizationName"].text, u"Lee Ltd");
    EXPECT_EQ(form()[u"txtTemplatesFolder"].text, u"C:\\temp");
    EXPECT_EQ(form()[u"cboMode"].text, u"Dress automatically");
}

TEST_F(NewUser, IsNotGivenWhatWindowsKnowsOnceSomethingIsTold) {
    stage.set(admin::SigFax, u"12");
    open();
    EXPECT_EQ(form()[u"txtSigFullname"].text, u"");
}

TEST_F(NewUser, IsDressedFromTheFirstMessageOnUnlessTheyChooseOtherwise) {
    stage.set(admin::SigEmail, u"ann@example.com");
    stage.set(admin::SigWebsite, u"www.example.com");
    open();
    click(u"cmdNext");
    type(u"txtTemplatesFolder", u"C:\\stationery");
    type(u"txtSignaturesFolder", u"C:\\signatures");
    user().select(u"cboTemplates", 0);
    user().select(u"cboSignatures", 1);
    go_to(u"fraReady");
    EXPECT_EQ(lines(),
              (std::vector<Text>{u"HTM Files Path: C:\\temp → C:\\stationery",
                                 u"Signatures Path: C:\\temp → C:\\signatures",
                                 u"Template: (empty) → card.htm", u"Signature: (empty) → partner.htm",
                                 u"SettingButtonBar: (empty) → auto", u"StartupSetupWiz: True → False"}));
    click(u"cmdFinish");
    EXPECT_EQ(stage.stored(user::SettingButtonBar), modes::automatic);
}

TEST_F(NewUser, WhoChangedNothingCancelsWithoutAQuestion) {
    open();
    click(u"cmdCancel");
    EXPECT_FALSE(form().is_loaded());
    EXPECT_TRUE(stage.windows.boxes.empty());
    EXPECT_TRUE(stage.store.stored.sections().empty());
}

TEST_F(SiteAssistant, WritesExactlyWhatChanged) {
    stage.set(admin::StartupSetupWiz, off);
    stage.set(admin::SigCell, u" 079 ");
    open();
    type(u"txtSigFullname", u"  Jo B. Sender ");
    type(u"txtSigFax", u"12");
    type(u"txtSigFax", u"");
    MemoryStore before = stage.store.stored;
    finish();
    EXPECT_FALSE(form().is_loaded());
    EXPECT_EQ(stage.stored(admin::SigFullname), u"Jo B. Sender");
    save(before, admin::SigFullname, u"Jo B. Sender");
    EXPECT_EQ(stage.store.stored.sections(), before.sections());
}

TEST_F(SiteAssistant, WhatAnotherProgramWroteMeanwhileStaysUnlessItsUserChangedItHere) {
    stage.store.remove(user::SettingButtonBar.section, user::SettingButtonBar.name);
    open();
    type(u"txtSigFax", u"12");
    stage.set(user::Template, u"card.htm");
    stage.set(user::SettingButtonBar, modes::signature);
    stage.set(admin::SigCell, u"079");
    stage.set(admin::SigFax, u"13");
    finish();
    EXPECT_EQ(stage.stored(user::Template), u"card.htm");
    EXPECT_EQ(stage.stored(user::SettingButtonBar), modes::signature);
    EXPECT_EQ(stage.stored(admin::SigCell), u"079");
    EXPECT_EQ(stage.stored(admin::SigFax), u"12");
}

TEST_F(SiteAssistant, AVCardThatMovedKeepsItsName) {
    stage.set(user::vCardPath, u"C:\\a\\jo.vcf");
    stage.set(user::vCard, u"jo");
    stage.set(admin::StartupSetupWiz, off);
    open();
    go_to(u"fraSending");
    type(u"txtvCard", u"C:\\b\\jo.vcf");
    go_to(u"fraReady");
    EXPECT_EQ(lines(), std::vector<Text>{u"vCardPath: C:\\a\\jo.vcf → C:\\b\\jo.vcf"});
}

TEST_F(SiteAssistant, OnceFinishedIsNotOpenedAtTheNextStart) {
    open();
    finish();
    EXPECT_EQ(stage.stored(admin::StartupSetupWiz), off);
}

TEST_F(SiteAssistant, EveryControlOfThePageAboutSendingWritesItsSetting) {
    stage.files.contents[u"C:\\cards\\jo.at.home.vcf"] = "x";
    open();
    go_to(u"fraSending");
    user().select(u"cboMode", 1);
    for (const TextView box :
         {u"chkAutoPreview", u"chkReplyAsIs", u"chkSendvCard", u"chkInsertDate", u"chkSendQuote"})
        click(box);
    stage.windows.path = u"C:\\cards\\jo.at.home.vcf";
    click(u"cmdBrowsevCard");
    EXPECT_EQ(stage.windows.last_question.kind, forms::PathQuestion::Kind::existing_file);
    EXPECT_EQ(stage.windows.last_question.files, u"vCards");
    EXPECT_EQ(stage.windows.last_question.pattern, u"*.vcf");
    finish();
    EXPECT_EQ(stage.stored(user::SettingButtonBar), modes::on);
    EXPECT_EQ(stage.stored(admin::AutoPreview), on);
    EXPECT_EQ(stage.stored(user::ReplyAsIs), u"1");
    EXPECT_EQ(stage.stored(user::SendvCard), on);
    EXPECT_EQ(stage.stored(user::InsertDate), on);
    EXPECT_EQ(stage.stored(user::SendQuote), on);
    EXPECT_EQ(stage.stored(user::vCardPath), u"C:\\cards\\jo.at.home.vcf");
    EXPECT_EQ(stage.stored(user::vCard), u"jo.at.home");
    EXPECT_EQ(stage.windows.questions, std::vector<Text>{u"vCard File"});
}

TEST_F(SiteAssistant, OffersTheMailClientsSignaturesOnlyWhereTheyAreUsedAndLeadsNobodyOut) {
    EXPECT_EQ(open()[u"cboMode"].items.size(), 3u);
    stage.set(user::SettingButtonBar, modes::signature);
    open();
    EXPECT_EQ(form()[u"cboMode"].items.size(), 4u);
    EXPECT_EQ(form()[u"cboMode"].text, u"The mail client's own signature");
    EXPECT_FALSE(form()[u"cboMode"].enabled);
    finish();
    EXPECT_EQ(stage.stored(user::SettingButtonBar), modes::signature);
}

TEST_F(SiteAssistant, AModeThatNobodyKnowsStaysUntilAnotherIsChosen) {
    stage.set(user::SettingButtonBar, u"Auto");
    open();
    EXPECT_EQ(form()[u"cboMode"].index, -1);
    finish();
    EXPECT_EQ(stage.stored(user::SettingButtonBar), u"Auto");
}

struct Refusal {
    TextView control, typed, part_of_sentence;
};

TEST_F(SiteAssistant, RefusesWhatCantBeRight) {
    constexpr Refusal refusals[] = {{u"txtSigEmail", u"jo.example.com", u"e-mail"},
                                    {u"txtSigEmail", u"jo @example.com", u"e-mail"},
                                    {u"txtSigWebsite", u"www. example.com", u"website"}};
    for (const Refusal& refusal : refusals) {
        open();
        type(refusal.control, refusal.typed);
        for (int click_ = 0; click_ < 3; ++click_) click(u"cmdNext");
        EXPECT_EQ(shown(), u"fraYou");
        EXPECT_TRUE(contains(problem(), refusal.part_of_sentence));
        EXPECT_EQ(form().next_focus, refusal.control);
        EXPECT_EQ(form()[refusal.control].text, refusal.typed);
    }
}

TEST_F(SiteAssistant, BlanksAroundAnAddressAreNoneInIt) {
    open();
    type(u"txtSigEmail", u" jo@example.org ");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
}

TEST_F(SiteAssistant, RefusesFoldersThatAreNotThere) {
    for (const TextView folder : {u"txtTemplatesFolder", u"txtSignaturesFolder"}) {
        open();
        go_to(u"fraLetterhead");
        type(folder, u"\\\\gone\\share");
        click(u"cmdNext");
        EXPECT_EQ(shown(), u"fraLetterhead");
        EXPECT_TRUE(contains(problem(), u"is not there"));
        EXPECT_EQ(form().next_focus, folder);
        type(folder, u"C:\\stationery\\");
        click(u"cmdNext");
        EXPECT_EQ(shown(), u"fraSending");
    }
}

TEST_F(SiteAssistant, FoldersAreAskedOnlyWhileTheUserSeesThatSomethingIsDone) {
    open();
    int looks = 0;
    stage.files.at_look = [&](TextView path) {
        if (path.starts_with(u"C:\\scratch")) return;
        ++looks;
        EXPECT_TRUE(stage.windows.user_waits) << to_utf8(path);
    };
    go_to(u"fraLetterhead");
    user().select(u"cboTemplates", 0);
    click(u"cmdBrowseTemplates");
    type(u"txtSignaturesFolder", u"\\\\gone\\share");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
    type(u"txtSignaturesFolder", u"C:\\signatures");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraSending");
    EXPECT_GT(looks, 6);
    EXPECT_FALSE(stage.windows.user_waits);
}

TEST_F(SiteAssistant, AMissingAddressIsPassedByASecondNext) {
    open();
    type(u"txtSigEmail", u"");
    type(u"txtSigWebsite", u" ");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraYou");
    EXPECT_TRUE(problem().starts_with(u"Without an e-mail address and a website, "));
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
    EXPECT_EQ(problem(), u"");
}

TEST_F(SiteAssistant, AnotherWarningThanTheOneThatWasReadIsToldToo) {
    open();
    type(u"txtSigEmail", u"");
    click(u"cmdNext");
    type(u"txtSigWebsite", u"");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraYou");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraLetterhead");
}

TEST_F(SiteAssistant, ATemplateThatWouldLoseTheTextIsPassedByASecondNext) {
    stage.files.contents[u"C:\\stationery\\R & D.htm"] = "<p>no place</p>";
    open();
    go_to(u"fraLetterhead");
    type(u"cboTemplates", u"R & D.htm");
    click(u"cmdNext");
    EXPECT_EQ(problem(),
              u"The template R && D.htm has no place for the message ([#Input your message here#]): the "
              u"text of every message would be lost. Next goes on all the same.");
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraSending");
}

struct Choice {
    TextView templates, signature, sentence;
};

TEST_F(SiteAssistant, AMissingChoiceIsPassedByASecondNext) {
    constexpr Choice choices[] = {
        {u"", u"",
         u"Until a template and a signature are chosen, messages are held back. Next goes on all the same."},
        {u"letter", u"none",
         u"Until a template is chosen, messages are held back. Next goes on all the same."},
        {u"letter.htm", u"jo",
         u"Until a signature is chosen, messages are held back. Next goes on all the same."}};
    for (const Choice& choice : choices) {
        open();
        go_to(u"fraLetterhead");
        type(u"cboTemplates", choice.templates);
        type(u"cboSignatures", choice.signature);
        click(u"cmdNext");
        EXPECT_EQ(problem(), choice.sentence);
        click(u"cmdNext");
        EXPECT_EQ(shown(), u"fraSending");
    }
}

TEST_F(SiteAssistant, AWarningThatIsLongerThanItsRoomIsReadInItsToolTip) {
    const Text template_name(100, u't'), picture_name(100, u'p'), other_name(100, u'o');
    stage.files.contents[u"C:\\stationery\\" + template_name + u".htm"] =
        "<img src='C:\\" + std::string(100, 'p') + ".gif'>[#Input your message here#]";
    stage.files.contents[u"C:\\signatures\\partner.htm"] =
        "<img src='C:\\" + std::string(100, 'o') + ".gif'>";
    open();
    go_to(u"fraLetterhead");
    type(u"cboTemplates", template_name + u".htm");
    type(u"cboSignatures", u"partner.htm");
    click(u"cmdNext");
    EXPECT_TRUE(contains(problem(), u"The picture " + picture_name.substr(0, 30) + u"… is not there. "));
    EXPECT_EQ(form()[u"lblProblem"].tool_tip, u"The picture " + picture_name +
                                                  u".gif is not there. The picture " + other_name +
                                                  u".gif is not there. Next goes on all the same.");
}

TEST_F(SiteAssistant, APictureThatIsNotThereIsPassedByASecondNext) {
    stage.files.contents[u"C:\\signatures\\partner.htm"] = "<img src=\"file:///C:/signatures/jo.gif\">";
    open();
    go_to(u"fraLetterhead");
    type(u"cboSignatures", u"partner.htm");
    click(u"cmdNext");
    EXPECT_TRUE(problem().starts_with(u"The picture jo.gif is not there."));
    stage.files.contents[u"C:\\signatures\\jo.gif"] = "GIF";
    click(u"cmdNext");
    EXPECT_EQ(shown(), u"fraSending");
}

TEST_F(SiteAssistant, AsksOnceForEachPageWhetherMarkupShallShow) {
    stage.windows.yes = [](TextView) { return true; };
    open();
    type(u"txtSigOrganizationName", u"Marlow & Hale");
    type(u"txtSigPosition", u"<partner>");
    click(u"cmdNext");
    EXPECT_EQ(stage.windows.boxes.size(), 1u);
    EXPECT_EQ(form()[u"txtSigOrganizationName"].text, u"Marlow &amp; Hale");
    EXPECT_EQ(form()[u"txtSigPosition"].text, u"&lt;partner&gt;");
    click(u"cmdBack");
    click(u"cmdNext");
    EXPECT_EQ(stage.windows.boxes.size(), 1u);
}

TEST_F(SiteAssistant, WhatShallStayMarkupIsNotAskedAboutAgain) {
    open();
    type(u"txtSigPosition", u"<b>Partner</b>");
    click(u"cmdNext");
    click(u"cmdBack");
    click(u"cmdNext");
    EXPECT_EQ(stage.windows.boxes.size(), 1u);
    finish();
    EXPECT_EQ(stage.stored(admin::SigPosition), u"<b>Partner</b>");
}

TEST_F(SiteAssistant, AsksAboutMarkupInEachTextThatIsPouredIntoMessages) {
    stage.windows.yes = [](TextView) { return true; };
    for (const Field& field : setup_fields()) {
        open();
        click(u"chkFrench");
        const Text page = form()[field.control].frame;
        if (page != u"fraYou" && page != u"fraFrench") continue;
        go_to(page);
        type(field.control, u"a&b@c");
        click(u"cmdNext");
        EXPECT_EQ(form()[field.control].text, u"a&amp;b@c") << to_utf8(field.control);
        stage.windows.boxes.clear();
    }
}

TEST_F(SiteAssistant, MarkupThatIsWantedInOneFieldIsAskedAboutInAnother) {
    open();
    type(u"txtSigPosition", u"<b>Jo</b>");
    click(u"cmdNext");
    click(u"cmdBack");
    type(u"txtSigOrganizationName", u"<b>Jo</b>");
    click(u"cmdNext");
    EXPECT_EQ(stage.windows.boxes.size(), 2u);
}

TEST_F(SiteAssistant, AsksAboutMarkupOnTheWayBackAndInFrenchToo) {
    stage.windows.yes = [](TextView) { return true; };
    open();
    click(u"chkFrench");
    click(u"cmdNext");
    type(u"txtSigPositionFR", u"A & B");
    click(u"cmdBack");
    EXPECT_EQ(form()[u"txtSigPositionFR"].text, u"A &amp; B");
}

TEST_F(SiteAssistant, ListsTemplatesAndSignaturesAsThePreviewDoes) {
    open();
    go_to(u"fraLetterhead");
    EXPECT_EQ(form()[u"cboTemplates"].items, (std::vector<Text>{u"card.htm", u"letter.htm"}));
    EXPECT_EQ(form()[u"cboTemplates"].index, 1);
    EXPECT_EQ(form()[u"cboSignatures"].items, (std::vector<Text>{u"none", u"partner.htm"}));
}

TEST_F(SiteAssistant, ShowsASampleAsItWillLookWithWhatTheWizardHoldsNow) {
    open();
    type(u"txtSigFullname", u"Jo B. Sender");
    go_to(u"fraLetterhead");
    EXPECT_TRUE(contains(preview(), u"<b>"));
    user().select(u"cboTemplates", 0);
    EXPECT_TRUE(contains(preview(), u"<i>"));
    user().select(u"cboSignatures", 1);
    EXPECT_TRUE(contains(preview(), u"Jo B. Sender"));
    EXPECT_EQ(form()[u"brwPreview"].page, u"C:\\scratch\\OrnavelSetupPreview.html");
    EXPECT_EQ(stage.stored(admin::SigFullname), u"Jo Sender");
    click(u"cmdCancel");
    form().unload();
    EXPECT_FALSE(stage.files.file_exists(u"C:\\scratch\\OrnavelSetupPreview.html"));
}

TEST_F(SiteAssistant, TheSampleWritesNeitherSettingsNorFilesOfTheAddIn) {
    stage.set(user::SendQuote, on);
    stage.set(admin::TipsFileLocation, u"C:\\tips.txt");
    stage.set(admin::WipeOutFileCompare, on);
    stage.files.contents[u"C:\\tips.txt"] = std::string(20, '\n') + "1 one\r\n2 two\r\n";
    const auto settings_before = stage.store.stored.sections();
    const auto files_before = stage.files.contents.size();
    open();
    go_to(u"fraLetterhead");
    EXPECT_EQ(stage.store.stored.sections(), settings_before);
    EXPECT_EQ(stage.files.contents.size(), files_before + 1);
}

TEST_F(SiteAssistant, AFileOfFiftyMegabytesIsNotPouredIntoTheSample) {
    const std::string huge(50'000'000, 'x');
    stage.files.contents[u"C:\\stationery\\huge.htm"] = stage.files.contents[u"C:\\signatures\\huge.htm"] =
        huge;
    for (const auto& [list, what] :
         {std::pair{u"cboTemplates", u"This template"}, {u"cboSignatures", u"This signature"}}) {
        open();
        go_to(u"fraLetterhead");
        type(list, u"huge.htm");
        EXPECT_TRUE(contains(preview(), Text(what) + u" is too large to be shown here. "));
    }
}

TEST_F(SiteAssistant, AShareIsShownOnceItsListIsOpenedAndNotAtEveryLetter) {
    stage.files.folders.insert(u"\\\\server\\t");
    stage.files.contents[u"\\\\server\\t\\letter.htm"] = "<u>[#Input your message here#]</u>";
    open();
    go_to(u"fraLetterhead");
    int looks = 0;
    stage.files.at_look = [&](TextView path) { looks += contains(path, u"server"); };
    for (const TextView folder : {u" \\\\server\\t", u"//server/t", u"\\\\server\\t"})
        type(u"txtTemplatesFolder", folder);
    EXPECT_EQ(looks, 0);
    user().drop_down(u"cboTemplates");
    EXPECT_EQ(form()[u"cboTemplates"].items, std::vector<Text>{u"letter.htm"});
    EXPECT_TRUE(contains(preview(), u"<u>"));
    const int visits = form()[u"brwPreview"].visits;
    user().drop_down(u"cboTemplates");
    EXPECT_EQ(form()[u"brwPreview"].visits, visits) << "it is shown already";
}

TEST_F(SiteAssistant, ASampleThatCantBeWrittenKeepsNobodyFromGoingOn) {
    stage.files.refused = {u"C:\\scratch\\OrnavelSetupPreview.html"};
    open();
    finish();
    EXPECT_FALSE(form().is_loaded());
}

TEST_F(SiteAssistant, ABrowsedFolderIsListedAtOnce) {
    stage.files.folders.insert(u"C:\\other");
    stage.files.contents[u"C:\\other\\fair.htm"] = "<u>[#Input your message here#]</u>";
    open();
    go_to(u"fraLetterhead");
    click(u"cmdBrowseTemplates");
    EXPECT_EQ(form()[u"txtTemplatesFolder"].text, u"C:\\stationery");
    stage.windows.path = u"C:\\other";
    click(u"cmdBrowseTemplates");
    EXPECT_EQ(form()[u"txtTemplatesFolder"].text, u"C:\\other");
    EXPECT_EQ(form()[u"cboTemplates"].items, std::vector<Text>{u"fair.htm"});
    EXPECT_TRUE(contains(preview(), u"<u>"));
    stage.windows.path = u"C:\\signatures";
    click(u"cmdBrowseSignatures");
    EXPECT_EQ(stage.windows.last_question.kind, forms::PathQuestion::Kind::folder);
    EXPECT_EQ(stage.windows.last_question.proposed, u"C:\\signatures");
    EXPECT_EQ(stage.windows.questions,
              (std::vector<Text>{u"Folder of Templates", u"Folder of Templates", u"Folder of Signatures"}));
}

TEST_F(SiteAssistant, TellsWhatWillChangeBeforeItDoes) {
    open();
    type(u"txtSigFax", u" 12 ");
    go_to(u"fraSending");
    click(u"chkAutoPreview");
    go_to(u"fraReady");
    EXPECT_EQ(lines(), (std::vector<Text>{u"SigFax: (empty) → 12", u"AutoPreview: False → True",
                                          u"StartupSetupWiz: True → False"}));
    EXPECT_EQ(stage.stored(admin::SigFax), std::nullopt);
}

TEST_F(SiteAssistant, AValueOfSeveralLinesStandsInOneLineOfTheChanges) {
    stage.set(admin::SigAddress, u"a\r\nb");
    stage.set(admin::StartupSetupWiz, off);
    open();
    type(u"txtSigAddress", u"c\td");
    go_to(u"fraReady");
    EXPECT_EQ(lines(), std::vector<Text>{u"SigAddress: a b → c d"});
}

TEST_F(SiteAssistant, SaysWhereNothingWillChange) {
    stage.set(admin::StartupSetupWiz, off);
    open();
    go_to(u"fraReady");
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(form()[u"lblChanges"].caption, u"Nothing will change.");
}

TEST_F(SiteAssistant, StaysOpenWhereASettingCantBeWritten) {
    open();
    type(u"txtSigFax", u"12");
    type(u"txtSigCell", u"13");
    stage.store.refused = u"SigCell";
    finish();
    EXPECT_TRUE(form().is_loaded());
    EXPECT_EQ(stage.stored(admin::SigFax), std::nullopt);
    EXPECT_EQ(stage.windows.boxes,
              std::vector<Text>{
                  u"Ornavel Setup: Nothing was changed, because the setting SigCell can't be written."});
}

TEST_F(SiteAssistant, AsksBeforeChangesAreLost) {
    open();
    type(u"txtSigFax", u"12");
    click(u"cmdCancel");
    EXPECT_TRUE(form().is_loaded());
    user().close();
    EXPECT_TRUE(form().is_loaded());
    EXPECT_EQ(stage.windows.boxes,
              (std::vector<Text>(2, u"Ornavel Setup: Leave without saving what you changed?")));
    stage.windows.yes = [](TextView) { return true; };
    user().close();
    EXPECT_FALSE(form().is_loaded());
    EXPECT_EQ(stage.stored(admin::SigFax), std::nullopt);
}

TEST_F(SiteAssistant, ValuesOfEveryKindOfCharacterAreWrittenAsTyped) {
    stage.windows.yes = [](TextView) { return false; };
    const Text value = u"Grüße \\ \"%PATH%\" 日本 \xD83D\xDE00 ' ; [#SigFax#]";
    open();
    type(u"txtSigPosition", value);
    finish();
    EXPECT_EQ(stage.stored(admin::SigPosition), value);
}

} // namespace
} // namespace ornavel::programs
