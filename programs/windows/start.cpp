#include "programs/windows/start.h"

#include "win32/com_objects.h"
#include "win32/environment.h"
#include "win32/handle.h"
#include "win32/machine.h"
#include "win32/registry_store.h"
#include "win32/system_information.h"
#include "win32/this_module.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <objbase.h>

namespace ornavel::programs {
namespace {

/// What follows the program's own name in its command line.
Text arguments() {
    TextView line;
    const Text whole = win32::text_of(GetCommandLineW());
    line = whole;
    const bool quoted = line.starts_with(u'"');
    const auto end = line.find(quoted ? u'"' : u' ', quoted ? 1 : 0);
    return end == TextView::npos ? Text() : trim(line.substr(end + 1));
}

Text folder_of_program() {
    const Text path = win32::path_of(win32::this_module());
    return path.substr(0, path.find_last_of(u'\\'));
}

/// Empty where the environment does not tell it.
Text scratch_folder() {
    Text folder = win32::expanded(u"%TEMP%");
    return folder.starts_with(u'%') ? Text() : folder;
}

/// The main window of a program that runs already, or the box that stands in front of it.
bool bring_to_front(TextView title) {
    const HWND window = FindWindowW(L"#32770", win32::wide(title).c_str());
    if (!window) return false;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(GetLastActivePopup(window));
    return true;
}

/// Whether this is the only one of its kind in this session. Any other comes to the front; one that has no
/// window yet, or no longer, is given some time.
bool is_the_only_one(const win32::Handle& mutex, TextView title) {
    constexpr int tries = 50;
    constexpr DWORD milliseconds = 100;
    for (int i = 0; i < tries; ++i) {
        if (WaitForSingleObject(mutex.get(), i == 0 ? 0 : milliseconds) != WAIT_TIMEOUT) return true;
        if (bring_to_front(title)) return false;
    }
    return false;
}

int run_here(const Program& program) {
    win32::RegistryStore settings;
    win32::WindowsFiles files;
    const win32::SystemClock clock;
    win32::ShellLauncher launcher;
    win32::ComObjects objects;
    win32::DesktopWindows windows;
    const win32::WindowsInformation machine;
    win32::MessageWaiting waiting;
    return run(program, {.settings = settings,
                         .files = files,
                         .clock = clock,
                         .launcher = launcher,
                         .objects = objects,
                         .windows = windows,
                         .machine = machine,
                         .folder = folder_of_program(),
                         .user_folder = win32::user_folder(),
                         .scratch_folder = scratch_folder(),
                         .arguments = arguments(),
                         .waiting = &waiting});
}

} // namespace

int start(const Program& program) {
    const win32::Handle mutex(CreateMutexW(nullptr, FALSE, win32::wide(program.title).c_str()));
    if (mutex && !is_the_only_one(mutex, program.title)) return ended;
    CoInitialize(nullptr);
    int code = gave_up;
    attempt([&] { code = run_here(program); });
    CoUninitialize();
    return code;
}

} // namespace ornavel::programs
