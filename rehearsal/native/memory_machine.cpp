#include "rehearsal/native/memory_machine.h"

#include "base/encoding.h"

namespace ornavel::rehearsal {
namespace {

TextView file_name(TextView path) { return path.substr(path.find_last_of(u'\\') + 1); }

/// A Windows program is recorded without its folder, which is another on every machine.
TextView recorded_program(TextView program) {
    const auto name = file_name(program);
    return same_name(name, u"regedit.exe") || same_name(name, u"regedit") ? name : program;
}

const char* state_name(WindowState state) {
    if (state == WindowState::minimised) return "minimised";
    return state == WindowState::hidden ? "hidden" : "normal";
}

} // namespace

MemoryMachine::MemoryMachine(const Scenario& scenario, const std::string& source, Failures& failures,
                             Journal& journal)
    : failures_(failures), journal_(journal), user_(scenario.user, source), now_(scenario.clock),
      rehearsed_settings_(settings_, failures, journal), rehearsed_disk_(disk_, failures, journal) {}

void MemoryMachine::prepare(const Scenario& scenario) {
    disk_.create_folder(scenario.computer.addin_folder);
    for (const auto& folder : scenario.folders) disk_.create_folder(folder);
    for (const auto& [path, bytes] : scenario.files) {
        disk_.create_folder(TextView(path).substr(0, path.find_last_of(u'\\')));
        disk_.write(path, bytes);
    }
    change_settings(scenario.settings);
    for (const auto& [key, values] : scenario.registry)
        for (const auto& [name, value] : values) registry_[key][name] = value;
}

Snapshot MemoryMachine::snapshot() const {
    Snapshot snapshot;
    for (const auto& [section, keys] : settings_.sections())
        for (const auto& [key, value] : keys) snapshot.settings[section][key] = value;
    snapshot.files = disk_.files();
    snapshot.folders = disk_.folders();
    snapshot.registry = registry_;
    return snapshot;
}

void MemoryMachine::change_settings(const SettingsTree& settings) {
    for (const auto& [section, keys] : settings)
        for (const auto& [key, value] : keys) settings_.save(section, key, value);
}

Json MemoryMachine::tray_outcome() const {
    return {{"shown", false}, {"tip", ""}, {"times shown", 0}, {"times removed", 0}, {"menu", Json::array()}};
}

void MemoryMachine::launch(TextView program, TextView arguments, WindowState window) {
    journal_.note(Deed::launch, Text(program), arguments);
    failures_.use(Failing::Kind::launch, file_name(program));
    launched_.push_back({{"program", to_json(recorded_program(program))},
                         {"arguments", to_json(arguments)},
                         {"window", state_name(window)}});
}

Answer MemoryMachine::show(TextView title, TextView text, Buttons buttons) {
    journal_.note(Deed::window, Text(title), text);
    const bool yes_no = buttons == Buttons::yes_no;
    const auto& record = windows_.emplace_back(answer_message_box(user_, title, text, yes_no));
    if (!yes_no) return Answer::ok;
    return record.at("answer") == "Yes" ? Answer::yes : Answer::no;
}

} // namespace ornavel::rehearsal
