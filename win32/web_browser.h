#pragma once

#include "base/text.h"

#include <windows.h>

#include <memory>

namespace ornavel::win32 {

class BrowserSite;

/// The system's web browser control, in a window that it fills. It runs nothing that a page brings along:
/// scripts, Java, ActiveX and behaviours are off.
class WebBrowser {
public:
    /// Throws Failure when the system has no such control.
    explicit WebBrowser(HWND window);
    ~WebBrowser();
    WebBrowser(const WebBrowser&) = delete;
    WebBrowser& operator=(const WebBrowser&) = delete;

    /// Shows a file or an address, anew when it is shown already. Throws Failure when the control can't.
    void show(TextView page);
    /// Takes the size that the window has now.
    void fill_window();

private:
    std::unique_ptr<BrowserSite, void (*)(BrowserSite*)> site_;
};

} // namespace ornavel::win32
