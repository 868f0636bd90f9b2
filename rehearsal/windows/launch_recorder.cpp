#include "rehearsal/windows/launch_recorder.h"

#include "win32/wide.h"

#include <cstring>
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

struct Replacement {
    const char* function;
    void* by;
};

const Replacement replacements[] = {
    {"ShellExecuteW", reinterpret_cast<void*>(record_execute)},
    {"ShellExecuteExW", reinterpret_cast<void*>(record_execute_with_information)},
};

template <class Type>
Type* at(BYTE* base, DWORD offset) {
    return reinterpret_cast<Type*>(base + offset);
}

void replace(void** slot, void* by) {
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = by;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

/// Redirects what one library's part of the import table names.
void replace_in(BYTE* base, const IMAGE_IMPORT_DESCRIPTOR& library) {
    const auto* names = at<IMAGE_THUNK_DATA>(base, library.OriginalFirstThunk);
    auto* slots = at<void*>(base, library.FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots) {
        if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
        const auto* import = at<IMAGE_IMPORT_BY_NAME>(base, names->u1.AddressOfData);
        for (const auto& replacement : replacements)
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), replacement.function) == 0)
                replace(slots, replacement.by);
    }
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
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* headers =
        at<IMAGE_NT_HEADERS>(base, static_cast<DWORD>(at<IMAGE_DOS_HEADER>(base, 0)->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress);
    for (; library->Name; ++library) replace_in(base, *library);
}

void LaunchRecorder::record(TextView program, TextView arguments, int show_command) {
    launched_.push_back({{"program", to_json(recorded_program(program))},
                         {"arguments", to_json(arguments)},
                         {"window", state_name(show_command)}});
}

} // namespace ornavel::rehearsal
