#include "rehearsal/native/memory_machine.h"

#include "base/encoding.h"
#include "forms/frmMessage.h"
#include "forms/input_box.h"
#include "forms/screen_place.h"
#include "forms/unloading.h"
#include "programs/all_programs.h"
#include "rehearsal/form_record.h"
#include "rehearsal/menu_act.h"
#include "rehearsal/native/form_player.h"
#include "rehearsal/native/watching.h"
#include "rehearsal/options_dialog.h"
#include "rehearsal/turn.h"

namespace ornavel::rehearsal {
namespace {

constexpr forms::Bounds screen{0, 0, 1280 * 15, 1024 * 15}; // that of the Wine binding

TextView file_name(TextView path) { return path.substr(path.find_last_of(u'\\') + 1); }

/// A Windows program is recorded without its folder, which is another on every machine.
TextView recorded_program(TextView program) {
    const auto name = file_name(program);
    return same_name(name, u"regedit.exe") || same_name(name, u"regedit") ? name : program;
}

/// As the Wine binding has it.
Named<Text> environment_of(const Computer& computer) {
    return {{u"APPDATA", application_data(computer)},
            {u"ProgramFiles", u"C:\\Program Files"},
            {u"SystemDrive", u"C:"},
            {u"SystemRoot", u"C:\\windows"}};
}

const char* state_name(WindowState state) {
    if (state == WindowState::minimised) return "minimised";
    return state == WindowState::hidden ? "hidden" : "normal";
}

} // namespace

MemoryMachine::MemoryMachine(const Scenario& scenario, const std::string& source, Failures& failures,
                             Journal& journal)
    : failures_(failures), journal_(journal), user_(scenario.user, source), computer_(scenario.computer),
      now_(scenario.clock), settings_(environment_of(scenario.computer)),
      rehearsed_settings_(settings_, failures, journal), rehearsed_disk_(disk_, failures, journal) {}

void MemoryMachine::prepare(const Scenario& scenario) {
    disk_.create_folder(scenario.computer.addin_folder);
    for (const auto& folder : scenario.folders) disk_.create_folder(folder);
    for (const auto& [path, bytes] : scenario.files) {
        disk_.create_folder(TextView(path).substr(0, path.find_last_of(u'\\')));
        disk_.write(path, bytes);
    }
    change_settings(scenario.settings);
    for (const auto& [key, values] : scenario.registry) {
        registry_.make_key(key);
        for (const auto& [name, value] : values) registry_.set(key, name, value);
    }
}

Snapshot MemoryMachine::snapshot() const {
    Snapshot snapshot;
    snapshot.settings = settings_.sections();
    snapshot.files = disk_.files();
    snapshot.folders = disk_.folders();
    snapshot.registry = registry_.keys();
    return snapshot;
}

void MemoryMachine::change_settings(const SettingsTree& settings) {
    for (const auto& [section, keys] : settings)
        for (const auto& [key, value] : keys) settings_.save(section, key, value);
}

std::optional<Text> MemoryMachine::prompt(TextView mode) {
    const WatchedStrings strings(journal_);
    forms::PromptDialog dialog(*this, strings);
    attempt([&] { dialog.ask(mode); }); // like every caller in the add-in
    return dialog.values().answer;
}

namespace {

/// Time that passes as fast as somebody waits.
class SwiftTime final : public Waiting {
public:
    long long milliseconds() override { return now_; }
    void wait(int milliseconds) override { now_ += milliseconds; }

private:
    long long now_ = 0;
};

} // namespace

std::optional<int> MemoryMachine::run(TextView file, TextView arguments, host::Objects& objects) {
    const programs::Program* program = programs::find_program(file);
    if (!program) return {};
    SwiftTime waiting;
    const programs::Platform platform{.settings = addin_settings(),
                                      .files = addin_files(),
                                      .clock = addin_clock(),
                                      .launcher = addin_launcher(),
                                      .objects = objects,
                                      .windows = addin_windows(),
                                      .machine = addin_machine(),
                                      .folder = computer_.addin_folder,
                                      .user_folder = application_data(computer_) + u"\\Brevant\\Ornavel",
                                      .scratch_folder = scratch_folder(computer_),
                                      .arguments = Text(arguments),
                                      .waiting = &waiting};
    const AddInsTurn turn;
    return programs::run(*program, platform);
}

Text MemoryMachine::value_of_system(TextView name) const {
    const auto value =
        registry_.find(u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion", name);
    const auto* text = value ? std::get_if<Text>(&*value) : nullptr;
    return text ? *text : Text();
}

OperatingSystem MemoryMachine::operating_system() const {
    return {computer_.os_platform, computer_.os_major, computer_.os_minor, computer_.os_build};
}

Memory MemoryMachine::memory() const {
    return {computer_.total_physical, computer_.available_physical, computer_.total_virtual,
            computer_.available_virtual};
}

bool MemoryMachine::tray(const Act& act) {
    const auto made = tray_.send(icon_message(act), menu_choice(act));
    if (made) check_choice(user_, act, *made);
    return made.has_value();
}

void MemoryMachine::launch(TextView program, TextView arguments, WindowState window) {
    const MachinesTurn turn;
    journal_.note_use(Deed::launch, Text(program), arguments,
                      [&] { failures_.use(Failing::Kind::launch, file_name(program)); });
    launched_.push_back({{"program", to_json(recorded_program(program))},
                         {"arguments", to_json(arguments)},
                         {"window", state_name(window)}});
}

Answer MemoryMachine::show(TextView title, TextView text, Buttons buttons) {
    const MachinesTurn turn;
    journal_.note_use(Deed::window, Text(title), text, [&] { failures_.use(Failing::Kind::window, title); });
    const auto& record = windows_.emplace_back(answer_message_box(user_, title, text, buttons));
    if (buttons == Buttons::ok) return Answer::ok;
    return record.at("answer") == "Yes" ? Answer::yes : Answer::no;
}

void MemoryMachine::show_modal(forms::Form& form) {
    form.load();
    if (!form.is_loaded()) return;
    const forms::Unloading at_the_end(form);
    const MachinesTurn turn;
    failures_.use(Failing::Kind::window, form.name());
    if (form.name() == forms::input_box_name) return show_input_box(form);
    forms::place_on_screen(form, screen, {&screen, 1});
    journal_.note(Deed::window, form.name(), form.properties.caption);
    const std::size_t place = windows_.size();
    windows_.push_back(form_record(form));
    const auto entry = user_.meet(form.name());
    if (entry) take_steps(user_, *entry, form);
    attempt([&] {
        const AddInsTurn addins;
        if (form.is_loaded()) forms::FormUser(form).close();
    });
    // One that the user may not close goes with its owner.
    attempt([&] {
        const AddInsTurn addins;
        form.unload();
    });
    windows_[place]["at close"] = changed_controls(windows_[place], form);
    if (!entry) windows_[place]["unexpected"] = true;
}

void MemoryMachine::show_page(forms::Form& page, const Act& act, const std::function<void()>& play) {
    const MachinesTurn turn;
    const forms::Unloading at_the_end(page);
    page.take_frame({});
    page.take_place(forms::centred({0, 0, page_width, page_height}, screen));
    journal_.note(Deed::window, page.name(), page.properties.caption);
    const std::size_t place = windows_.size();
    windows_.push_back(form_record(page));
    try {
        play();
    } catch (const forms::UnusableStep& error) {
        user_.complain(act.path, to_utf8(error.description()));
    }
    windows_[place]["at close"] = changed_controls(windows_[place], page);
}

std::optional<Text> MemoryMachine::ask_for_path(const forms::PathQuestion& question) {
    const MachinesTurn turn;
    journal_.note_use(Deed::window, question.title, {},
                      [&] { failures_.use(Failing::Kind::window, question.title); });
    const auto& record = windows_.emplace_back(answer_path_dialog(user_, question.title));
    if (record.at("answer").is_null()) return {};
    return from_utf8(record["answer"].get<std::string>());
}

void MemoryMachine::show_input_box(forms::Form& form) {
    const Text& title = form.properties.caption;
    journal_.note(Deed::window, title, form[forms::input_box_prompt].caption);
    const auto& record = windows_.emplace_back(
        answer_input_box(user_, title, forms::readable_caption(form[forms::input_box_prompt]),
                         form[forms::input_box_answer].text));
    const Json& answer = record.at("answer");
    forms::FormUser hand(form);
    if (answer.is_null()) return hand.close();
    hand.set_text(forms::input_box_answer, from_utf8(answer.get<std::string>()));
    hand.click(forms::input_box_ok);
}

} // namespace ornavel::rehearsal
