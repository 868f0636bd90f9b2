#include "tests/gallery/states.h"

#include "forms/form_user.h"
#include "programs/site_assistant/fields.h"
#include "tests/gallery/options_program.h"
#include "tests/programs/identity.h"

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

void with_identity(Stage& stage) { programs::save_identity(stage.store); }

/// Values as long as somebody may have them, in every box.
void with_long_identity(Stage& stage) {
    for (const Key& key : catalogue())
        if (key.name.starts_with(u"Sig") && key.kind == SettingKind::text)
            stage.set(key, u"Rechtsanwaltsgesellschaft Marlow, Hale, Venables and Sons, " + Text(key.name));
    stage.set(admin::SigEmail, u"josephine.margaret.sender-venables@marlow-hale-venables.example.com");
    stage.set(admin::SigWebsite, u"www.marlow-hale-venables.example.com/partners/josephine");
    stage.set(admin::HTMFilesPath, stage.folder.substr(0, stage.folder.size() - 1));
    stage.set(user::vCardPath, u"\\\\server\\share\\people\\" + Text(80, u'v') + u".vcf");
}

/// The stationery of the samples, where the package puts it.
void choose_samples(settings::Store& store) {
    save(store, admin::HTMFilesPath, u"C:\\Stationery\\Templates");
    save(store, admin::SignaturesPath, u"C:\\Stationery\\Signatures");
    save(store, user::Template, u"letterhead.htm");
    save(store, user::Signature, u"partner.htm");
}

void with_samples(Stage& stage) {
    with_identity(stage);
    choose_samples(stage.store);
}

void without_anything(Stage& stage) {
    for (const Key& key : catalogue()) stage.store.remove(key.section, key.name);
}

/// What a new user tells who has chosen from the samples.
void tell_all(Form& form) {
    settings::MemoryStore told;
    programs::save_identity(told);
    choose_samples(told);
    for (const programs::Field& field : programs::setup_fields())
        if (const auto value = told.find(field.key.section, field.key.name))
            programs::show_value(form, field, *value);
}

void clear_identity(Form& form) {
    FormUser(form).set_text(u"txtSigEmail", u"");
    FormUser(form).set_text(u"txtSigWebsite", u"");
}

void change_everything(Form& form) {
    for (forms::Control& control : form.controls())
        if (control.frame == u"fraYou" && control.kind == forms::ControlKind::text_box)
            control.text += u" and what else belongs to it, so that the line is long";
    form[u"txtSigEmail"].text = u"jo@example.org";
    form[u"txtSigWebsite"].text = u"www.example.org";
}

constexpr std::string_view foreign_file =
    "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Another Maker\\Another "
    "Program]\r\n\"Colour\"=\"red\"\r\n\r\n"
    "[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\Admin Settings]\r\n"
    "\"AutoPreview\"=\"True\"\r\n\"HTM Files Path\"=\"\\\\\\\\server\\\\stationery\\\\templates\"\r\n"
    "\"Invented\"=\"x\"\r\n";

void look_at_a_path(Form& form) { FormUser(form).set_text(u"txtSearch", admin::ErrorFileLocation.name); }
void look_at_a_choice(Form& form) { FormUser(form).set_text(u"txtSearch", user::SettingButtonBar.name); }

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
    {u"setup-you", [](Stage& stage) { with_identity(stage), stage.show_setup(0); }},
    {u"setup-you-long", [](Stage& stage) { with_long_identity(stage), stage.show_setup(0); }},
    {u"setup-you-warned", [](Stage& stage) { with_identity(stage), stage.show_setup(1, clear_identity); }},
    {u"setup-French-long",
     [](Stage& stage) {
         with_long_identity(stage);
         stage.show_setup(1);
     }},
    {u"setup-letterhead", [](Stage& stage) { with_identity(stage), stage.show_setup(1); }},
    {u"setup-letterhead-long-names",
     [](Stage& stage) {
         with_identity(stage);
         stage.write(long_name, "x");
         stage.set(user::Template, long_name);
         stage.set(user::Signature, long_name);
         stage.show_setup(2);
     }},
    {u"setup-letterhead-warned",
     [](Stage& stage) {
         with_identity(stage);
         stage.write(long_name, "<img src='C:\\" + std::string(80, 'p') + ".gif'>");
         stage.set(user::Template, long_name);
         stage.set(user::Signature, long_name);
         stage.show_setup(2);
     }},
    {u"setup-letterhead-samples", [](Stage& stage) { with_samples(stage), stage.show_setup(1); }},
    {u"setup-sending", [](Stage& stage) { with_identity(stage), stage.show_setup(2); }},
    {u"setup-sending-own-signature",
     [](Stage& stage) {
         with_identity(stage);
         stage.set(user::SettingButtonBar, u"eSignature");
         stage.set(user::vCardPath, u"C:\\people\\" + Text(120, u'v') + u".vcf");
         stage.show_setup(2);
     }},
    {u"setup-ready", [](Stage& stage) { with_identity(stage), stage.show_setup(3); }},
    {u"setup-ready-new-user", [](Stage& stage) { without_anything(stage), stage.show_setup(3, tell_all); }},
    {u"setup-ready-long", [](Stage& stage) { with_identity(stage), stage.show_setup(3, change_everything); }},
    {u"many-empty", [](Stage& stage) { stage.show_send_to_many({}); }},
    {u"many",
     [](Stage& stage) {
         stage.show_send_to_many(
             u"Name,E-mail,Town\r\nAnn,ann@example.com,Leeds\r\nBen,ben@example.com,York\r\n"
             u"Cy,nobody,Hull\r\nAnn,ANN@example.com,Leeds\r\n");
     }},
    {u"many-long",
     [](Stage& stage) {
         Text list = u"Name,E-mail,Town\r\n";
         for (int i = 0; i < 300; ++i)
             list += Text(60, u'n') + u"," + Text(50, u'a') + to_text(i) + u"@example.com," + Text(40, u't') +
                     u"\r\n" + Text(80, u'x') + u"\r\n";
         stage.show_send_to_many(list);
     }},
    {u"page", [](Stage& stage) { with_identity(stage), show_page(stage); }},
    {u"page-modes", [](Stage& stage) { show_page(stage); }, u"cboMode"},
    {u"page-long-names",
     [](Stage& stage) {
         stage.write(long_name, "x");
         stage.set(user::Template, long_name);
         stage.set(user::Signature, long_name);
         stage.set(admin::AutoPreview, on);
         show_page(stage);
     }},
    {u"all-settings", [](Stage& stage) { show_options_program(stage); }},
    {u"all-settings-changed",
     [](Stage& stage) {
         with_kept_choices(stage);
         stage.set(admin::SigFullname, Text(300, u'w') + u"\r\nthe end");
         show_options_program(stage, [](Form& form) { FormUser(form).select(u"lstGroups", 0); });
     }},
    {u"all-settings-path", [](Stage& stage) { show_options_program(stage, look_at_a_path); }},
    {u"all-settings-choice", [](Stage& stage) { show_options_program(stage, look_at_a_choice); }},
    {u"all-settings-smallest",
     [](Stage& stage) {
         show_options_program(stage, [](Form& form) {
             look_at_a_path(form);
             form.take_place({0, 0, 0, 0});
         });
     }},
    {u"all-settings-import",
     [](Stage& stage) {
         stage.write(u"in.reg", foreign_file);
         show_options_program(stage, [](Form& form) { FormUser(form).click(u"cmdImport"); });
     }},
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
