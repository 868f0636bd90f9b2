#include "win32/tool_tips.h"

#include "win32/wide.h"

#include <commctrl.h>
#include <vector>

namespace ornavel::win32 {
namespace {

constexpr int widest_tip = 320, dots_of_usual_screen = 96;

int widest_tip_here() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return MulDiv(widest_tip, dots, dots_of_usual_screen);
}

/// The control itself, and the box within a combo box.
std::vector<HWND> parts_of(HWND control) {
    std::vector<HWND> parts{control};
    if (const HWND child = GetWindow(control, GW_CHILD)) parts.push_back(child);
    return parts;
}

} // namespace

/// A tool is a window, or the place of one.
struct ToolTips::Tool {
    HWND window;
    const RECT* place;
    TextView tip;
};

ToolTips::ToolTips(HWND owner) : owner_(owner) {
    InitCommonControls();
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
    SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, widest_tip_here());
}

void ToolTips::add(HWND control) {
    constexpr RECT nowhere{};
    for (const HWND part : parts_of(control)) send(TTM_ADDTOOLW, {part, nullptr, u""});
    send(TTM_ADDTOOLW, {control, &nowhere, u""});
}

void ToolTips::set(HWND control, TextView tip) {
    for (const HWND part : parts_of(control)) send(TTM_UPDATETIPTEXTW, {part, nullptr, tip});
}

void ToolTips::set_for_place(HWND control, const RECT& place, TextView tip) {
    send(TTM_NEWTOOLRECTW, {control, &place, tip});
    send(TTM_UPDATETIPTEXTW, {control, &place, tip});
}

void ToolTips::send(UINT message, const Tool& wanted) {
    std::wstring text = wide(wanted.tip);
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE; // the size that the oldest common controls know
    tool.uFlags = TTF_SUBCLASS | (wanted.place ? 0 : TTF_IDISHWND);
    tool.hwnd = owner_;
    tool.uId = wanted.place ? static_cast<UINT_PTR>(GetDlgCtrlID(wanted.window))
                            : reinterpret_cast<UINT_PTR>(wanted.window);
    if (wanted.place) tool.rect = *wanted.place;
    tool.lpszText = text.data();
    SendMessageW(tips_, message, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace ornavel::win32
