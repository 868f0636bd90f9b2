#pragma once

#include "host/mapi.h"

namespace ornavel::host {

/// A button that the add-in puts on a toolbar.
class CommandBarButton : public ViewOf<u"CommandBarButton"> {
public:
    using ViewOf::ViewOf;
    Text caption() const { return as_text(get({u"Caption"})); }
    void set_caption(TextView caption) const { put({u"Caption"}, Text(caption)); }
    void set_tag(TextView tag) const { put({u"Tag"}, Text(tag)); }
    /// Shows the caption alone.
    void show_caption() const;
    /// Shows one of the host's own pictures beside the caption.
    void show_face_and_caption(int face) const;
    void remove() const { call({u"Delete"}); }
    Subscription on_click(std::function<void()> handler) const;
};

class CommandBar : public ViewOf<u"CommandBar"> {
public:
    using ViewOf::ViewOf;
    /// A new button that goes when the host closes.
    CommandBarButton add_temporary_button() const;
    /// The button with this tag, or one that holds nothing.
    CommandBarButton find_button(TextView tag) const;
};

class CommandBars : public ViewOf<u"CommandBars"> {
public:
    using ViewOf::ViewOf;
    CommandBar item(TextView name) const { return CommandBar(as_object(get({u"Item"}, {Text(name)}))); }
};

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
    /// Holds nothing when no explorer window is open.
    Explorer active_explorer() const { return Explorer(as_object_or_nothing(call({u"ActiveExplorer"}))); }
    MailItem create_mail() const;
    Namespace mapi() const;
    Subscription on_events(ApplicationEvents events) const;
};

} // namespace ornavel::host
