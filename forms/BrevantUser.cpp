#include "forms/BrevantUser.h"

#include "forms/BrevantUser_design.h"
#include "forms/captions.h"
#include "forms/screen_place.h"

namespace ornavel::forms {

using namespace settings;
using namespace send_options_design;

BrevantUser::BrevantUser(Needs needs, bool& dialog_answer)
    : needs_(std::move(needs)), dialog_answer_(dialog_answer),
      form_({.name = u"BrevantUser", .place = {0, 0, width, shown}, .tag = to_text(text_ids::send_options)},
            controls()) {
    form_.keeps_size = true; // its heights are saved, and others set them
    form_.on_load = [this] { Form_Load(); };
    form_.on_unload = [this] { Form_Unload(); };
    wire();
}

void BrevantUser::wire() {
    form_.on(u"cmdOkToSend", Event::click, [this] { cmdOkToSend_Click(); });
    form_.on(u"cmdSendAsIs", Event::click, [this] { cmdSendAsIs_Click(); });
    form_.on(u"cmdPreview", Event::click, [this] { cmdPreview_Click(); });
    form_.on(u"cmdOptions", Event::click, [this] { cmdOptions_Click(); });
    form_.on(u"cmdHelp", Event::click, [this] { cmdHelp_Click(); });
    form_.on(u"cmdCancel", Event::click, [this] { cmdCancel_Click(); });
    form_.on(u"chkvCard", Event::click, [this] { chkvCard_Click(); });
    form_.on(u"cbovCard", Event::click, [this] { cbovCard_Click(); });
    form_.on(u"chkShowMessage", Event::click, [this] { chkShowMessage_Click(); });
    form_.on(u"txtHeader", Event::double_click, [this] { txtHeader_DblClick(); });
    // What the user chooses here counts from now on, whatever a preview chose before.
    for (const Event event : {Event::click, Event::change}) {
        form_.on(u"cboTemplates", event, [this] { template_from_settings_ = false; });
        form_.on(u"cboSignature", event, [this] { signature_from_settings_ = false; });
    }
}

void BrevantUser::Form_Load() {
    load_captions(form_, needs_.strings);
    preview_in_window_ = is_on(settings(), system::WebBrowserControlOK);
    form_.topmost = is_on(settings(), user::WipeoutFormFocus);
    proceed_ = vcard_chosen_ = template_from_settings_ = signature_from_settings_ = false;
    load_item_options();
    form_[u"chkDefault"].ticked = is_ticked(settings(), user::Default);
    form_[u"cboSignature"].text = read(settings(), user::Signature);
    form_[u"cboTemplates"].text = read(settings(), user::Template);
    if (form_[u"chkDefault"].ticked) {
        load_layout();
        load_defaults();
    }
    load_tips_box();
    list_files();
    load_vcards();
    show_next_tip();
}

/// At every unload, whatever the button: deliberate.
void BrevantUser::Form_Unload() {
    dialog_answer_ = proceed_;
    save(settings(), user::Template, form_[u"cboTemplates"].text);
}

void BrevantUser::cmdSendAsIs_Click() {
    dialog_answer_ = proceed_ = true;
    form_.unload();
}

void BrevantUser::cmdCancel_Click() {
    dialog_answer_ = proceed_ = false;
    save_height();
    attempt([this] {
        if (preview_browser_) preview_browser_.quit();
    });
    form_.unload();
}

void BrevantUser::cmdOptions_Click() {
    const bool folds = form_.properties.place.height > folded;
    if (folds)
        show_layout(folded);
    else if (is_on(settings(), admin::ShowLogoMainForm))
        show_logo();
    else
        show_layout(shown);
    form_.properties.place = centred(form_.properties.place, form_.screen);
}

/// What is folded away is out of the keyboard's reach as well.
void BrevantUser::show_layout(int height) {
    form_.properties.place.height = height;
    form_[u"frmOutlookOptions"].visible = height > folded;
    form_[u"imgLogo"].visible = height == shown_with_logo;
}

/// A folder that is not set, or a picture that is missing, leaves the strip empty.
void BrevantUser::show_logo() {
    show_layout(shown_with_logo);
    const Text folder = read(settings(), admin::WizardLogo);
    if (folder.empty()) return;
    for (const TextView name : {u"logo.gif", u"logo.jpg", u"logo.bmp"}) {
        const Text path = folder + u"\\" + Text(name);
        if (!needs_.composing.files.file_exists(path)) continue;
        form_[u"imgLogo"].picture = path;
        return;
    }
}

void BrevantUser::chkShowMessage_Click() { form_[u"txtHeader"].visible = form_[u"chkShowMessage"].ticked; }

void BrevantUser::txtHeader_DblClick() { show_next_tip(); }

} // namespace ornavel::forms
