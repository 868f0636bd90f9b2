#pragma once

#include "host/view.h"

namespace ornavel::host {

/// A web browser: the control inside a window, or a program of its own.
class Browser : public ViewOf<u"WebBrowser"> {
public:
    using ViewOf::ViewOf;
    /// Shows a file or an address.
    void navigate(TextView page) const { call({u"Navigate"}, {Text(page)}); }
};

} // namespace ornavel::host
