#include "programs/options_assistant/frmOptionsAssistant.h"
#include "programs/options_assistant/options_assistant.h"

#include "base/encoding.h"
#include "forms/form_user.h"
#include "settings/reg_settings.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"
#include "tests/programs/program_stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ornavel::programs {
namespace {

using namespace forms;
using namespace settings;

class Options : public ::testing::Test {
protected:
    frmOptionsAssistant& options() {
        if (!options_) options_ = std::make_unique<frmOptionsAssistant>(stage.platform);
        options_->form().load();
        return *options_;
    }
    Form& form() { return options().form(); }
    FormUser user() { return FormUser(form()); }
    void choose(TextView name) {
        user().set_text(u"txtSearch", name);
        const auto& lines = form()[u"lstSettings"].items;
        const auto line = std::ranges::find_if(
            lines, [&](const Text& each) { return contains(each, u" " + Text(name) + u" = "); });
        ASSERT_NE(line, lines.end()) << to_utf8(name);
        user().select(u"lstSettings", static_cast<int>(line - lines.begin()));
    }
    /// The buttons that Enter or Escape presses.
    Text pressed_by(bool Control::*key) {
        Text names;
        for (const Control& control : form().controls()) {
            const Control* const frame = form().find(control.frame);
            const bool is_seen = control.visible && (!frame || frame->visible);
            if (is_seen && control.enabled && control.*key) names += control.name;
        }
        return names;
    }
    std::optional<Text> stored(const Key& key) { return stage.stored(key); }
    Text last_box() { return stage.windows.boxes.empty() ? Text() : stage.windows.boxes.back(); }
    std::string written(TextView path) { return stage.files.contents.at(Text(path)); }

    ProgramStage stage;

private:
    std::unique_ptr<frmOptionsAssistant> options_;
};

TEST_F(Options, LookAsDrawn) {
    choose(admin::HTMFilesPath.name);
    expect_drawn(form(), "options");
    stage.files.contents[u"C:\\in.reg"] =
        "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n\"A\"=\"x\"\r\n";
    stage.windows.path = u"C:\\in.reg";
    user().click(u"cmdImport");
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
    EXPECT_EQ(form()[u"cboValue"].text, u"auto");
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
    choose(user::BrowserTop.name);
    user().set_text(u"txtValue", u"12x");
    choose(admin::SigEmail.name);
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::BrowserTop), std::nullopt);
    EXPECT_EQ(last_box(), u"Ornavel Options: \"12x\" is no value for BrowserTop: it is no number.");
    EXPECT_EQ(form()[u"txtValue"].text, u"12x");
}

