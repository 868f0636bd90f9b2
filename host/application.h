#pragma once

#include "host/command_bars.h"
#include "host/mapi.h"
#include "host/message_window.h"

namespace ornavel::host {

/// A window that shows folders.
class Explorer : public ViewOf<u"Explorer"> {
public:
    using ViewOf::ViewOf;
    CommandBars command_bars() const { return CommandBars(as_object(get({u"CommandBars"}))); }
    Subscription on_close(std::function<void()> handler) const;
};

/// The windows that show folders. One that closes counts until its Close event has ended.
class Explorers : public ViewOf<u"Explorers"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Counts from 1.
    Explorer item(int index) const {
        return Explorer(as_object(call({u"Item"}, {static_cast<std::int32_t>(index)})));
    }
    Subscription on_new(std::function<void(Explorer explorer)> handler) const;
};

/// The pages of the host's Options dialog.
class PropertyPages : public ViewOf<u"PropertyPages"> {
public:
    using ViewOf::ViewOf;
    void add(const ObjectPtr& page, TextView title) const { call({u"Add"}, {page, Text(title)}); }
};

/// The dialog around a page.
class PropertyPageSite : public ViewOf<u"PropertyPageSite"> {
public:
    using ViewOf::ViewOf;
    void on_status_change() const { call({u"OnStatusChange"}); }
};

/// The page that the add-in adds to the Options dialog.
ObjectPtr create_options_page(Objects& objects);

/// What the application tells its add-ins. Handlers never throw.
struct ApplicationEvents {
    std::function<void(MailItem item, bool& cancel)> item_send;
    std::function<void(PropertyPages pages)> options_pages_add;
};

class Application : public ViewOf<u"Application"> {
public:
    using ViewOf::ViewOf;
    Text version() const { return as_text(get({u"Version"})); }
    Explorers explorers() const { return Explorers(as_object(get({u"Explorers"}))); }
    MessageWindows message_windows() const { return MessageWindows(as_object(get({u"Inspectors"}))); }
    /// Holds nothing when no explorer window is open.
    Explorer active_explorer() const { return Explorer(as_object_or_nothing(call({u"ActiveExplorer"}))); }
    MailItem create_mail() const;
    Namespace mapi() const;
    Subscription on_events(ApplicationEvents events) const;
};

/// The mail client that runs, or that is started for it. Throws Error where there is none.
Application find_application(Objects& objects);

} // namespace ornavel::host
