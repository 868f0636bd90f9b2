#include "connect/environment.h"

#include "compose/signature_files.h"
#include "connect/registry_files.h"
#include "connect/session.h"
#include "connect/user_folder.h"
#include "host/file_system.h"
#include "host/registry.h"
#include "host/versions.h"

#include <span>

// The mail client's own files and registry values. Each statement stands alone: what fails leaves that one
// thing as it was.

namespace ornavel::connect {
namespace {

using namespace settings;

constexpr TextView handler = u"On StartupComplete";

constexpr TextView mail_2000 = u"Software\\Microsoft\\Office\\9.0\\Outlook\\Options\\Mail";
constexpr TextView mail_2002 = u"Software\\Microsoft\\Office\\10.0\\Outlook\\Options\\Mail";
constexpr TextView spelling_2000 = u"Software\\Microsoft\\Office\\9.0\\Outlook\\Options\\Spelling";
constexpr TextView spelling_2002 = u"Software\\Microsoft\\Office\\10.0\\Outlook\\Options\\Spelling";

constexpr std::int32_t html_editor = 131072, word_for_html = 131073, word_for_rich_text = 196609;

/// A number that is written into the mail client's part of the registry: always, or only in place of another.
struct Change {
    TextView key, value_name;
    std::int32_t value;
    std::optional<std::int32_t> only_in_place_of{};
};

constexpr Change to_html[] = {{mail_2000, u"EditorPreference", html_editor},
                              {mail_2002, u"EditorPreference", html_editor}};
constexpr Change word_to_html[] = {{mail_2000, u"EditorPreference", word_for_html, word_for_rich_text},
                                   {mail_2002, u"EditorPreference", word_for_html, word_for_rich_text}};
constexpr Change spelling_on[] = {
    {spelling_2000, u"Check", 1}, {spelling_2002, u"Check", 1}, {spelling_2002, u"UseAutoCorrect", 1}};

struct Switch {
    const SwitchKey& setting;
    TextView recorded; ///< the first one is known to those who read logs by another spelling than its setting
    std::span<const Change> changes;
};

constexpr Switch switches[] = {
    {admin::WipeoutRichTextToHTML, u"WipeoutRichTexttoHTML", to_html},
    {admin::WipeoutWordRTFtoWordHTML, admin::WipeoutWordRTFtoWordHTML.name, word_to_html},
    {admin::WipeoutSetSpellCheckOn, admin::WipeoutSetSpellCheckOn.name, spelling_on},
};

constexpr TextView stationery_folders[] = {u"C:\\Program Files\\Common Files\\Microsoft Shared\\Stationery",
                                           u"C:\\Program Files\\Microsoft Office\\Stationery"};
constexpr TextView stationery_component = u"Installer\\Components\\79AE92CC2CB71D119A12000A9CE1A22A";

constexpr int always_reset[] = {10, 11}; ///< the versions that the reset file always stands for
constexpr TextView values_reset[] = {u"NewSignature", u"ReplySignature", u"NewStationery"};

/// Whether a file of that name was there, and has been imported.
bool import_when_there(Session& session, TextView name) {
    bool imported = false;
    attempt([&] {
        if (!session.platform.files.file_exists(registry_file(session, name))) return;
        record(session, u"Found", Text(name) + u" file", handler);
        imported = import_registry_file(session, name);
    });
    return imported;
}

host::RegistryProvider registry_of(Session& session) {
    return host::RegistryProvider::of(session.platform.objects, session.platform.machine.computer_name());
}

void make(const Change& change, const host::RegistryProvider& registry) {
    const auto& expected = change.only_in_place_of;
    if (expected && registry.user_number(change.key, change.value_name) != *expected) return;
    registry.set_user_number(change.key, change.value_name, change.value);
}

void flip(Session& session, const Switch& a_switch) {
    if (!is_on(session.platform.settings, a_switch.setting)) return;
    record(session, u"True", a_switch.recorded, handler);
    attempt([&] {
        const host::RegistryProvider registry = registry_of(session);
        for (const Change& change : a_switch.changes) attempt([&] { make(change, registry); });
    });
}

void remove_stationery(Session& session) {
    constexpr const SwitchKey& always = admin::WipeoutPersonalStationeryAlways;
    if (!is_on(session.platform.settings, always)) return;
    record(session, u"True", always.name, handler);
    attempt([&] {
        const host::FileSystem disk = host::FileSystem::create(session.platform.objects);
        for (const TextView folder : stationery_folders)
            attempt([&] {
                if (!session.platform.files.leads_elsewhere(folder)) disk.delete_folder(folder);
            });
    });
    attempt([&] { registry_of(session).delete_class_key(stationery_component); });
}

/// An empty line, and the empty values of one version.
Text reset_block(int version) {
    Text block = Text(line_end) + u"[HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\" + to_text(version) +
                 u".0\\Common\\MailSettings]" + Text(line_end);
    for (const TextView name : values_reset)
        block += u"\"" + Text(name) + u"\"=hex(2):00,00" + Text(line_end);
    return block;
}

/// For the versions of always, and for the mail client's own behind them.
void write_reset_file(Session& session, const Text& path) {
    Text text = u"REGEDIT4" + Text(line_end);
    for (const int version : always_reset) text += reset_block(version);
    const int own = host::major_version(session.host.oHostApp);
    if (own >= host::first_with_mail_settings_of_its_own) text += reset_block(own);
    write_whole(session.platform.files, path, to_utf8(text));
}

Text host_signature_folder(const Session& session) {
    const Platform& platform = session.platform;
    const bool moves =
        host::major_version(session.host.oHostApp) >= host::first_with_signatures_below_application_data;
    if (moves && !platform.application_data.empty())
        return platform.application_data + u"\\Microsoft\\Signatures\\";
    return u"c:\\Documents and Settings\\" + platform.machine.user_name() +
           u"\\application data\\Microsoft\\signatures\\";
}

} // namespace

void choose_whether_breaks_are_converted(Session& session) {
    constexpr int first_without = 11;
    Store& store = session.platform.settings;
    const auto& key = admin::WipeoutRemoveConvertedBR;
    if (store.find(key.section, key.name)) return;
    const Text version = session.host.oHostApp.version();
    if (!version.empty() && numeric_value(version) < first_without) save(store, key, on);
}

void prepare_environment(Session& session) noexcept {
    const bool for_this_user = import_when_there(session, u"NewUser.reg");
    const bool for_all = import_when_there(session, u"DefaultUser.reg");
    if (for_this_user || for_all) make_user_folders(session);
    for (const Switch& a_switch : switches) attempt([&] { flip(session, a_switch); });
    attempt([&] { remove_stationery(session); });
    attempt([&] { choose_whether_breaks_are_converted(session); });
}

void reset_host_signatures(Session& session) noexcept {
    constexpr TextView name = u"resetsig.reg";
    attempt([&] {
        const Text path = registry_file(session, name);
        if (!session.platform.files.file_exists(path)) write_reset_file(session, path);
    });
    import_registry_file(session, name);
}

void write_signature_files(Session& session) noexcept {
    const Platform& platform = session.platform;
    compose::write_signature_files(
        platform.settings, platform.files, [&] { return host_signature_folder(session); }, session.errors);
}

} // namespace ornavel::connect
