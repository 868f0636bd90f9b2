// The vCard of the send-options form.
#include "forms/BrevantUser.h"

namespace ornavel::forms {

using namespace settings;

void BrevantUser::list_vcards() {
    form_[u"cbovCard"].items = split(read(settings(), user::vCard), u";");
    form_[u"cbovCardPath"].items = split(read(settings(), user::vCardPath), u";");
}

void BrevantUser::chkvCard_Click() {
    const bool ticked = form_[u"chkvCard"].ticked;
    form_[u"cbovCard"].visible = ticked;
    save(settings(), user::SendvCard, ticked ? on : off);
    if (!ticked) return;
    list_vcards();
    form_[u"cbovCard"].select(0);
    save_selected_vcard();
}

void BrevantUser::cbovCard_Click() { save_selected_vcard(); }

/// A name without a file of its own stands for none.
void BrevantUser::save_selected_vcard() {
    Control& files = form_[u"cbovCardPath"];
    files.select(form_[u"cbovCard"].index);
    save(settings(), user::vCardSelected, form_[u"cbovCard"].text);
    save(settings(), user::vCardPathSelected, files.text);
}

} // namespace ornavel::forms
