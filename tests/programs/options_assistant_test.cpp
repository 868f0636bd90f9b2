#include "programs/options_assistant/options_assistant.h"
#include "programs/options_assistant/values.h"
#include "settings/modes.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"
#include "tests/programs/options_stage.h"

#include <algorithm>
#include <set>

namespace ornavel::programs {
namespace {

using namespace forms;
using namespace settings;

TEST_F(Options, LookAsDrawn) {
    choose(admin::HTMFilesPath.name);
    expect_drawn(form(), "options");
    open_import("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n\"A\"=\"x\"\r\n");
    expect_drawn(form(), "options while an import is looked at");
}

TEST_F(Options, ListEverySettingOfTheCatalogueWithItsValue) {
    EXPECT_EQ(form()[u"lstSettings"].items.size(), descriptions().size());
    EXPECT_EQ(form()[u"lstGroups"].items.size(), 12U);
    EXPECT_EQ(form()[u"lstGroups"].items[0], u"changed");
}

TEST_F(Options, OfAGroupAreThoseOfTheCatalogue) {
    user().set_text(u"lstGroups", u"usage log");
    const auto wanted = std::ranges::count_if(
        descriptions(), [](const Description& each) { return each.group == Group::usage_log; });
    EXPECT_EQ(form()[u"lstSettings"].items.size(), static_cast<std::size_t>(wanted));
}

TEST_F(Options, ThatDifferFromTheirDefaultAreMarkedAndInAGroupOfTheirOwn) {
    stage.set(admin::AutoPreview, on);
    stage.set(user::SettingButtonBar, u"auto"); // its default
    user().select(u"lstGroups", 0);
    EXPECT_EQ(form()[u"lstSettings"].items, std::vector<Text>{u"* AutoPreview = True"});
}

TEST_F(Options, AreFoundByNameAndByWordsOfTheirMeaning) {
    user().set_text(u"txtSearch", u"autoprev");
    EXPECT_EQ(form()[u"lstSettings"].items, std::vector<Text>{u"   AutoPreview = False"});
    user().set_text(u"txtSearch", u"PREVIEW shown leaves");
    EXPECT_EQ(form()[u"lstSettings"].items, std::vector<Text>{u"   AutoPreview = False"});
    user().set_text(u"txtSearch", u"no such word anywhere");
    EXPECT_TRUE(form()[u"lstSettings"].items.empty());
    EXPECT_FALSE(form()[u"cmdReset"].visible);
    user().select(u"lstGroups", 1);
    EXPECT_EQ(form()[u"txtSearch"].text, u"");
}

TEST_F(Options, HaveAnEditorAfterTheirKind) {
    const auto visible = [&] {
        std::set<Text> names;
        for (const TextView name : {u"txtValue", u"chkValue", u"cboValue", u"cmdBrowseValue"})
            if (form()[name].visible) names.insert(Text(name));
        return names;
    };
    choose(admin::AutoPreview.name);
    EXPECT_EQ(visible(), std::set<Text>{u"chkValue"});
    choose(user::SettingButtonBar.name);
    EXPECT_EQ(visible(), std::set<Text>{u"cboValue"});
    EXPECT_EQ(form()[u"cboValue"].items, (std::vector<Text>{u"auto", u"on", u"off", u"eSignature"}));
    choose(admin::HTMFilesPath.name);
    EXPECT_EQ(visible(), (std::set<Text>{u"cmdBrowseValue", u"txtValue"}));
    choose(admin::SigEmail.name);
    EXPECT_EQ(visible(), std::set<Text>{u"txtValue"});
    EXPECT_EQ(form()[u"lblDefault"].caption, u"Default: (empty)   Section: Admin Settings");
}

TEST_F(Options, AreWrittenAtSaveAndNotBefore) {
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
    choose(admin::AutoPreview.name);
    user().tick(u"chkValue", true);
    choose(user::ReplyAsIs.name);
    user().tick(u"chkValue", true);
    choose(admin::SigEmail.name);
    user().set_text(u"txtValue", u"jo@example.com");
    EXPECT_EQ(stored(admin::SigEmail), std::nullopt);
    user().click(u"cmdSave");
    EXPECT_EQ(stored(admin::AutoPreview), u"True");
    EXPECT_EQ(stored(user::ReplyAsIs), u"1");
    EXPECT_EQ(stored(admin::SigEmail), u"jo@example.com");
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, AreAbsentAfterReset) {
    stage.set(user::SettingButtonBar, u"off");
    choose(user::SettingButtonBar.name);
    user().click(u"cmdReset");
    EXPECT_EQ(form()[u"cboValue"].text, u"") << "what is not set dresses nothing";
    EXPECT_FALSE(form()[u"cmdReset"].enabled);
    EXPECT_EQ(stored(user::SettingButtonBar), u"off");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::SettingButtonBar), std::nullopt);
}

