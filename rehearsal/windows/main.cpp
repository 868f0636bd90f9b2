#include "rehearsal/outcome.h"
#include "rehearsal/windows/dll_add_in.h"
#include "rehearsal/windows/served_classes.h"
#include "rehearsal/windows/windows_machine.h"

#include "base/errors.h"
#include "win32/wide.h"

#include <objbase.h>

namespace ornavel::rehearsal {
namespace {

constexpr int exit_played = 0, exit_failed = 1, exit_unusable = 2;

Text out_path;

void write_out(const std::string& bytes) { win32::WindowsFiles().write(out_path, bytes); }

Json play(const Scenario& scenario, const std::string& source) {
    Failures failures(scenario.fail);
    Journal journal;
    WindowsMachine machine(scenario, source);
    machine.prepare(scenario);
    MailClient client(scenario, machine, failures, journal);
    const auto subscriptions = std::make_shared<Subscriptions>();
    const ServedClasses classes(client, subscriptions);
    const InstalledDll dll(scenario.computer.addin_folder);
    machine.watch(dll.module());
    const Snapshot before = machine.snapshot();
    DllAddIn addin(subscriptions);
    Player player(scenario, source, client, machine, addin);
    player.play();
    return write_outcome(scenario, player, client, machine, before);
}

Json crash_outcome(const std::string& error) { return {{"error", error}}; }

LONG WINAPI report_crash(EXCEPTION_POINTERS* crash) {
    attempt([&] {
        const auto code = static_cast<std::uint32_t>(crash->ExceptionRecord->ExceptionCode);
        write_out(to_json_text(crash_outcome("the add-in crashed (exception " + std::to_string(code) + ")")));
    });
    ExitProcess(exit_failed);
}

int rehearse(const std::string& in) {
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

} // namespace
} // namespace ornavel::rehearsal

/// rehearse IN.json OUT.json: plays one scenario with the real DLL. A scenario that can't be played leaves
/// its reason in OUT and exits with 2.
int main(int count, char** words) {
    using namespace ornavel::rehearsal;
    if (count != 3) return exit_unusable;
    out_path = ornavel::from_utf8(words[2]);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(report_crash);
    if (FAILED(CoInitialize(nullptr))) return exit_failed;
    const int code = rehearse(words[1]);
    CoUninitialize();
    return code;
}
