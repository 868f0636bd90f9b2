#include "win32/tool_tips.h"

#include "win32/wide.h"

#include <commctrl.h>

namespace ornavel::win32 {
namespace {

constexpr LPARAM widest_tip = 320;

} // namespace

ToolTips::ToolTips(HWND owner) : owner_(owner) {
    InitCommonControls();
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
    SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, widest_tip);
}

void ToolTips::add(HWND control) {
    for (HWND part = control; part; part = part == control ? GetWindow(control, GW_CHILD) : nullptr)
        send(TTM_ADDTOOLW, part, u"");
}

void ToolTips::set(HWND control, TextView tip) {
    for (HWND part = control; part; part = part == control ? GetWindow(control, GW_CHILD) : nullptr)
        send(TTM_UPDATETIPTEXTW, part, tip);
}

void ToolTips::send(UINT message, HWND control, TextView tip) {
    std::wstring text = wide(tip);
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE; // the size that the oldest common controls know
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = owner_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text.data();
    SendMessageW(tips_, message, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace ornavel::win32
