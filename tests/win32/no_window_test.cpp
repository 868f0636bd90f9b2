#include "base/errors.h"
#include "tests/win32/form_stage.h"

namespace ornavel::win32 {
namespace {

std::wstring_view refused_class;

LRESULT CALLBACK refuse(int event, WPARAM word, LPARAM pointer) {
    if (event != HCBT_CREATEWND) return CallNextHookEx(nullptr, event, word, pointer);
    wchar_t name[32] = {};
    GetClassNameW(reinterpret_cast<HWND>(word), name, 32);
    return refused_class == name;
}

/// A system that has no windows of one class to give any more.
class NoWindow : public FormWindowTest {
protected:
    void TearDown() override { UnhookWindowsHookEx(hook_); }

    /// What the body throws.
    static Text failure_of(const std::function<void()>& body) {
        try {
            body();
        } catch (const Failure& failure) {
            return failure.description();
        }
        return u"nothing";
    }
    Text failure_of_form() {
        return failure_of([this] { DesktopWindows().show_modal(form); });
    }

private:
    HHOOK hook_ = SetWindowsHookExW(WH_CBT, refuse, nullptr, GetCurrentThreadId());
};

TEST_F(NoWindow, AFormThatCannotBeShownIsAFailureAndClosed) {
    refused_class = L"#32770";
    EXPECT_TRUE(contains(failure_of_form(), u"frmOrder: "));
    EXPECT_FALSE(form.is_loaded());
}

TEST_F(NoWindow, SoIsAFormWithAControlThatCannotBeShown) {
    const HWND explorer = make_window(L"the mail client");
    refused_class = L"ComboBox";
    EXPECT_TRUE(contains(failure_of_form(), u"cboSize: "));
    EXPECT_FALSE(form.is_loaded());
    EXPECT_EQ(open_window(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(explorer));
    DestroyWindow(explorer);
}

TEST_F(NoWindow, ABoxThatCannotBeShownIsAFailureAndNotANo) {
    refused_class = L"#32770";
    EXPECT_TRUE(contains(failure_of([] { DesktopWindows().ask(u"A question", u"?"); }), u"A question: "));
    EXPECT_TRUE(contains(failure_of([] { DesktopWindows().inform(u"A notice", u"!"); }), u"A notice: "));
}

} // namespace
} // namespace ornavel::win32
