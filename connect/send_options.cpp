#include "connect/send_options.h"

#include "connect/current_item.h"
#include "connect/replies.h"
#include "connect/scratch_files.h"
#include "forms/BrevantUser.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// From here on the current item is the wrapper, where there is one; without it the item itself serves.
void wrap_current_item(Session& session) {
    if (!is_on(session.platform.settings, admin::UseRedemption)) return;
    trap(session.errors, wrap_by_hand_trap, [&] {
        const auto wrapped = host::SafeMailItem::around(session.platform.objects, session.host.MyMessItem);
        wrapped.save();
        session.host.MyMessItem = wrapped;
    });
}

/// Whether the item is to be sent.
bool ask(Session& session, bool& vcard_chosen) {
    return trap(session.errors, send_options_trap, [&] {
        const host::MailItem& item = session.host.MyMessItem;
        forms::BrevantUser form({.composing = session.composing,
                                 .windows = session.platform.windows,
                                 .launcher = session.platform.launcher,
                                 .strings = session.platform.strings,
                                 .item = item,
                                 .page = preview_page(session),
                                 .program_folder = session.platform.addin_folder,
                                 .language = session.language,
                                 .find_reply = [&] { return find_reply(session, item); }},
                                session.dialog_answer);
        session.platform.windows.show_modal(form.form());
        vcard_chosen = form.vcard_chosen();
        session.sent_to_many |= form.sent_to_many();
    });
}

} // namespace

void attach_selected_vcard(const Store& store, const host::MailItem& item, bool chosen) {
    const Text path = read(store, user::vCardPathSelected);
    if (chosen && is_on(store, user::SendvCard) && !path.empty()) item.attachments().add(path);
}

void dress_by_hand(Session& session, const host::MailItem& item) noexcept {
    attempt([&] {
        const CurrentItem current(session, item);
        wrap_current_item(session);
        bool vcard_chosen = false;
        if (!ask(session, vcard_chosen) || !session.dialog_answer) return;
        trap(session.errors, vcard_trap, [&] {
            attach_selected_vcard(session.platform.settings, session.host.MyMessItem, vcard_chosen);
        });
        trap(session.errors, send_by_hand_trap, [&] { session.host.MyMessItem.send(); });
    });
}

} // namespace ornavel::connect
