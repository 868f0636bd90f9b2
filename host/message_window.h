#pragma once

#include "host/command_bars.h"
#include "host/mail_item.h"

namespace ornavel::host {

/// What a message's window tells. Handlers never throw.
struct MessageWindowEvents {
    std::function<void()> activate;
    std::function<void()> close; ///< while the window still counts among the others
};

/// The window in which an item is read or written, with toolbars of its own: an inspector.
class MessageWindow : public ViewOf<u"Inspector"> {
public:
    using ViewOf::ViewOf;
    /// Not to be had before the window's first Activate: an editor that is another program brings its own
    /// late.
    CommandBars command_bars() const { return CommandBars(as_object(get({u"CommandBars"}))); }
    MailItem item() const { return MailItem(as_object(get({u"CurrentItem"}))); }
    Subscription on_events(MessageWindowEvents events) const;
};

/// The windows of items that are open.
class MessageWindows : public ViewOf<u"Inspectors"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Counts from 1.
    MessageWindow item(int index) const {
        return MessageWindow(as_object(call({u"Item"}, {static_cast<std::int32_t>(index)})));
    }
    Subscription on_new(std::function<void(MessageWindow window)> handler) const;
};

} // namespace ornavel::host
