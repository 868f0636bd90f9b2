#include "rehearsal/windows/tray_watch.h"

#include "rehearsal/windows/import_table.h"
#include "win32/ansi_code_page.h"

namespace ornavel::rehearsal {
namespace {

TrayWatch* at_watch = nullptr;

/// The real icon comes and goes, too. Asked for by name: the module that is watched may be this one.
BOOL WINAPI note_icon(DWORD what, NOTIFYICONDATAA* icon) {
    if (at_watch) at_watch->note(what, *icon);
    const auto real = GetProcAddress(GetModuleHandleW(L"shell32.dll"), "Shell_NotifyIconA");
    return reinterpret_cast<decltype(&Shell_NotifyIconA)>(reinterpret_cast<void*>(real))(what, icon);
}

} // namespace

TrayWatch::TrayWatch() { at_watch = this; }
TrayWatch::~TrayWatch() { at_watch = nullptr; }

void TrayWatch::watch(HMODULE module) {
    redirect(module, "Shell_NotifyIconA", reinterpret_cast<void*>(note_icon));
}

void TrayWatch::note(DWORD what, const NOTIFYICONDATAA& icon) {
    if (what == NIM_DELETE) return record.remove();
    if (what != NIM_ADD) return;
    icon_ = icon;
    record.show(win32::ansi_code_page().decode(icon.szTip));
}

bool TrayWatch::send(int message) const {
    if (!record.shown) return false;
    SendMessageW(icon_.hWnd, icon_.uCallbackMessage, icon_.uID, message);
    return true;
}

} // namespace ornavel::rehearsal
