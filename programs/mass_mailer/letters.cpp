#include "programs/mass_mailer/letters.h"

#include "host/stamps.h"

namespace ornavel::mass_mailer {

const host::Application& MailClient::application() {
    if (!application_) application_ = host::find_application(objects_);
    return application_;
}

host::MailItem MailClient::made(const Letter& letter) {
    host::MailItem item = application().create_mail();
    if (safely_) item = host::SafeMailItem::around(objects_, item);
    item.set_to(letter.address);
    item.set_subject(letter.subject);
    item.set_html_body(letter.page);
    item.set_billing_information(host::stamps::preview_send);
    return item;
}

bool is_refusal(const host::Error& error) {
    // Errors of the way between two programs, and of Windows' remote calls.
    constexpr std::uint32_t of_calls = 1, of_windows = 7;
    const auto facility = static_cast<std::uint32_t>(error.code()) >> 16 & 0x1FFF;
    return facility != of_calls && facility != of_windows;
}

} // namespace ornavel::mass_mailer
