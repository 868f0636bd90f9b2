#include "rehearsal/windows/windows_machine.h"

#include "base/encoding.h"
#include "forms/form_user.h"
#include "programs/all_programs.h"
#include "rehearsal/menu_act.h"
#include "rehearsal/windows/page_host.h"
#include "win32/dispatch_object.h"
#include "win32/machine.h"
#include "win32/registry_store.h"
#include "win32/system_information.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

/// The windows of this desktop; what file dialogs would say the scripted user says.
class WatchedWindows final : public forms::Windows {
public:
    explicit WatchedWindows(ScreenUser& screen) : screen_(screen) {}
    Answer show(TextView title, TextView text, Buttons buttons) override {
        return desktop_.show(title, text, buttons);
    }
    void show_modal(forms::Form& form) override { desktop_.show_modal(form); }
    void keep_on_top(int window) override { desktop_.keep_on_top(window); }
    std::optional<Text> ask_for_path(const forms::PathQuestion& question) override {
        return screen_.answer_path(question.title);
    }

private:
    ScreenUser& screen_;
    win32::DesktopWindows desktop_;
};

} // namespace

WindowsMachine::WindowsMachine(const Scenario& scenario, const std::string& source)
    : computer_(scenario.computer), user_(scenario.user, source), screen_(user_) {}

WindowsMachine::~WindowsMachine() {
    let_go();
    disk_.clear();
}

void WindowsMachine::prepare(const Scenario& scenario) {
    disk_.clear();
    files_.create_folder(scenario.computer.addin_folder);
    for (const auto& folder : scenario.folders) files_.create_folder(folder);
    for (const auto& [path, bytes] : scenario.files) {
        files_.create_folder(TextView(path).substr(0, path.find_last_of(u'\\')));
        files_.write(path, bytes);
    }
    SetEnvironmentVariableW(L"APPDATA", win32::wide(application_data(scenario.computer)).c_str());
    change_settings(scenario.settings);
    for (const auto& [key, values] : scenario.registry)
        for (const auto& [name, value] : values) registry_.set(key, name, value);
}

Snapshot WindowsMachine::snapshot() const {
    Snapshot snapshot;
    disk_.add_to(snapshot);
    registry_.add_to(snapshot);
    return snapshot;
}

void WindowsMachine::change_settings(const SettingsTree& settings) { registry_.change_settings(settings); }

bool WindowsMachine::tray(const Act& act) {
    screen_.expect_menu(menu_choice(act));
    if (!tray_.send(icon_message(act))) return false;
    check_choice(user_, act, screen_.choice());
    tray_.record.menu = screen_.menu();
    return true;
}

void WindowsMachine::show_page(const host::ObjectPtr& page, const Act& act) {
    OptionsDialog dialog;
    PageHost host(win32::dispatch_of(page).get(), [&] { dialog.status_changed(); });
    screen_.begin_page(host.window());
    try {
        dialog.play(host, act.page);
    } catch (const forms::UnusableStep& error) {
        user_.complain(act.path, to_utf8(error.description()));
    }
    screen_.end_page(host.window());
}

std::optional<int> WindowsMachine::run(TextView file, TextView arguments, host::Objects& objects) {
    const programs::Program* program = programs::find_program(file);
    if (!program) return {};
    launches_.watch(GetModuleHandleW(nullptr));
    win32::RegistryStore settings;
    win32::WindowsFiles files;
    const win32::SystemClock clock;
    win32::ShellLauncher launcher;
    WatchedWindows windows(screen_);
    const win32::WindowsInformation machine;
    win32::MessageWaiting waiting;
    return programs::run(*program, {.settings = settings,
                                    .files = files,
                                    .clock = clock,
                                    .launcher = launcher,
                                    .objects = objects,
                                    .windows = windows,
                                    .machine = machine,
                                    .folder = computer_.addin_folder,
                                    .user_folder = application_data(computer_) + u"\\Brevant\\Ornavel",
                                    .scratch_folder = scratch_folder(computer_),
                                    .arguments = Text(arguments),
                                    .waiting = &waiting});
}

void WindowsMachine::hold(TextView path) {
    held_.emplace_back(CreateFileW(win32::wide(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                   nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

} // namespace ornavel::rehearsal