TEST_F(Options, OneOfWhichCannotBeWrittenAreAllPutBack) {
    choose(admin::SigEmail.name);
    user().set_text(u"txtValue", u"jo@example.com");
    choose(admin::SigWebsite.name);
    user().set_text(u"txtValue", u"www.example.com");
    stage.store.refused = admin::SigWebsite.name;
    user().click(u"cmdSave");
    EXPECT_EQ(stored(admin::SigEmail), std::nullopt);
    EXPECT_TRUE(contains(last_box(), admin::SigWebsite.name));
    EXPECT_TRUE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, RefuseANumberThatIsNone) {
    type(user::BrowserTop, u"12x");
    choose(admin::SigEmail.name);
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::BrowserTop), std::nullopt);
    EXPECT_EQ(last_box(), u"Ornavel Options: \"12x\" is no value for BrowserTop: it is no number.");
    EXPECT_EQ(form()[u"txtValue"].text, u"12x");
    EXPECT_EQ(form().next_focus, u"txtValue");
}

TEST_F(Options, RefuseAChoiceThatIsNotInTheList) {
    choose(user::SettingButtonBar.name);
    user().set_text(u"cboValue", u"sometimes");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::SettingButtonBar), std::nullopt);
    EXPECT_EQ(last_box(), u"Ornavel Options: \"sometimes\" is no value for SettingButtonBar: it is none of "
                          u"\"auto\", \"on\", \"off\", \"eSignature\".");
    EXPECT_EQ(form().next_focus, u"cboValue");
}

TEST_F(Options, RefusedForALongValueSaySoInAShortBox) {
    type(user::BrowserTop, Text(40000, u'x'));
    user().click(u"cmdSave");
    EXPECT_LT(last_box().size(), 200U);
}

TEST_F(Options, ThatAreNotSavedKeepTheWindowOpenUnlessTheUserSaysSo) {
    choose(admin::SigEmail.name);
    user().set_text(u"txtValue", u"jo@example.com");
    user().click(u"cmdClose"); // the scripted user answers No
    EXPECT_TRUE(form().is_loaded());
    user().close();
    EXPECT_TRUE(form().is_loaded());
    EXPECT_EQ(stage.windows.boxes.size(), 2U);
    user().click(u"cmdSave");
    user().click(u"cmdClose");
    EXPECT_EQ(stored(admin::SigEmail), u"jo@example.com");
    EXPECT_EQ(stage.windows.boxes.size(), 2U);
}

TEST_F(Options, ACancelledFileDialogChangesNothing) {
    for (const TextView button : {u"cmdImport", u"cmdExport", u"cmdPreset"}) user().click(button);
    choose(admin::HTMFilesPath.name);
    user().click(u"cmdBrowseValue");
    EXPECT_TRUE(stage.windows.boxes.empty());
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, ThatArePathsAreBrowsedFor) {
    choose(admin::HTMFilesPath.name);
    stage.windows.path = u"C:\\stationery";
    user().click(u"cmdBrowseValue");
    EXPECT_EQ(form()[u"txtValue"].text, u"C:\\stationery");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(admin::HTMFilesPath), u"C:\\stationery");
}

TEST_F(Options, StandApartWhateverTheirEditorAndTheSizeOfTheWindow) {
    const Text long_value(40, u'm');
    stage.set(admin::SigEmail, long_value);
    for (const Size size : {Size{0, 0}, Size{14000, 11000}}) {
        form().take_place({0, 0, size.width, size.height});
        for (const Key* key : std::initializer_list<const Key*>{&admin::AutoPreview, &admin::HTMFilesPath,
                                                                &admin::SigEmail, &user::SettingButtonBar}) {
            choose(key->name);
            expect_apart(form());
            unique_access_keys(form());
        }
        open_import("REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n");
        expect_apart(form());
        EXPECT_EQ(unique_access_keys(form()), (std::set<char16_t>{u'm', u'w'}));
        user().click(u"cmdCancelImport");
    }
}

struct Dialog {
    TextView button, title, proposed, pattern;
    PathQuestion::Kind kind;
};

TEST_F(Options, AModeThatIsNotStoredIsNoneAndCanBeSetToItsDefault) {
    choose(user::SettingButtonBar.name);
    EXPECT_EQ(form()[u"cboValue"].text, u"");
    EXPECT_FALSE(form()[u"cmdReset"].enabled);
    user().set_text(u"cboValue", modes::automatic);
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::SettingButtonBar), modes::automatic);
    user().click(u"cmdReset");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::SettingButtonBar), std::nullopt);
    EXPECT_TRUE(stage.windows.boxes.empty());
    user().set_text(u"lstGroups", u"changed");
    EXPECT_TRUE(form()[u"lstSettings"].items.empty());
}

