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

/// A web browser in a program of its own, which outlives this view unless it is told to quit.
class SeparateBrowser : public ViewOf<u"InternetExplorer"> {
public:
    using ViewOf::ViewOf;
    static SeparateBrowser create(Objects& objects) {
        return SeparateBrowser(objects.create(u"InternetExplorer.Application"));
    }
    void navigate(TextView page) const { call({u"Navigate"}, {Text(page)}); }
    void show_address_bar(bool shown) const { put({u"AddressBar"}, shown); }
    void fill_screen(bool filled) const { put({u"FullScreen"}, filled); }
    void show_status_bar(bool shown) const { put({u"StatusBar"}, shown); }
    void be_theater(bool theater) const { put({u"TheaterMode"}, theater); }
    void show(bool shown) const { put({u"Visible"}, shown); }
    int window() const { return as_number(get({u"hWnd"})); }
    void quit() const { call({u"Quit"}); }
};

} // namespace ornavel::host
