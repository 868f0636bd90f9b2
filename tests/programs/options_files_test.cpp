#include "programs/site_assistant/fields.h"
#include "settings/reg_settings.h"
#include "tests/programs/options_stage.h"

#include <algorithm>
#include <set>

namespace ornavel::programs {
namespace {

using namespace forms;
using namespace settings;

constexpr const char* from_elsewhere = "REGEDIT4\r\n\r\n"
                                       "[HKEY_CURRENT_USER\\Software\\Other]\r\n\"Evil\"=\"x\"\r\n"
                                       "[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\"
                                       "Admin Settings]\r\n"
                                       "\"AutoPreview\"=\"True\"\r\n\"Invented\"=\"x\"\r\n\"SigEmail\"=-\r\n"
                                       "\"SigCell\"=dword:00000001\r\n";

TEST_F(Options, FromAFileAreShownBeforeTheyAreImported) {
    stage.set(admin::SigEmail, u"jo@example.com");
    open_import(from_elsewhere);
    EXPECT_EQ(stored(admin::AutoPreview), std::nullopt);
    EXPECT_TRUE(form()[u"fraImport"].visible);
    EXPECT_FALSE(form()[u"cmdSave"].visible);
    EXPECT_EQ(
        import_lines(),
        (std::vector<Text>{
            u"AutoPreview: (not set) becomes \"True\"", u"SigEmail: \"jo@example.com\" becomes (not set)",
            u"Not imported: Admin Settings / SigCell (its value is no text)",
            u"Not imported: HKEY_CURRENT_USER\\Software\\Other (it does not belong to Ornavel)",
            u"Not imported: Admin Settings / Invented (Ornavel knows no such setting)"}));
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stored(admin::AutoPreview), u"True");
    EXPECT_EQ(stored(admin::SigEmail), std::nullopt);
    EXPECT_EQ(stage.store.find(u"Admin Settings", u"Invented"), std::nullopt);
    EXPECT_FALSE(form()[u"fraImport"].visible);
    EXPECT_TRUE(form()[u"cmdSave"].visible);
}

std::string in_section(const std::string& name, const std::string& values) {
    return "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\" + name +
           "]\r\n" + values;
}

TEST_F(Options, ThatHaveSeveralValuesInAFileGetTheLastOne) {
    stage.set(admin::AutoPreview, on);
    open_import(in_section("Admin Settings", "\"AutoPreview\"=\"False\"\r\n\"SigFax\"=\"1\"\r\n"
                                             "\"Sigfax\"=\"2\"\r\n\"AutoPreview\"=\"True\"\r\n"));
    EXPECT_EQ(import_lines(), std::vector<Text>{u"SigFax: (not set) becomes \"2\""});
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stored(admin::AutoPreview), on);
    EXPECT_EQ(stored(admin::SigFax), u"2");
}

TEST_F(Options, FromAFileAreComparedWithWhatIsSaved) {
    type(admin::SigFax, u"12");
    type(admin::SigCell, u"34");
    open_import(in_section("Admin Settings", "\"SigFax\"=\"12\"\r\n"));
    EXPECT_EQ(import_lines(), std::vector<Text>{u"SigFax: (not set) becomes \"12\""});
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stored(admin::SigFax), u"12");
    EXPECT_EQ(stored(admin::SigCell), std::nullopt);
    EXPECT_TRUE(form()[u"cmdSave"].enabled); // for the other one
    user().click(u"cmdSave");
    user().click(u"cmdClose");
    EXPECT_TRUE(stage.windows.boxes.empty());
    EXPECT_FALSE(form().is_loaded());
}

TEST_F(Options, FromAFileThatAreSavedAlreadyAreNoChange) {
    stage.set(admin::SigFax, u"12");
    type(admin::SigFax, u"13");
    open_import(in_section("Admin Settings", "\"SigFax\"=\"12\"\r\n"));
    EXPECT_EQ(last_box(), u"Ornavel Options: The file would change nothing.");
    EXPECT_EQ(form()[u"txtValue"].text, u"13");
}

