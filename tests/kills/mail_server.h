#pragma once

#include "host/object.h"

#include <memory>

namespace ornavel::kills {

/// For as long as it lives, other programs that ask for the mail client get one of these objects, by COM,
/// while this thread hands out its messages.
class MailServer {
public:
    explicit MailServer(host::Objects& client);
    ~MailServer();
    MailServer(const MailServer&) = delete;
    MailServer& operator=(const MailServer&) = delete;

private:
    unsigned long cookie_ = 0;
};

} // namespace ornavel::kills
