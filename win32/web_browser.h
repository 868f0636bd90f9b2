#pragma once

#include "base/text.h"
#include "win32/browser_events.h"
#include "win32/browser_site.h"
#include "win32/connection.h"

#include <optional>

namespace ornavel::win32 {

/// The system's web browser control, in a window that it fills. It runs nothing that a page brings along:
/// scripts, Java, ActiveX and behaviours are off. Unless it follows links it shows what lies on this machine
/// only, and stays on its page.
class WebBrowser {
public:
    /// Throws Failure when the system has no such control.
    WebBrowser(HWND window, bool follows_links);
    ~WebBrowser();
    WebBrowser(const WebBrowser&) = delete;
    WebBrowser& operator=(const WebBrowser&) = delete;

    /// Shows a file or an address, anew when it is shown already. Throws Failure when the control can't.
    void show(TextView page);
    /// Takes the size that the window has now.
    void fill_window();

    bool has_keyboard() const;
    /// Offers the page a key. Whether the page has used it.
    bool takes_key(const MSG& message);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM pointer);
    void do_verb(LONG verb);
    void take_keyboard();

    HWND window_;
    ComPtr<BrowserSite> site_;
    ComPtr<BrowserEvents> events_;
    ComPtr<IOleObject> control_;
    std::optional<Connection> connection_; ///< of the events, where the control has them
    WNDPROC window_procedure_ = nullptr;   ///< the window's own
};

} // namespace ornavel::win32