TEST_F(Options, AreNotImportedWithAValueThatTheyCannotHave) {
    open_import(in_section("User Settings", "\"BrowserTop\"=\"12x\"\r\n\"SettingButtonBar\"=\"sometimes\"\r\n"
                                            "\"BrowserLeft\"=\"12\"\r\n\"BrowserLeft\"=\"-\"\r\n"
                                            "\"BrowserWidth\"=\"-\"\r\n\"BrowserWidth\"=\"12\"\r\n"));
    EXPECT_EQ(import_lines(),
              (std::vector<Text>{
                  u"BrowserWidth: (not set) becomes \"12\"",
                  u"Not imported: User Settings / BrowserTop = \"12x\" (it is no number)",
                  u"Not imported: User Settings / SettingButtonBar = \"sometimes\" (it is none of \"auto\", "
                  u"\"on\", \"off\", \"eSignature\")",
                  u"Not imported: User Settings / BrowserLeft = \"-\" (it is no number)"}));
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stage.store.stored.sections().at(u"User Settings").size(), 1U);
}

TEST_F(Options, FromAFileStandInOneLineEach) {
    stage.set(admin::SigFullname, u"Jo\r\nLee");
    open_import(in_section("Admin Settings", "\"SigFullname\"=\"" + std::string(200, 'x') + "\"\r\n"));
    EXPECT_EQ(import_lines(),
              std::vector<Text>{u"SigFullname: \"Jo Lee\" becomes \"" + Text(100, u'x') + u"\u2026\""});
}

TEST_F(Options, OfAWholeMachinesRegistryAreNotBuriedBelowAllThatIsLeftOut) {
    std::string bytes = "REGEDIT4\r\n";
    for (int key = 0; key < 250; ++key) bytes += "[HKEY_LOCAL_MACHINE\\" + std::to_string(key) + "]\r\n";
    open_import(bytes +
                in_section("Admin Settings", "\"SigFax\"=\"12\"\r\n\"SigCell\"=dword:1\r\n").substr(10));
    ASSERT_EQ(import_lines().size(), 102U);
    EXPECT_EQ(import_lines()[0], u"SigFax: (not set) becomes \"12\"");
    EXPECT_EQ(import_lines()[1], u"Not imported: Admin Settings / SigCell (its value is no text)");
    EXPECT_EQ(import_lines()[100], u"Not imported: HKEY_LOCAL_MACHINE\\98 (it does not belong to Ornavel)");
    EXPECT_EQ(import_lines()[101], u"And 151 more that were not imported");
}

TEST_F(Options, OfWhichOneCannotBeImportedAreLookedAtAgain) {
    stage.store.refused = admin::SigWebsite.name;
    open_import(in_section("Admin Settings", "\"SigEmail\"=\"jo@example.com\"\r\n\"SigWebsite\"=\"x\"\r\n"));
    const std::vector<Text> lines = import_lines();
    user().click(u"cmdTakeOver");
    EXPECT_TRUE(contains(last_box(), u"Nothing was changed"));
    EXPECT_EQ(stored(admin::SigEmail), std::nullopt);
    EXPECT_TRUE(form()[u"fraImport"].visible);
    EXPECT_FALSE(form()[u"txtValue"].visible);
    EXPECT_EQ(import_lines(), lines);
    stage.store.refused.clear();
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stored(admin::SigWebsite), u"x");
    EXPECT_FALSE(form()[u"fraImport"].visible);
}

TEST_F(Options, ThatCouldNotBePutBackAreShownAsTheyAre) {
    open_import(in_section("Admin Settings", "\"SigEmail\"=\"jo@example.com\"\r\n\"SigFax\"=\"1\"\r\n"));
    stage.store.writes_left = 1;
    user().click(u"cmdTakeOver");
    EXPECT_EQ(import_lines(), std::vector<Text>{u"SigFax: (not set) becomes \"1\""});
    user().click(u"cmdCancelImport");
    const auto& shown = form()[u"lstSettings"].items;
    EXPECT_NE(std::ranges::find(shown, u"* SigEmail = jo@example.com"), shown.end());
}

