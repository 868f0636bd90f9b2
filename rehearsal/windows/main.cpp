#include "rehearsal/outcome.h"
#include "rehearsal/windows/dll_add_in.h"
#include "rehearsal/windows/served_classes.h"
#include "rehearsal/windows/windows_machine.h"

#include "base/errors.h"
#include "win32/wide.h"

#include <csignal>
#include <cstdlib>
#include <objbase.h>

namespace ornavel::rehearsal {
namespace {

constexpr int exit_played = 0, exit_failed = 1, exit_unusable = 2;

/// What is left to do when the add-in crashes.
struct {
    Text out;
    WindowsMachine* machine = nullptr;
} at_play;

void write_out(const std::string& bytes) { win32::WindowsFiles().write(at_play.out, bytes); }

struct AtPlay {
    explicit AtPlay(WindowsMachine& machine) { at_play.machine = &machine; }
    ~AtPlay() { at_play.machine = nullptr; }
    AtPlay(const AtPlay&) = delete;
    AtPlay& operator=(const AtPlay&) = delete;
};

Json play(const Scenario& scenario, const std::string& source) {
    Failures failures(scenario.fail);
    Journal journal;
    WindowsMachine machine(scenario, source);
    const AtPlay current(machine);
    if (std::getenv("ORNAVEL_PICTURES")) machine.keep_pictures(at_play.out + u".window");
    machine.prepare(scenario);
    MailClient client(scenario, machine, failures, journal);
    const auto subscriptions = std::make_shared<Subscriptions>();
    const ServedClasses classes(client, subscriptions);
    const InstalledDll dll(scenario.computer.addin_folder);
    if (!can_be_created(scenario.host, u"BrevantPage.PropPage")) InstalledDll::forget_page();
    machine.watch(dll.module());
    const Snapshot before = machine.snapshot();
    DllAddIn addin(subscriptions, machine);
    Player player(scenario, source, client, machine, addin);
    player.play();
    return write_outcome(scenario, player, client, machine, before);
}

Json crash_outcome(const std::string& error) { return {{"error", error}}; }

/// Leaves the machine as it was, and says in the outcome how the add-in took the process along.
[[noreturn]] void end_with(const std::string& error) {
    if (at_play.machine) at_play.machine->put_back_registry();
    attempt([&] { write_out(to_json_text(crash_outcome(error))); });
    ExitProcess(exit_failed);
}

LONG WINAPI report_crash(EXCEPTION_POINTERS* crash) {
    const auto code = static_cast<std::uint32_t>(crash->ExceptionRecord->ExceptionCode);
    end_with("the add-in crashed (exception " + std::to_string(code) + ")");
}

void report_abort(int) { end_with("the add-in crashed (aborted)"); }

int rehearse(const std::string& in, const std::string& out) {
    at_play.out = from_utf8(out);
    try {
        const Scenario scenario = read_scenario(parse_json(load_file(in), in), in, Binding::wine);
        const Json outcome = play(scenario, in);
        write_out(to_json_text(outcome));
        return outcome.at("error").is_null() ? exit_played : exit_failed;
    } catch (const Unusable& error) {
        write_out(error.what());
        return exit_unusable;
    } catch (...) {
        write_out(to_json_text(crash_outcome(to_utf8(current_description()))));
        return exit_failed;
    }
}

/// Another add-in that is there first, as far as ours can tell: the library that the environment names.
bool neighbour_is_there() {
    const char* const library = std::getenv("ORNAVEL_NEIGHBOUR");
    return !library || LoadLibraryW(win32::wide(from_utf8(library)).c_str());
}

} // namespace
} // namespace ornavel::rehearsal

/// rehearse (IN.json OUT.json)...: plays scenarios with the real DLL, up to the first that can't be played or
/// that leaves the DLL in use. One that can't be played leaves its reason in OUT; then the exit code is 2.
/// With ORNAVEL_PICTURES in the environment, pictures of its forms lie beside OUT.
int main(int count, char** words) {
    using namespace ornavel::rehearsal;
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(report_crash);
    std::signal(SIGABRT, report_abort);
    if (FAILED(CoInitialize(nullptr)) || !neighbour_is_there()) return exit_failed;
    int code = exit_played;
    for (int i = 1; i + 1 < count && code != exit_unusable && !GetModuleHandleW(L"Ornavel.dll"); i += 2)
        code = rehearse(words[i], words[i + 1]);
    CoUninitialize();
    return code;
}