TEST_F(Options, OneOfWhichIsAlwaysChosenWhileSomeAreListed) {
    const Control& list = form()[u"lstSettings"];
    choose(admin::SigFax.name);
    user().set_text(u"lstGroups", u"usage log");
    EXPECT_EQ(list.index, 0);
    user().set_text(u"txtSearch", u"fullname name");
    EXPECT_TRUE(contains(list.items.at(0), u"SigFullname"));
    user().set_text(u"txtSearch", u"SigFullnameThe");
    EXPECT_TRUE(list.items.empty()) << "the name and the meaning are texts of their own";
}

TEST_F(Options, AskForFilesInDialogsThatSayWhichTheyMean) {
    using enum PathQuestion::Kind;
    constexpr Dialog dialogs[] = {{u"cmdImport", u"Import", u"", u"*.reg", existing_file},
                                  {u"cmdExport", u"Export", u"Ornavel.reg", u"*.reg", new_file},
                                  {u"cmdPreset", u"Preset", u"NewUser.reg", u"*.reg", new_file}};
    const PathQuestion& asked = stage.windows.last_question;
    for (const Dialog& dialog : dialogs) {
        user().click(dialog.button);
        EXPECT_EQ(asked.title, dialog.title);
        EXPECT_EQ(asked.proposed, dialog.proposed);
        EXPECT_EQ(asked.pattern, dialog.pattern);
        EXPECT_EQ(asked.files, u"Registry files");
        EXPECT_EQ(asked.kind, dialog.kind);
    }
    stage.set(admin::HTMFilesPath, u"C:\\t");
    stage.set(admin::ErrorFileLocation, u"C:\\log.txt");
    for (const Key* key : {&admin::HTMFilesPath, &admin::ApplicationPath, &admin::ErrorFileLocation}) {
        choose(key->name);
        user().click(u"cmdBrowseValue");
        EXPECT_EQ(asked.title, key->name);
        EXPECT_EQ(asked.proposed, stored(*key).value_or(Text()));
        EXPECT_EQ(asked.kind == folder, key != &admin::ErrorFileLocation) << to_utf8(key->name);
    }
}

TEST_F(Options, OfWhichNoneIsFoundHaveNoEditor) {
    user().set_text(u"txtSearch", u"no such setting");
    for (const TextView name :
         {u"txtValue", u"chkValue", u"cboValue", u"cmdBrowseValue", u"cmdReset", u"lblValue"})
        EXPECT_FALSE(form()[name].visible) << to_utf8(name);
    EXPECT_EQ(form()[u"lblMeaning"].caption, u"");
    EXPECT_EQ(form()[u"lblDefault"].caption, u"");
}

TEST_F(Options, ThatArePathsMayHoldVariables) {
    for (const auto& [value, holds] :
         {std::pair{u"%APPDATA%\\x", true}, {u"C:\\50%", false}, {u"C:\\", false}}) {
        choose(admin::HTMFilesPath.name);
        user().set_text(u"txtValue", value);
        user().click(u"cmdSave");
        EXPECT_EQ(stage.store.with_variables.contains(Text(admin::HTMFilesPath.name)), holds)
            << to_utf8(value);
    }
    type(admin::SigFax, u"%APPDATA%");
    user().click(u"cmdSave");
    EXPECT_TRUE(stage.store.with_variables.empty());
}

TEST_F(Options, AreReachedByKeysOfTheirOwn) {
    choose(admin::HTMFilesPath.name);
    EXPECT_EQ(unique_access_keys(form()),
              (std::set<char16_t>{u'a', u'b', u'd', u'e', u'g', u'i', u'p', u'r', u's', u't', u'v'}));
    choose(admin::AutoPreview.name);
    EXPECT_TRUE(unique_access_keys(form()).contains(u'n'));
}

TEST_F(Options, ThatAreOneUnderTwoNamesChangeTogether) {
    user().set_text(u"txtSearch", u"fax");
    type(admin::SigFax, u"12");
    const auto& lines = form()[u"lstSettings"].items;
    EXPECT_NE(std::ranges::find(lines, u"* SigFax = 12"), lines.end());
    EXPECT_NE(std::ranges::find(lines, u"* Sigfax = 12"), lines.end());
}

