#include "base/encoding.h"
#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ornavel::settings {
namespace {

// The names, written down a second time.
const std::vector<Text> admin_names = {
    u"ApplicationPath",
    u"AutoPreview",
    u"BrowserPath",
    u"BrowserWarnPastedImages",
    u"Current Signature",
    u"EmailAddressNotify",
    u"EmailErrorNotify",
    u"ErrorFileExceptions",
    u"ErrorFileLocation",
    u"ErrorFileSuppressEmail",
    u"ExchangeUser",
    u"ExclaimerRule",
    u"FormatWarning",
    u"HTM Files Path",
    u"Help",
    u"Marketing",
    u"Multiple Signatures",
    u"OutlookSignaturePath",
    u"PreviewOptionsShow",
    u"ProFormCaption",
    u"RemoveReplyTags",
    u"SendToManySubject",
    u"SendvCardAlways",
    u"Show Boilerplates",
    u"ShowAutoSendPlain",
    u"ShowConfigWizButton",
    u"ShowLogoMainForm",
    u"ShowMessageBoxAdminOnly",
    u"ShowOptionsPage",
    u"ShowPreviewOptionsButton",
    u"ShowPreviewSelectButton",
    u"ShowSendToMany",
    u"SigAddress",
    u"SigAddress2",
    u"SigAddress3",
    u"SigAddress4",
    u"SigAddressFR",
    u"SigAddress2FR",
    u"SigAddress3FR",
    u"SigAddress4FR",
    u"SigBGColor",
    u"SigBranch",
    u"SigBranchFR",
    u"SigBranchLabel",
    u"SigCell",
    u"SigCellLabel",
    u"SigCellEmptyStringHTM",
    u"SigCellEmptyStringReplaceHTM",
    u"SigCellEmptyStringRTFTXT",
    u"SigCellEmptyStringReplaceRTFTXT",
    u"SigDivision",
    u"SigDivisionFR",
    u"SigDivisionLabel",
    u"SigEmail",
    u"SigFax",
    u"SigFaxLabel",
    u"SigFaxEmptyStringHTM",
    u"SigFaxEmptyStringReplaceHTM",
    u"SigFaxEmptyStringRTFTXT",
    u"SigFaxEmptyStringReplaceRTFTXT",
    u"SigFullname",
    u"SigFullnameFR",
    u"SigGifFile",
    u"SigGifFile2",
    u"SigGifFile3",
    u"SigGifFile4",
    u"SigGifFile5",
    u"SigJPEGFile",
    u"SigJPEGFile2",
    u"SigJPEGFile3",
    u"SigJPEGFile4",
    u"SigJPEGFile5",
    u"SigOrganizationName",
    u"SigOrganizationNameFR",
    u"SigPosition",
    u"SigPositionFR",
    u"SigPositionLabel",
    u"SigTelephone",
    u"SigTelephoneLabel",
    u"SigWebsite",
    u"SigWebsiteFR",
    u"SigWebsiteCustom1",
    u"SigWebsiteCustom2",
    u"SigWebsiteCustom3",
    u"SigWebsiteCustom4",
    u"SigWebsiteCustom5",
    u"SigWebsiteCustom6",
    u"SigWebsiteCustom7",
    u"SigWebsiteCustom8",
    u"SigWebsiteCustom9",
    u"SigWebsiteCustom10",
    u"SigWebsiteDisplayName",
    u"SigWebsiteDisplayNameFR",
    u"Sigfax",
    u"Signatures Path",
    u"SkipInternal",
    u"StartupSetupWiz",
    u"StoredProcName",
    u"SuppressMailItemToolbar",
    u"SuppressResendsOutbox",
    u"SuppressResendsSentItems",
    u"SysTray",
    u"TestSkipInternal",
    u"TipsFileLocation",
    u"UseExclaimer",
    u"UseRedemption",
    u"WipeOutBrowserSendButton",
    u"WipeOutFileCompare",
    u"WipeOutFontControl",
    u"WipeoutBlockquote",
    u"WipeoutHTML",
    u"WipeoutHTMLBeginTag",
    u"WipeoutHTMLEndTag",
    u"WipeoutHTMLTagsGroup",
    u"WipeoutHardRule",
    u"WipeoutReplyFontSmall",
    u"WipeoutReplySeparator",
    u"WipeoutSignatureTable",
    u"WipeoutPersonalStationery",
    u"WipeoutPersonalStationeryAlways",
    u"WipeoutRichTextToHTML",
    u"WipeoutSetSpellCheckOn",
    u"WipeoutWordRTFtoWordHTML",
    u"WipeoutRemoveConvertedBR",
    u"WipeoutTemplateAttachments",
    u"WizardLogo",
    u"eSignature",
};

const std::vector<Text> user_names = {
    u"BrowserTop",
    u"BrowserLeft",
    u"BrowserHeight",
    u"BrowserWidth",
    u"Categories",
    u"CategoryVal",
    u"Default",
    u"Delivery",
    u"FollowUp",
    u"FollowUpVal",
    u"Importance",
    u"Receipt",
    u"Sensitivity",
    u"ShowMessageBox",
    u"FormatWarningMessage",
    u"InsertDate",
    u"InsertDateFormat",
    u"InsertFontControl",
    u"InsertOrder",
    u"InsertString",
    u"InsertStringBeforeDate",
    u"InsertTime",
    u"Internet Path",
    u"LogContactNotes",
    u"PromptOnReplies",
    u"RTFOnly",
    u"Reply as is",
    u"SendAsIs",
    u"SendQuote",
    u"SendQuoteString",
    u"SendvCard",
    u"SettingButtonBar",
    u"ShowNextAppointmentTips",
    u"Signature",
    u"SignatureList",
    u"SuppressToolbar",
    u"Template",
    u"template",
    u"WipeoutDivTag",
    u"WipeoutFormFocus",
    u"vCard",
    u"vCardPath",
    u"vCardSelected",
    u"vCardPathSelected",
};

const std::vector<Text> system_names = {
    u"ExchangeDomain",         u"LastTipNumber",        u"MainFormHeight",       u"MyReplySearchString",
    u"Office2003SearchString", u"ReplySearchStringVal", u"ReplyInsertStringVal", u"SystemCheck",
    u"WebBrowserControlOK",    u"Performance",
};

const std::vector<Text> template_names = {
    u"UserCode1", u"UserCode2", u"UserCode3", u"UserCode4", u"UserCode5",
    u"UserSwap1", u"UserSwap2", u"UserSwap3", u"UserSwap4", u"UserSwap5",
};

std::vector<Text> sorted(std::vector<Text> names) {
    std::ranges::sort(names);
    return names;
}

std::vector<Text> names_in(TextView section) {
    std::vector<Text> names;
    for (const Key& key : catalogue())
        if (key.section == section) names.emplace_back(key.name);
    return names;
}

TEST(Catalogue, HoldsEveryKeyOfEachSectionAndNoOther) {
    EXPECT_EQ(sorted(names_in(u"Admin Settings")), sorted(admin_names));
    EXPECT_EQ(sorted(names_in(u"User Settings")), sorted(user_names));
    EXPECT_EQ(sorted(names_in(u"System Settings")), sorted(system_names));
    EXPECT_EQ(sorted(names_in(u"Template Settings")), sorted(template_names));
    EXPECT_EQ(catalogue().size(),
              admin_names.size() + user_names.size() + system_names.size() + template_names.size());
}

std::vector<Text> names_of(SettingKind kind) {
    std::vector<Text> names;
    for (const Key& key : catalogue())
        if (key.kind == kind) names.emplace_back(key.name);
    return sorted(names);
}

TEST(Catalogue, KnowsItsPathsTicksAndNumbers) {
    EXPECT_EQ(names_of(SettingKind::path),
              sorted({u"ApplicationPath", u"BrowserPath", u"ErrorFileLocation", u"HTM Files Path", u"Help",
                      u"OutlookSignaturePath", u"Signatures Path", u"TipsFileLocation", u"WizardLogo",
                      u"Internet Path", u"vCardPath", u"vCardPathSelected"}));
    EXPECT_EQ(names_of(SettingKind::tick),
              sorted({u"SkipInternal", u"Categories", u"Default", u"Delivery", u"FollowUp", u"Receipt",
                      u"ShowMessageBox", u"Reply as is"}));
    EXPECT_EQ(
        names_of(SettingKind::number),
        sorted({u"Current Signature", u"BrowserTop", u"BrowserLeft", u"BrowserHeight", u"BrowserWidth",
                u"LastTipNumber", u"MainFormHeight", u"ReplySearchStringVal", u"ReplyInsertStringVal"}));
}

TEST(Catalogue, SwitchesAreTrueOrFalseByDefault) {
    for (const Key& key : catalogue()) {
        if (key.kind != SettingKind::switch_) continue;
        EXPECT_TRUE(key.default_value == u"True" || key.default_value == u"False") << to_utf8(key.name);
    }
}

TEST(Catalogue, NumbersAndTicksAreDigitsByDefault) {
    for (const Key& key : catalogue()) {
        if (key.kind != SettingKind::number && key.kind != SettingKind::tick) continue;
        EXPECT_EQ(key.default_value.find_first_not_of(u"0123456789"), TextView::npos);
    }
}

TEST(Catalogue, DefaultsThatAnAdministratorCountsOn) {
    EXPECT_EQ(admin::HTMFilesPath.default_value, u"C:\\temp");
    EXPECT_EQ(admin::SignaturesPath.default_value, u"C:\\temp");
    EXPECT_EQ(admin::StartupSetupWiz.default_value, u"True");
    EXPECT_EQ(admin::ShowConfigWizButton.default_value, u"True");
    EXPECT_EQ(admin::ShowOptionsPage.default_value, u"True");
    EXPECT_EQ(admin::eSignature.default_value, u"True");
    EXPECT_EQ(admin::EmailErrorNotify.default_value, u"True");
    EXPECT_EQ(admin::WipeoutBlockquote.default_value, u"True");
    EXPECT_EQ(admin::WipeoutSignatureTable.default_value, u"True");
    EXPECT_EQ(admin::WipeoutReplySeparator.default_value, u"<hr>");
    EXPECT_EQ(admin::SigBGColor.default_value, u"#FFFFFF");
    EXPECT_EQ(admin::SkipInternal.default_value, u"0");
    EXPECT_EQ(user::SuppressToolbar.default_value, u"False");
    EXPECT_EQ(user::BrowserWidth.default_value, u"10170");
    EXPECT_EQ(system::MainFormHeight.default_value, u"6105");
    EXPECT_EQ(system::ReplySearchStringVal.default_value, u"1");
}

} // namespace
} // namespace ornavel::settings
