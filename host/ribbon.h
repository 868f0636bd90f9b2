#pragma once

#include "host/view.h"

namespace ornavel::host {

/// The ribbon of one kind of window, as the mail client hands it to those who customize it: IRibbonUI.
class RibbonUI : public ViewOf<u"RibbonUI"> {
public:
    using ViewOf::ViewOf;
    /// Has every control that was added ask again for what it shows, before it is drawn the next time.
    void invalidate() const { call({u"Invalidate"}); }
};

/// A control of the ribbon, as its callbacks are given it: IRibbonControl.
class RibbonControl : public ViewOf<u"RibbonControl"> {
public:
    using ViewOf::ViewOf;
    Text id() const { return as_text(get({u"Id"})); }
    Text tag() const { return as_text(get({u"Tag"})); }
    /// The window that the control is shown in: an explorer or a message's window.
    ObjectPtr context() const { return as_object(get({u"Context"})); }
};

} // namespace ornavel::host
