#include "win32/web_browser.h"

#include <gtest/gtest.h>

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
    WebBrowser browser(window, false);
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
        WebBrowser browser(window, false);
        EXPECT_NO_THROW(browser.show(u"about:blank"));
    }
    EXPECT_EQ(control(), nullptr);
}

} // namespace
} // namespace ornavel::win32
