// Sending from the send-options form: checks, the item's options, its body, and what is saved.
#include "forms/BrevantUser.h"

#include "compose/insertions.h"
#include "forms/BrevantUser_design.h"
#include "forms/BrevantUser_traps.h"
#include "forms/option_words.h"

namespace ornavel::forms {

using namespace settings;

/// The proceed flag comes before the checks, deliberately: a form that is closed after a send that stopped
/// there lets the message go without a template.
void BrevantUser::cmdOkToSend_Click() {
    proceed_ = true;
    bool valid = false;
    trap(errors(), send_traps::selection, [&] { valid = selection_is_valid(); });
    if (!valid) return;
    const host::MailItem& item = needs_.item;
    const auto ticked = [this](TextView box) { return form_[box].ticked; };
    const auto text = [this](TextView control) -> const Text& { return form_[control].text; };
    trap(errors(), send_traps::delivery,
         [&] { item.request_delivery_report(ticked(u"chkRequestDeliveryReceipt")); });
    trap(errors(), send_traps::receipt, [&] { item.request_read_receipt(ticked(u"chkRequestReadReceipt")); });
    trap(errors(), send_traps::importance,
         [&] { item.set_importance(importance_from_text(text(u"cboImportance"))); });
    trap(errors(), send_traps::sensitivity,
         [&] { item.set_sensitivity(sensitivity_from_text(text(u"cboSensitivity"))); });
    const bool dressed = dress(send_traps::body);
    trap(errors(), send_traps::categories, [&] {
        if (ticked(u"chkUpdateCategories") && !text(u"txtCategories").empty())
            item.set_categories(text(u"txtCategories"));
    });
    trap(errors(), send_traps::follow_up, [&] {
        if (ticked(u"chkFollowUp") && !text(u"txtFollowUpFlag").empty())
            item.set_flag_request(text(u"txtFollowUpFlag"));
    });
    save_choices(true);
    if (!dressed) {
        dialog_answer_ = false;
        return;
    }
    vcard_chosen_ = ticked(u"chkvCard");
    form_.unload();
}

/// Tells the user what is missing.
bool BrevantUser::selection_is_valid() {
    const auto tell = [this](TextView what) {
        needs_.windows.inform(u"Selection error", what);
        return false;
    };
    Control& templates = form_[u"cboTemplates"];
    const Files& files = needs_.composing.files;
    const Text folder = read(settings(), admin::HTMFilesPath);
    // Without a name the folder itself is asked for: it is there when it holds any file.
    const bool exists = templates.text.empty() ? !files.list(folder).empty()
                                               : files.file_exists(folder + u"\\" + templates.text);
    if (!exists) {
        templates.choose({});
        return tell(u"You have not chosen a valid Template. Please select one...");
    }
    if (templates.text.empty()) return tell(u"You have not chosen a Template. Please select one...");
    if (form_[u"cboSignature"].text.empty())
        return tell(u"You have not chosen a signature. Please select one...");
    return true;
}

/// Whether the item's body is the dressed one now; else it is untouched.
bool BrevantUser::dress(TrapName name) {
    bool dressed = false;
    trap(errors(), name, [&] {
        auto [outcome, html] = compose(preview_.boilerplate, compose::Purpose::send);
        if (outcome != compose::Outcome::composed) return;
        needs_.item.set_html_body(std::move(html));
        dressed = true;
    });
    return dressed;
}

compose::Composed BrevantUser::compose(TextView boilerplate, compose::Purpose purpose) {
    const compose::Services& composing = needs_.composing;
    compose::Reply reply = needs_.find_reply();
    Text source = needs_.item.html_body();
    if (source.empty()) source = needs_.item.body();
    compose::Request request{
        .item = needs_.item,
        .source = compose::boilerplate_text(settings(), composing.files, boilerplate, errors()) + source,
        .template_path = read(settings(), admin::HTMFilesPath) + u"\\" + trim(template_name()),
        .reply = std::move(reply),
        .purpose = purpose};
    if (!signature_from_settings_ && !preview_.selected) request.form_signature = form_[u"cboSignature"].text;
    return compose::CreateHTMLBody(composing, std::move(request));
}

Text BrevantUser::template_name() {
    if (template_from_settings_ || preview_.selected) return read(settings(), user::Template);
    return form_[u"cboTemplates"].text;
}

void BrevantUser::save_choices(bool with_template) {
    save(settings(), user::Signature, form_[u"cboSignature"].text);
    if (with_template) save(settings(), user::Template, form_[u"cboTemplates"].text);
    const bool keeps = form_[u"chkDefault"].ticked;
    save(settings(), user::Default, keeps ? u"1" : u"0");
    if (keeps) save_defaults();
}

void BrevantUser::save_defaults() {
    const auto save_tick = [this](const TickKey& key, TextView box) {
        save(settings(), key, form_[box].ticked ? u"1" : u"0");
    };
    const auto save_text = [this](const TextKey& key, TextView control) {
        save(settings(), key, form_[control].text);
    };
    save_text(user::Importance, u"cboImportance");
    save_text(user::Sensitivity, u"cboSensitivity");
    save_tick(user::Delivery, u"chkRequestDeliveryReceipt");
    save_tick(user::Receipt, u"chkRequestReadReceipt");
    save_tick(user::Categories, u"chkUpdateCategories");
    save_text(user::CategoryVal, u"txtCategories");
    save_tick(user::FollowUp, u"chkFollowUp");
    save_text(user::FollowUpVal, u"txtFollowUpFlag");
    save_height();
    save_tick(user::ShowMessageBox, u"chkShowMessage");
}

void BrevantUser::save_height() {
    const bool folded = form_.properties.place.height == send_options_design::folded;
    save(settings(), system::MainFormHeight,
         to_text(folded ? send_options_design::folded : send_options_design::shown));
}

std::vector<TrapName> send_options_traps() {
    return {load_traps::importance, load_traps::sensitivity, load_traps::delivery,
            load_traps::receipt,    send_traps::selection,   send_traps::delivery,
            send_traps::receipt,    send_traps::importance,  send_traps::sensitivity,
            send_traps::body,       send_traps::categories,  send_traps::follow_up,
            form_preview_trap,      attachments_trap,        help_trap};
}

} // namespace ornavel::forms
