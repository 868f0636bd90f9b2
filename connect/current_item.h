#pragma once

#include "connect/session.h"

#include <utility>

namespace ornavel::connect {

/// Makes the item the current one. On every way out the outer send, where there is one, finds its own item
/// again, and the processed flag that it left: a send inside it may have been refused.
class CurrentItem {
public:
    CurrentItem(Session& session, const host::MailItem& item)
        : session_(session), outer_(std::exchange(session.host.MyMessItem, item)),
          processed_(session.processed) {}
    ~CurrentItem() {
        if (outer_) session_.processed = processed_;
        session_.host.MyMessItem = std::move(outer_);
    }
    CurrentItem(const CurrentItem&) = delete;
    CurrentItem& operator=(const CurrentItem&) = delete;

private:
    Session& session_;
    host::MailItem outer_;
    bool processed_;
};

} // namespace ornavel::connect
