// What the send-options form shows when it opens.
#include "forms/BrevantUser.h"

#include "compose/insertions.h"
#include "forms/BrevantUser_design.h"
#include "forms/BrevantUser_traps.h"
#include "forms/option_words.h"

namespace ornavel::forms {

using namespace settings;
using namespace send_options_design;

namespace {

bool is_html_file(TextView file) { return lower_case(file).ends_with(u".htm"); }

/// The preview's work file is never offered.
bool is_template(TextView file) { return is_html_file(file) && !lower_case(file).ends_with(u"_merge.htm"); }

} // namespace

/// One that can't be read keeps the others from nothing.
void BrevantUser::load_item_options() {
    const host::MailItem& item = needs_.item;
    Control& importance = form_[u"cboImportance"];
    Control& sensitivity = form_[u"cboSensitivity"];
    importance.items = {u"Normal", u"Low", u"High"};
    sensitivity.items = {u"Normal", u"Private", u"Personal", u"Confidential"};
    trap(errors(), load_traps::importance,
         [&] { importance.choose(importance_to_text(item.importance(), needs_.language).value_or(Text())); });
    trap(errors(), load_traps::sensitivity, [&] {
        sensitivity.choose(sensitivity_to_text(item.sensitivity(), needs_.language).value_or(Text()));
    });
    trap(errors(), load_traps::delivery,
         [&] { form_[u"chkRequestDeliveryReceipt"].ticked = item.delivery_report_requested(); });
    trap(errors(), load_traps::receipt,
         [&] { form_[u"chkRequestReadReceipt"].ticked = item.read_receipt_requested(); });
}

void BrevantUser::load_layout() {
    // As a text: no other spelling of the number counts.
    const auto height = settings().find(system::MainFormHeight.section, system::MainFormHeight.name);
    if (height.value_or(Text(system::MainFormHeight.default_value)) != to_text(shown))
        return show_layout(folded);
    if (is_on(settings(), admin::ShowLogoMainForm)) return show_logo();
    show_layout(shown);
}

void BrevantUser::load_defaults() {
    form_[u"cboImportance"].choose(read(settings(), user::Importance));
    form_[u"cboSensitivity"].choose(read(settings(), user::Sensitivity));
    form_[u"chkRequestDeliveryReceipt"].ticked = is_ticked(settings(), user::Delivery);
    form_[u"chkRequestReadReceipt"].ticked = is_ticked(settings(), user::Receipt);
    form_[u"chkInternal"].ticked = is_ticked(settings(), admin::SkipInternal);
    form_[u"chkUpdateCategories"].ticked = is_ticked(settings(), user::Categories);
    form_[u"txtCategories"].text = read(settings(), user::CategoryVal);
    form_[u"chkFollowUp"].ticked = is_ticked(settings(), user::FollowUp);
    form_[u"txtFollowUpFlag"].text = read(settings(), user::FollowUpVal);
}

void BrevantUser::load_tips_box() {
    Control& switch_box = form_[u"chkShowMessage"];
    switch_box.enabled = !is_on(settings(), admin::ShowMessageBoxAdminOnly);
    switch_box.ticked = true;
    if (!switch_box.enabled) return;
    // Any value but "0" shows them.
    const auto value = settings().find(user::ShowMessageBox.section, user::ShowMessageBox.name);
    switch_box.ticked = value != u"0";
    form_[u"txtHeader"].visible = switch_box.ticked;
}

void BrevantUser::list_files() {
    Control& templates = form_[u"cboTemplates"];
    Control& signatures = form_[u"cboSignature"];
    const Files& files = needs_.composing.files;
    for (Text& file : files.list(read(settings(), admin::HTMFilesPath)))
        if (is_template(file)) templates.items.push_back(std::move(file));
    signatures.items.push_back(u"none");
    for (Text& file : files.list(read(settings(), admin::SignaturesPath)))
        if (is_html_file(file)) signatures.items.push_back(std::move(file));
    templates.choose(Text(templates.text));
    signatures.choose(Text(signatures.text));
}

/// The caption of one's own is read only here: without a vCard the form keeps the built-in one, deliberately.
void BrevantUser::load_vcards() {
    Control& box = form_[u"chkvCard"];
    if (read(settings(), user::vCard).empty()) {
        box.visible = false;
        return close_ranks_without_vcard(form_);
    }
    internet_path_ = read(settings(), user::InternetPath);
    form_.properties.caption = read(settings(), admin::ProFormCaption);
    list_vcards();
    form_[u"cbovCard"].choose(read(settings(), user::vCardSelected));
    form_[u"cbovCardPath"].select(form_[u"cbovCard"].index);
    const bool offered = is_on(settings(), user::SendvCard);
    box.ticked = offered && is_on(settings(), admin::SendvCardAlways);
    form_[u"cbovCard"].visible = offered;
}

void BrevantUser::show_next_tip() {
    const compose::Services& composing = needs_.composing;
    Text text;
    if (is_on(settings(), user::ShowNextAppointmentTips))
        text = compose::next_appointment(composing.application, composing.clock, errors());
    const Text tip = compose::next_tip(settings(), composing.files, errors());
    if (!text.empty() && !tip.empty()) text += line_end;
    form_[u"txtHeader"].text = text + tip;
}

} // namespace ornavel::forms
