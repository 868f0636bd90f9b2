#pragma once

#include "base/clock.h"
#include "compose/usage_log.h"
#include "programs/mass_mailer/letters.h"

namespace ornavel::mass_mailer {

/// The rows of the usage log that a run leaves, where an administrator wants them: one for each message.
class Usage {
public:
    struct Needs {
        const settings::Store& settings;
        host::Objects& objects;
        const Clock& clock;
        MailClient& mail_client;
        ErrorSink& errors;
    };
    explicit Usage(Needs needs) : needs_(needs), log_(compose::Get_Marketing_Info(needs.settings)) {}

    /// The message has left, whether or not its row can be written: what fails is logged.
    void note(const Text& address) noexcept;

private:
    Needs needs_;
    compose::UsageLog log_;
    Text sender_;
};

} // namespace ornavel::mass_mailer