TEST_F(Options, AreReadAndWrittenOnlyWhileTheUserSeesThatSomethingIsDone) {
    int looks = 0;
    stage.files.at_look = [&](TextView path) {
        ++looks;
        EXPECT_TRUE(stage.windows.user_waits) << to_utf8(path);
    };
    open_import(in_section("Admin Settings", "\"SigFax\"=\"1\"\r\n"));
    user().click(u"cmdTakeOver");
    EXPECT_EQ(looks, 1);
    written_by(u"cmdExport", u"C:\\out.reg");
    written_by(u"cmdPreset", u"C:\\NewUser.reg");
    EXPECT_GT(looks, 2);
    EXPECT_FALSE(stage.windows.user_waits);
}

TEST_F(Options, FromAFileAreForgottenWhenTheImportIsCancelled) {
    open_import(from_elsewhere);
    user().click(u"cmdCancelImport");
    EXPECT_EQ(stored(admin::AutoPreview), std::nullopt);
    EXPECT_FALSE(form()[u"fraImport"].visible);
}

TEST_F(Options, FromAFileAreLookedAtWithTheKeyboardAlone) {
    open_import(from_elsewhere);
    EXPECT_EQ(form().next_focus, u"lstImport");
    EXPECT_EQ(pressed_by(&Control::is_default), u"cmdTakeOver");
    EXPECT_EQ(pressed_by(&Control::is_cancel), u"cmdCancelImport");
    user().click(u"cmdCancelImport");
    EXPECT_EQ(form().next_focus, u"cmdImport");
    EXPECT_EQ(pressed_by(&Control::is_cancel), u"cmdClose");
}

TEST_F(Options, OfAFileThatIsNoneStayAsTheyAre) {
    open_import("<html>");
    EXPECT_TRUE(contains(last_box(), u"in.reg was not imported"));
    stage.windows.path = u"C:\\gone.reg";
    user().click(u"cmdImport");
    EXPECT_TRUE(contains(last_box(), u"gone.reg was not imported"));
    EXPECT_FALSE(form()[u"fraImport"].visible);
}

TEST_F(Options, AreExportedWithEverySignAndReadBackAsTheyWere) {
    stage.set(admin::SigFullname, u"\u00C4nne \"Q\" \\ 50 % <b>&amp;</b>\r\nL\u00E9e");
    stage.set(admin::SigPosition, u"");
    stage.windows.path = u"C:\\out.reg";
    user().click(u"cmdExport");
    EXPECT_TRUE(written(u"C:\\out.reg").starts_with("REGEDIT4"));
    stage.set(admin::SigFullname, u"\u65E5\u672C");
    stage.windows.path = u"C:\\wide.reg";
    user().click(u"cmdExport");
    const auto read_back = settings_of(read_reg_file(written(u"C:\\wide.reg"), windows_1252()));
    ASSERT_EQ(read_back.size(), 2U);
    EXPECT_TRUE(std::ranges::any_of(read_back, [](const FileSetting& each) {
        return each.name == admin::SigFullname.name && each.value == u"\u65E5\u672C";
    }));
    EXPECT_TRUE(written(u"C:\\wide.reg").starts_with("\xFF\xFE"));
}

TEST_F(Options, ThatEqualTheirDefaultCanBeLeftOutOfAnExport) {
    stage.set(user::SettingButtonBar, u"auto");
    stage.set(admin::AutoPreview, on);
    user().tick(u"chkOnlyDifferent", true);
    stage.windows.path = u"C:\\out.reg";
    user().click(u"cmdExport");
    EXPECT_FALSE(has(written(u"C:\\out.reg"), "SettingButtonBar"));
    EXPECT_TRUE(has(written(u"C:\\out.reg"), "\"AutoPreview\"=\"True\""));
}

