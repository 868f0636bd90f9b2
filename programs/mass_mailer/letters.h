#pragma once

#include "host/application.h"

namespace ornavel::mass_mailer {

/// A message to one person.
struct Letter {
    Text address, subject, page;
};

/// The mail client, found when the first message is made.
class MailClient {
public:
    /// safely: each message is touched and sent through the wrapper that the mail client asks no questions
    /// about.
    MailClient(host::Objects& objects, bool safely) : objects_(objects), safely_(safely) {}

    /// A message of the mail client's own, all but sent. Throws host::Error.
    host::MailItem made(const Letter& letter);
    /// The mail client itself. Throws host::Error where there is none.
    const host::Application& application();
    /// The next message looks for the mail client again.
    void forget() { application_.release(); }

private:
    host::Objects& objects_;
    bool safely_;
    host::Application application_;
};

/// Whether the mail client itself refused, so that the message has not left. Otherwise the answer was lost on
/// its way, and nobody knows.
bool is_refusal(const host::Error& error);

} // namespace ornavel::mass_mailer