TEST_F(Options, TypedAndTakenBackAreNoChange) {
    type(admin::SigFax, u"1");
    EXPECT_TRUE(form()[u"cmdSave"].enabled);
    EXPECT_TRUE(form()[u"cmdReset"].enabled);
    user().set_text(u"txtValue", u"");
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
    EXPECT_FALSE(form()[u"cmdReset"].enabled);
    choose(admin::AutoPreview.name);
    user().tick(u"chkValue", true);
    user().tick(u"chkValue", false);
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
    user().click(u"cmdClose");
    EXPECT_TRUE(stage.windows.boxes.empty());
}

TEST_F(Options, ThatAreStoredTypedAndTakenBackAreNoChangeEither) {
    stage.set(admin::SigFax, u"1");
    stage.set(admin::HTMFilesPath, u"%APPDATA%\\x"); // as a text, which has no variables
    type(admin::SigFax, u"12");
    user().set_text(u"txtValue", u"1");
    type(admin::HTMFilesPath, u"%APPDATA%\\xy");
    user().set_text(u"txtValue", u"%APPDATA%\\x");
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
    type(admin::SigFax, u"");
    EXPECT_TRUE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, TickedAndUntickedKeepTheWordThatMeansTheSame) {
    stage.set(admin::AutoPreview, u"yes");
    choose(admin::AutoPreview.name);
    user().tick(u"chkValue", true);
    EXPECT_EQ(form()[u"lstSettings"].items[0], u"* AutoPreview = True");
    user().tick(u"chkValue", false);
    EXPECT_EQ(form()[u"lstSettings"].items[0], u"* AutoPreview = yes");
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, WithLineBreaksStayAsTheyAreWhenTheyAreLookedAt) {
    stage.set(admin::SigAddress, u"1 High Street\r\nMarlow");
    choose(admin::SigAddress.name);
    EXPECT_EQ(form()[u"txtValue"].text, u"1 High Street\r\nMarlow");
    EXPECT_EQ(form()[u"lstSettings"].items[0], u"* SigAddress = 1 High Street Marlow");
    choose(admin::SigCell.name);
    EXPECT_FALSE(form()[u"cmdSave"].enabled);
}

TEST_F(Options, AreShownAsTheAddInReadsThem) {
    stage.set(admin::SigFax, u"%FAX%");
    stage.set(admin::HTMFilesPath, u"%APPDATA%");
    stage.store.with_variables = {Text(admin::SigFax.name), Text(admin::HTMFilesPath.name)};
    choose(admin::HTMFilesPath.name);
    EXPECT_EQ(form()[u"txtValue"].text, u"%APPDATA%");
    choose(admin::SigFax.name);
    EXPECT_EQ(form()[u"txtValue"].text, u"");
    EXPECT_FALSE(form()[u"cmdReset"].enabled);
    EXPECT_FALSE(has(written_by(u"cmdExport", u"C:\\out.reg"), "SigFax"));
    choose(admin::SigFax.name);
    user().set_text(u"txtValue", u"12");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(admin::SigFax), u"12");
}

TEST_F(Options, SayWhyTheyCannotHaveAValue) {
    const auto why_not = [](TextView name, TextView value) {
        const auto all = descriptions();
        return objection(*std::ranges::find(all, name, [](const auto& each) { return each.key.name; }),
                         value);
    };
    EXPECT_EQ(why_not(u"BrowserTop", u"-"), u"it is no number");
    EXPECT_EQ(why_not(u"BrowserTop", u"--1"), u"it is no number");
    EXPECT_EQ(why_not(u"BrowserTop", u"-1"), std::nullopt);
    EXPECT_EQ(why_not(u"BrowserTop", u""), std::nullopt);
    EXPECT_EQ(why_not(u"InsertDateFormat", u"Short"), u"it is none of \"\", \"Long\"");
    EXPECT_EQ(why_not(u"InsertDateFormat", u""), std::nullopt);
    EXPECT_EQ(why_not(u"SigFax", TextView(u"1\0002", 3)), u"it holds a sign that no setting can hold");
}

TEST_F(Options, EndAsTheUserEndsThem) {
    EXPECT_EQ(run(options_assistant, stage.platform), ended);
    EXPECT_EQ(stage.windows.forms_shown, 1);
    ScriptedWindows broken([](Form&, FormUser) { throw Failure(u"no window is to be had"); });
    Platform without_windows{stage.store,   stage.files, stage.clock,   stage.launcher,
                             stage.objects, broken,      stage.machine, u"C:\\Ornavel"};
    EXPECT_EQ(run(options_assistant, without_windows), gave_up);
    EXPECT_EQ(broken.boxes,
              std::vector<Text>{u"Ornavel Options: Ornavel Options can't go on: no window is to be had."});
}

} // namespace
} // namespace ornavel::programs