TEST_F(Options, ThatAreNotSavedAreInNoFileAndTheUserIsTold) {
    stage.set(admin::SigWebsite, u"www.example.com");
    stage.set(user::SettingButtonBar, u"off");
    written_by(u"cmdExport", u"C:\\out.reg");
    EXPECT_TRUE(stage.windows.boxes.empty());
    type(admin::SigWebsite, u"other.example.com");
    type(user::BrowserTop, u"12x");
    const std::string exported = written_by(u"cmdExport", u"C:\\out.reg");
    EXPECT_EQ(last_box(), u"Ornavel Options: What you changed is not saved, and will not be in the file.");
    EXPECT_TRUE(has(exported, "\"SigWebsite\"=\"www.example.com\""));
    EXPECT_FALSE(has(exported, "BrowserTop"));
    user().tick(u"chkOnlyDifferent", true);
    EXPECT_TRUE(has(written_by(u"cmdExport", u"C:\\out.reg"), "www.example.com"));
    type(user::BrowserLeft, u"99");
    EXPECT_FALSE(has(written_by(u"cmdPreset", u"C:\\NewUser.reg"), "BrowserLeft"));
    EXPECT_EQ(stage.windows.boxes.size(), 3U);
}

TEST_F(Options, OfAPresetHaveOneOfTwoNames) {
    stage.windows.path = u"C:\\x\\other.reg";
    user().click(u"cmdPreset");
    EXPECT_TRUE(contains(last_box(), u"NewUser.reg or DefaultUser.reg"));
    EXPECT_FALSE(stage.files.file_exists(u"C:\\x\\other.reg"));
    stage.set(admin::AutoPreview, on);
    EXPECT_TRUE(has(written_by(u"cmdPreset", u"C:\\x\\newuser.reg"), "AutoPreview"));
    EXPECT_TRUE(has(written_by(u"cmdPreset", u"C:\\x\\DEFAULTUSER.REG"), "AutoPreview"));
}

// Written down by hand: what is one person's own, and what the add-in remembers for itself.
constexpr TextView in_no_preset =
    u"BrowserHeight|BrowserLeft|BrowserTop|BrowserWidth|Current Signature|LastTipNumber|"
    u"MainFormHeight|SendQuoteString|SendToManySubject|SigAddress|SigAddress2|SigAddress2FR|"
    u"SigAddress3|SigAddress3FR|SigAddress4|SigAddress4FR|SigAddressFR|SigBranch|SigBranchFR|SigCell|"
    u"SigDivision|SigDivisionFR|SigEmail|SigFax|SigFullname|SigFullnameFR|SigOrganizationName|"
    u"SigOrganizationNameFR|SigPosition|SigPositionFR|SigTelephone|SigWebsite|SigWebsiteDisplayName|"
    u"SigWebsiteDisplayNameFR|SigWebsiteFR|SignatureList|vCard|vCardPath|vCardPathSelected|"
    u"vCardSelected";

TEST_F(Options, OfOnePersonAloneAreInNoPresetAndAllOthersAre) {
    for (const Key& key : catalogue()) stage.set(key, u"x");
    std::set<Text> left_out;
    const auto file = read_reg_file(written_by(u"cmdPreset", u"C:\\NewUser.reg"), windows_1252());
    const auto in_file = settings_of(file);
    for (const Key& key : catalogue()) {
        const auto is_it = [&](const FileSetting& each) { return same_name(each.name, key.name); };
        if (std::ranges::none_of(in_file, is_it))
            left_out.insert(Text(find_key(key.section, key.name)->name));
    }
    const auto wanted = split(in_no_preset, u"|");
    EXPECT_EQ(left_out, std::set<Text>(wanted.begin(), wanted.end()));
    for (const Field& field : setup_fields())
        EXPECT_TRUE(!field.is_HTML || left_out.contains(Text(field.key.name))) << to_utf8(field.key.name);
}

TEST_F(Options, ThatCannotBeExportedAreToldInOneSentence) {
    stage.files.refused.insert(u"C:\\out.reg");
    stage.windows.path = u"C:\\out.reg";
    user().click(u"cmdExport");
    EXPECT_EQ(last_box(), u"Ornavel Options: C:\\out.reg could not be written.");
}

} // namespace
} // namespace ornavel::programs
