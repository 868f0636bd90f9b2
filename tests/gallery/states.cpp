#include "tests/gallery/states.h"

#include "forms/form_user.h"

namespace ornavel::gallery {
namespace {

using namespace settings;
using forms::Form;
using forms::FormUser;

const Text long_name = Text(196, u'n') + u".htm";

void with_vcard(Stage& stage) {
    stage.set(user::vCard, u"Jo Sender, Marlow & Hale;Jo at home");
    stage.set(user::vCardPath, u"a.vcf;b.vcf");
    stage.set(user::vCardSelected, u"Jo Sender, Marlow & Hale");
    stage.set(user::SendvCard, on);
    stage.set(admin::SendvCardAlways, on);
}

void with_kept_choices(Stage& stage) {
    stage.set(user::Default, u"1");
    stage.set(user::Importance, u"High");
    stage.set(user::Sensitivity, u"Confidential");
    stage.set(user::Categories, u"1");
    stage.set(user::CategoryVal, u"Sales, North, Spring fair");
    stage.set(user::FollowUp, u"1");
    stage.set(user::FollowUpVal, u"Call on Friday");
    stage.set(admin::SkipInternal, u"1");
}

/// A GIF of 2 by 1 pixels.
void with_logo(Stage& stage) {
    using namespace std::literals;
    with_kept_choices(stage);
    stage.set(admin::ShowLogoMainForm, on);
    stage.set(admin::WizardLogo, stage.folder.substr(0, stage.folder.size() - 1));
    stage.write(u"logo.bmp", "BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0"
                             "\0\0\0\0\x10\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                             "\0\0\xff\0\xff\0\0\0\xff\0\0\xff\xff\xff\0\0"s);
}

void fold(Form& form) { FormUser(form).click(u"cmdOptions"); }

void with_500_templates(Stage& stage) {
    for (int number = 0; number < 500; ++number)
        stage.write(u"template " + to_text(number) + u".htm", "[#Input your message here#]");
}

void with_everything(Stage& stage) {
    for (const Key& key : {Key(admin::ShowPreviewSelectButton), Key(admin::ShowPreviewOptionsButton),
                           Key(admin::PreviewOptionsShow), Key(admin::ShowSendToMany),
                           Key(admin::MultipleSignatures), Key(admin::BrowserWarnPastedImages)})
        stage.set(key, on);
    stage.set(admin::Help, stage.folder + u"letter.htm");
    stage.set(user::SignatureList, u"Main signature;Sales;Support");
    stage.write(u"thanks.txt", "Thank you");
}

void show_attachment_names(forms::frmBrowser& preview) {
    Form& form = preview.form();
    form[u"lblAttachments"].visible = form[u"txtAttachments"].visible = true;
    form[u"txtAttachments"].text = u"Minutes of the annual meeting.doc; Accounts of the second quarter.xls";
    form[u"txtAttachments"].enabled = false;
}

constexpr State all[] = {
    {u"options", [](Stage& stage) { stage.show_options(); }},
    {u"options-folded", [](Stage& stage) { stage.show_options(fold); }},
    {u"options-vcard", [](Stage& stage) { with_vcard(stage), stage.show_options(); }},
    {u"options-vcard-folded", [](Stage& stage) { with_vcard(stage), stage.show_options(fold); }},
    {u"options-kept", [](Stage& stage) { with_kept_choices(stage), stage.show_options(); }},
    {u"options-logo", [](Stage& stage) { with_logo(stage), stage.show_options(); }},
    {u"options-logo-vcard", [](Stage& stage) { with_logo(stage), with_vcard(stage), stage.show_options(); }},
    {u"options-without-tips",
     [](Stage& stage) { stage.set(user::ShowMessageBox, u"0"), stage.show_options(); }},
    {u"options-French",
     [](Stage& stage) {
         stage.language = u"French";
         stage.host_item->values[u"Importance"] = std::int32_t{2};
         stage.host_item->values[u"Sensitivity"] = std::int32_t{1};
         stage.show_options();
     }},
    {u"options-long-names",
     [](Stage& stage) {
         stage.write(long_name, "x");
         stage.set(user::Template, long_name);
         stage.set(user::Signature, long_name);
         stage.show_options();
     }},
    {u"options-empty-folders",
     [](Stage& stage) {
         stage.set(admin::HTMFilesPath, u"C:\\none");
         stage.set(admin::SignaturesPath, u"C:\\none");
         stage.set(user::Template, u"");
         stage.show_options();
     }},
    {u"options-500-templates", [](Stage& stage) { with_500_templates(stage), stage.show_options(); },
     u"cboTemplates"},
    {u"preview", [](Stage& stage) { stage.show_preview(); }},
    {u"preview-everything",
     [](Stage& stage) { with_everything(stage), stage.show_preview(show_attachment_names); }},
    {u"preview-smallest",
     [](Stage& stage) {
         with_everything(stage);
         stage.set(user::BrowserWidth, u"0");
         stage.set(user::BrowserHeight, u"0");
         stage.show_preview(show_attachment_names);
     }},
    {u"preview-colours", [](Stage& stage) { stage.show_preview(); }, u"cboBGColourName"},
    {u"help", [](Stage& stage) { with_everything(stage), stage.show_help(); }},
    {u"prompt-reply", [](Stage& stage) { stage.show_prompt(u"Reply"); }},
    {u"prompt-template", [](Stage& stage) { stage.show_prompt(u"Auto-no Template"); }},
    {u"prompt-signature", [](Stage& stage) { stage.show_prompt(u"Auto-no signature"); }},
    {u"prompt-script", [](Stage& stage) { stage.show_prompt(u"Security warning"); }},
    {u"prompt-bad-template", [](Stage& stage) { stage.show_prompt(u"Bad Template"); }},
    {u"prompt-choose-template", [](Stage& stage) { stage.show_prompt(u"Choose Template"); }},
    {u"prompt-choose-signature", [](Stage& stage) { stage.show_prompt(u"Choose signature"); }},
    {u"prompt-format", [](Stage& stage) { stage.show_prompt(u"Format Warning"); }},
    {u"prompt-support", [](Stage& stage) { stage.show_prompt(u"Support email request"); }},
    {u"tray-menu", [](Stage& stage) { stage.set(admin::WipeoutHTML, on), stage.show_tray(); }},
    {u"tray-about", [](Stage& stage) { stage.show_tray(u"mnAbout"); }},
    {u"tray-system", [](Stage& stage) { stage.show_tray(u"mnSystemInfo"); }},
    {u"tray-signature", [](Stage& stage) { stage.show_tray(u"mnSignature"); }},
    {u"tray-toggle", [](Stage& stage) { stage.show_tray(u"mnFontControl"); }},
};

} // namespace

std::span<const State> states() { return all; }

} // namespace ornavel::gallery
