#include "rehearsal/windows/windows_machine.h"

#include "rehearsal/menu_act.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {

WindowsMachine::WindowsMachine(const Scenario& scenario, const std::string& source)
    : user_(scenario.user, source), screen_(user_) {}

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

void WindowsMachine::hold(TextView path) {
    held_.emplace_back(CreateFileW(win32::wide(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                   nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

} // namespace ornavel::rehearsal
