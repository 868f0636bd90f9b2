#pragma once

#include "rehearsal/json.h"

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace ornavel::rehearsal {

/// What plays a scenario: the add-in's code in this program, the real DLL, or one after the other.
enum class Binding { native, wine, both };

struct ExpandText {
    Text text;
    bool operator==(const ExpandText&) const = default;
};
using RegistryValue = std::variant<std::uint32_t, Text, ExpandText>;
using SettingValue = std::variant<Text, ExpandText>;

/// The text as it is stored.
inline const Text& stored_text(const SettingValue& value) {
    const auto* expand = std::get_if<ExpandText>(&value);
    return expand ? expand->text : std::get<Text>(value);
}

template <class Value>
using Named = std::vector<std::pair<Text, Value>>;

struct Computer {
    Text name = u"DESK-7", user = u"jo";
    Text addin_folder = u"C:\\Program Files\\Brevant\\Ornavel\\Programs";
    int os_platform = 2, os_major = 5, os_minor = 1, os_build = 2600;
    int cpu = 586;
    std::uint64_t total_physical = 268435456, available_physical = 134217728;
    std::uint64_t total_virtual = 2147483648, available_virtual = 1073741824;
};

struct Appointment {
    Text subject;
    LocalTime start;
};

/// Where the computer's user has the data of programs.
inline Text application_data(const Computer& computer) {
    return u"C:\\Documents and Settings\\" + computer.user + u"\\Application Data";
}

/// Where that user's programs have files that go with them.
inline Text scratch_folder(const Computer& computer) {
    return u"C:\\Documents and Settings\\" + computer.user + u"\\Local Settings\\Temp";
}

struct Host {
    Text version = u"11.0.6353";
    int explorers = 1;
    Text user_name = u"Jo Sender", user_address = u"jo@example.com";
    std::vector<Appointment> calendar;
    Named<bool> objects; ///< what is not named can be created
    bool own_mails_raise_item_send = false;
};

/// Whether the scenario lets the class with this name be made.
bool can_be_created(const Host& host, TextView prog_id);

struct RecipientEntry {
    Text name, address; ///< an empty name shows the address
    int type = 1;       ///< 1 To, 2 Cc, 3 Bcc
};

struct Contact {
    Text full_name, company_name, entry_id, folder_name, folder_entry_id, body;
};

struct WordDocument {
    Text version = u"11.0", html;
};

struct Item {
    Text message_class = u"IPM.Note", parent = u"Drafts";
    Text subject{}, body{}, html_body{}, billing_information{}, categories{}, flag_request{};
    int editor_type = 2, importance = 1, sensitivity = 0;
    std::optional<int> body_format{}; ///< nothing where it follows from the editor
    bool is_word_mail = false, read_receipt_requested = false, delivery_report_requested = false;
    std::vector<RecipientEntry> recipients{};
    std::vector<Text> attachments{};
    Named<Text> user_properties{};
    std::optional<WordDocument> word{};
    std::vector<Contact> links{};
};

/// One thing that the user does in a form.
struct Step {
    enum class Kind { click, double_click, set, select, tick, resize, move, close };
    Kind kind = Kind::close;
    Text control, text;
    int first = 0, second = 0; ///< an entry's index; a width and height, or left and top, in twips
    bool ticked = false;
};

/// One thing that the user does in the Options dialog: on the add-in's page, or with one of the dialog's own
/// buttons.
struct PageStep {
    enum class Kind { on_the_page, apply, ok, cancel };
    Kind kind = Kind::on_the_page;
    Step step{};
};

/// What the user does with one window.
struct UserEntry {
    Text at; ///< "*" stands for any window
    bool has_answer = false;
    std::optional<Text> answer; ///< nothing cancels an input box
    std::vector<Step> steps;
    std::string path; ///< where it stands in the scenario
};

struct Failing {
    /// A scenario can't name the last two: they are counted for the search for faults.
    enum class Kind {
        member,
        read_file,
        write_file,
        delete_file,
        read_setting,
        save_setting,
        launch,
        creation,
        window
    };
    Kind kind = Kind::member;
    Text subject;
    int use = 0; ///< counted from 1; 0 is every use
    Text says = u"rehearsed failure";
};

using SettingsTree = Named<Named<SettingValue>>;

struct Act {
    enum class Kind {
        connect,
        start,
        update,
        send,
        click,
        options,
        dress,
        new_explorer,
        close_explorer,
        tray,
        tray_entry,
        tray_message,
        prompt,
        shutdown,
        disconnect,
        set,
        clock,
        page,
        run
    };
    Kind kind = Kind::connect;
    int number = 0;
    Text text;
    Text arguments; ///< of a program
    SettingsTree settings;
    LocalTime time;
    std::vector<PageStep> page;
    Json given;       ///< as the scenario spells it
    std::string path; ///< where it stands in the scenario
};

/// Everything that one rehearsal needs, as the scenario gives it and with the defaults filled in.
struct Scenario {
    Text name;
    LocalTime clock{2003, 11, 20, 14, 5, 9};
    SettingsTree settings;
    Named<std::string> files; ///< path and bytes
    std::vector<Text> folders;
    Named<Named<RegistryValue>> registry;
    Computer computer;
    Host host;
    std::vector<Item> items;
    std::vector<UserEntry> user;
    std::vector<Failing> fail;
    std::vector<Act> acts;
    std::optional<Json> expect;
};

/// Reads a whole scenario strictly: whatever the contract does not list is Unusable, and so is what only the
/// native binding can play when the binding is another. The source names the scenario in messages.
Scenario read_scenario(const Json& json, const std::string& source, Binding binding);

/// The same scenario with every file's contents inside, so that it can be played anywhere.
Json with_files_inside(Json json, const Scenario& scenario);

/// The bytes of a file of this machine. Throws Unusable when it can't be read.
std::string load_file(const std::string& path);

} // namespace ornavel::rehearsal