TEST_F(Options, RefuseAChoiceThatIsNotInTheList) {
    choose(user::SettingButtonBar.name);
    user().set_text(u"cboValue", u"sometimes");
    user().click(u"cmdSave");
    EXPECT_EQ(stored(user::SettingButtonBar), std::nullopt);
    EXPECT_TRUE(contains(last_box(), u"choose one of the list"));
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

constexpr const char* from_elsewhere = "REGEDIT4\r\n\r\n"
                                       "[HKEY_CURRENT_USER\\Software\\Other]\r\n\"Evil\"=\"x\"\r\n"
                                       "[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\"
                                       "Admin Settings]\r\n"
                                       "\"AutoPreview\"=\"True\"\r\n\"Invented\"=\"x\"\r\n\"SigEmail\"=-\r\n"
                                       "\"SigCell\"=dword:00000001\r\n";

TEST_F(Options, FromAFileAreShownBeforeTheyAreImported) {
    stage.set(admin::SigEmail, u"jo@example.com");
    stage.files.contents[u"C:\\in.reg"] = from_elsewhere;
    stage.windows.path = u"C:\\in.reg";
    user().click(u"cmdImport");
    EXPECT_EQ(stored(admin::AutoPreview), std::nullopt);
    EXPECT_TRUE(form()[u"fraImport"].visible);
    EXPECT_FALSE(form()[u"cmdSave"].visible);
    EXPECT_EQ(
        form()[u"lstImport"].items,
        (std::vector<Text>{
            u"AutoPreview: (not set) becomes \"True\"", u"SigEmail: \"jo@example.com\" becomes (not set)",
            u"Not imported: HKEY_CURRENT_USER\\Software\\Other (it does not belong to Ornavel)",
            u"Not imported: Admin Settings / Invented (Ornavel knows no such setting)",
            u"Not imported: Admin Settings / SigCell (its value is no text)"}));
    user().click(u"cmdTakeOver");
    EXPECT_EQ(stored(admin::AutoPreview), u"True");
    EXPECT_EQ(stored(admin::SigEmail), std::nullopt);
    EXPECT_EQ(stage.store.find(u"Admin Settings", u"Invented"), std::nullopt);
    EXPECT_FALSE(form()[u"fraImport"].visible);
    EXPECT_TRUE(form()[u"cmdSave"].visible);
}

TEST_F(Options, FromAFileAreForgottenWhenTheImportIsCancelled) {
    stage.files.contents[u"C:\\in.reg"] = from_elsewhere;
    stage.windows.path = u"C:\\in.reg";
    user().click(u"cmdImport");
    user().click(u"cmdCancelImport");
    EXPECT_EQ(stored(admin::AutoPreview), std::nullopt);
    EXPECT_FALSE(form()[u"fraImport"].visible);
}

TEST_F(Options, FromAFileAreLookedAtWithTheKeyboardAlone) {
    stage.files.contents[u"C:\\in.reg"] = from_elsewhere;
    stage.windows.path = u"C:\\in.reg";
    user().click(u"cmdImport");
    EXPECT_EQ(form().next_focus, u"lstImport");
    EXPECT_EQ(pressed_by(&Control::is_default), u"cmdTakeOver");
    EXPECT_EQ(pressed_by(&Control::is_cancel), u"cmdCancelImport");
    user().click(u"cmdCancelImport");
    EXPECT_EQ(form().next_focus, u"cmdImport");
    EXPECT_EQ(pressed_by(&Control::is_cancel), u"cmdClose");
}

TEST_F(Options, OfAFileThatIsNoneStayAsTheyAre) {
    stage.files.contents[u"C:\\in.reg"] = "<html>";
    stage.windows.path = u"C:\\in.reg";
    user().click(u"cmdImport");
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
    EXPECT_EQ(written(u"C:\\out.reg").find("SettingButtonBar"), std::string::npos);
    EXPECT_NE(written(u"C:\\out.reg").find("\"AutoPreview\"=\"True\""), std::string::npos);
}

TEST_F(Options, OfOneUserAloneAreInNoPreset) {
    stage.set(admin::SigFullname, u"Jo Sender");
    stage.set(admin::CurrentSignature, u"1");
    stage.set(admin::AutoPreview, on);
    stage.windows.path = u"C:\\x\\other.reg";
    user().click(u"cmdPreset");
    EXPECT_TRUE(contains(last_box(), u"NewUser.reg or DefaultUser.reg"));
    EXPECT_FALSE(stage.files.file_exists(u"C:\\x\\other.reg"));
    stage.windows.path = u"C:\\x\\newuser.reg";
    user().click(u"cmdPreset");
    const std::string preset = written(u"C:\\x\\newuser.reg");
    EXPECT_NE(preset.find("AutoPreview"), std::string::npos);
    EXPECT_EQ(preset.find("SigFullname"), std::string::npos);
    EXPECT_EQ(preset.find("Current Signature"), std::string::npos);
}

TEST_F(Options, ThatCannotBeExportedAreToldInOneSentence) {
    stage.files.refused.insert(u"C:\\out.reg");
    stage.windows.path = u"C:\\out.reg";
    user().click(u"cmdExport");
    EXPECT_EQ(last_box(), u"Ornavel Options: C:\\out.reg could not be written.");
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
    for (const Size size : {Size{0, 0}, Size{14000, 11000}}) {
        form().take_place({0, 0, size.width, size.height});
        for (const TextView name : {TextView(admin::AutoPreview.name), TextView(admin::HTMFilesPath.name)}) {
            choose(name);
            const auto& controls = form().controls();
            for (auto one = controls.begin(); one != controls.end(); ++one)
                for (auto other = one + 1; other != controls.end(); ++other) {
                    const bool are_seen = one->visible && other->visible;
                    EXPECT_FALSE(are_seen && overlap(one->place, other->place))
                        << to_utf8(one->name) << " " << to_utf8(other->name);
                }
        }
    }
}

} // namespace
} // namespace ornavel::programs
