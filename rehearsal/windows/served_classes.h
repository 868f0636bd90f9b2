#pragma once

#include "rehearsal/model/mail_client.h"
#include "rehearsal/windows/dispatch_server.h"

namespace ornavel::rehearsal {

/// The classes that the stand-in mail client has and no test machine: for as long as this is kept, their
/// programmatic identifiers lead to it. One that the scenario leaves out leads nowhere.
class ServedClasses {
public:
    ServedClasses(MailClient& client, const std::shared_ptr<Subscriptions>& subscriptions);
    ~ServedClasses();
    ServedClasses(const ServedClasses&) = delete;
    ServedClasses& operator=(const ServedClasses&) = delete;

private:
    struct Taken {
        Text key;
        std::optional<Text> class_before;
        DWORD cookie;
    };
    std::vector<Taken> taken_;
};

} // namespace ornavel::rehearsal
