#include "rehearsal/windows/launch_recorder.h"

#include "rehearsal/windows/import_table.h"
#include "win32/wide.h"

#include <shellapi.h>

namespace ornavel::rehearsal {
namespace {

LaunchRecorder* recorder = nullptr;

Text text_or_nothing(const wchar_t* text) { return text ? win32::text_of(text) : Text(); }

HINSTANCE WINAPI record_execute(HWND, LPCWSTR, LPCWSTR program, LPCWSTR arguments, LPCWSTR,
                                INT show_command) {
    constexpr INT_PTR started = 33;
    if (recorder) recorder->record(text_or_nothing(program), text_or_nothing(arguments), show_command);
    return reinterpret_cast<HINSTANCE>(started);
}

BOOL WINAPI record_execute_with_information(SHELLEXECUTEINFOW* information) {
    record_execute(nullptr, nullptr, information->lpFile, information->lpParameters, nullptr,
                   information->nShow);
    // A process that has ended: one that can be waited for at once.
    information->hProcess = CreateEventW(nullptr, TRUE, TRUE, nullptr);
    information->hInstApp = reinterpret_cast<HINSTANCE>(INT_PTR{33});
    return TRUE;
}

const char* state_name(int show_command) {
    if (show_command == SW_HIDE) return "hidden";
    const bool minimised =
        show_command == SW_SHOWMINIMIZED || show_command == SW_MINIMIZE || show_command == SW_SHOWMINNOACTIVE;
    return minimised ? "minimised" : "normal";
}

/// A Windows program is recorded without its folder, which is another on every machine.
TextView recorded_program(TextView program) {
    const TextView name = program.substr(program.find_last_of(u'\\') + 1);
    return same_name(name, u"regedit.exe") || same_name(name, u"regedit") ? name : program;
}

} // namespace

LaunchRecorder::LaunchRecorder() { recorder = this; }
LaunchRecorder::~LaunchRecorder() { recorder = nullptr; }

void LaunchRecorder::watch(HMODULE module) {
    redirect(module, "ShellExecuteW", reinterpret_cast<void*>(record_execute));
    redirect(module, "ShellExecuteExW", reinterpret_cast<void*>(record_execute_with_information));
}

void LaunchRecorder::record(TextView program, TextView arguments, int show_command) {
    launched_.push_back({{"program", to_json(recorded_program(program))},
                         {"arguments", to_json(arguments)},
                         {"window", state_name(show_command)}});
}

} // namespace ornavel::rehearsal
