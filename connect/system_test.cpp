#include "connect/system_test.h"

#include "connect/session.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// Every statement stands alone: a report whose log can't be attached is still sent.
void send_system_report(Session& session) {
    const Store& store = session.platform.settings;
    host::SafeMailItem mail =
        host::SafeMailItem::around(session.platform.objects, session.host.oHostApp.create_mail());
    attempt([&] { mail.recipients().add(read(store, admin::EmailAddressNotify)).resolve(); });
    attempt([&] { mail.set_subject(u"System test - file report"); });
    attempt([&] { mail.set_html_body(u"Report sent from session startup"); });
    attempt([&] { mail.attachments().add(read(store, admin::ErrorFileLocation)); });
    mail.send();
}

} // namespace

void offer_system_test(Session& session) noexcept {
    Store& store = session.platform.settings;
    if (!is_on(store, system::SystemCheck)) return;
    attempt([&] {
        forms::Windows& windows = session.platform.windows;
        if (windows.ask(u"Ornavel System Test",
                        u"The System Test is set to ON, click Yes to leave it on, No to set it off."))
            return;
        save(store, system::SystemCheck, off);
        if (windows.ask_risky(u"Ornavel System Report", u"Send a system report to Brevant support?"))
            send_system_report(session);
    });
}

} // namespace ornavel::connect
