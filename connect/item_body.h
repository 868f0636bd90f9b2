#pragma once

#include "host/mail_item.h"

#include <optional>
#include <utility>

namespace ornavel::connect {

/// An item's HTML body, read once for all who only look at it. Whoever takes it leaves nothing behind: a
/// window may be open before the next one asks.
class ItemBody {
public:
    const Text& of(const host::MailItem& item) {
        if (!html_) html_ = item.html_body();
        return *html_;
    }
    Text take(const host::MailItem& item) {
        of(item);
        return *std::exchange(html_, std::nullopt);
    }

private:
    std::optional<Text> html_;
};

} // namespace ornavel::connect
