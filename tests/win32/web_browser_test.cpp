#include "win32/web_browser.h"

#include "win32/browser_site.h"

#include <gtest/gtest.h>
#include <mshtmdid.h>
#include <olectl.h>

namespace ornavel::win32 {
namespace {

class WebBrowserControl : public ::testing::Test {
protected:
    WebBrowserControl() {
        window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr,
                                 nullptr, nullptr);
    }
    ~WebBrowserControl() override { DestroyWindow(window); }

    HWND control() const { return GetWindow(window, GW_CHILD); }
    SIZE size_of_control() const {
        RECT frame{};
        GetClientRect(control(), &frame);
        return {frame.right, frame.bottom};
    }

    HWND window;
};

TEST_F(WebBrowserControl, StandsInItsWindowAndFillsIt) {
    WebBrowser browser(window);
    ASSERT_NE(control(), nullptr);
    EXPECT_EQ(size_of_control().cx, 300);
    EXPECT_EQ(size_of_control().cy, 200);
    SetWindowPos(window, nullptr, 0, 0, 500, 400, SWP_NOZORDER | SWP_NOMOVE);
    browser.fill_window();
    EXPECT_EQ(size_of_control().cx, 500);
    EXPECT_EQ(size_of_control().cy, 400);
}

TEST_F(WebBrowserControl, TakesAPageAndLeavesItsWindowAtItsEnd) {
    {
        WebBrowser browser(window);
        EXPECT_NO_THROW(browser.show(u"about:blank"));
    }
    EXPECT_EQ(control(), nullptr);
}

TEST_F(WebBrowserControl, RunsNothingThatAPageBringsAlong) {
    auto* const site = new BrowserSite(window);
    VARIANT flags;
    VariantInit(&flags);
    EXPECT_EQ(site->Invoke(DISPID_AMBIENT_DLCONTROL, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, &flags,
                           nullptr, nullptr),
              S_OK);
    ASSERT_EQ(flags.vt, VT_I4);
    const LONG off = DLCTL_NO_SCRIPTS | DLCTL_NO_JAVA | DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_RUNACTIVEXCTLS |
                     DLCTL_NO_BEHAVIORS;
    EXPECT_EQ(flags.lVal & off, off);
    EXPECT_EQ(site->Invoke(DISPID_AMBIENT_USERMODE, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, &flags,
                           nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(site->Release(), 0u);
}

} // namespace
} // namespace ornavel::win32
