#pragma once

#include "host/view.h"

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

} // namespace ornavel::host
