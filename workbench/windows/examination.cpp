#include "compose/composition.h"
#include "compose/usage_log.h"
#include "host/ado.h"
#include "settings/modes.h"
#include "win32/com_objects.h"
#include "win32/handle.h"
#include "win32/registry_store.h"
#include "win32/wide.h"
#include "win32/windows_files.h"
#include "workbench/diagnosis.h"
#include "workbench/drives.h"
#include "workbench/windows/registry_look.h"

#include <objbase.h>

namespace ornavel::workbench {
namespace {

using namespace settings;
using State = Diagnosis::State;

constexpr TextView class_key =
    u"Software\\Classes\\CLSID\\{01F2687D-003D-4805-8744-2B3921019DBC}\\InprocServer32";
constexpr TextView add_in_key = u"Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect";
constexpr TextView register_it =
    u"Register it as the user who will use it: regsvr32 \"C:\\...\\Ornavel.dll\"";

/// Whether a file is there and holds 32-bit Windows code.
bool is_32_bit_module(const Files& files, TextView path) {
    std::string bytes;
    attempt([&] { bytes = files.read(path); });
    if (bytes.size() < 0x40 || !bytes.starts_with("MZ")) return false;
    std::uint32_t header = 0;
    memcpy(&header, bytes.data() + 0x3C, sizeof header);
    return header < bytes.size() - 6 && bytes.compare(header, 6, std::string_view("PE\0\0\x4C\x01", 6)) == 0;
}

/// Whether somebody with the user's rights may do that to a file or folder; asking changes nothing.
bool may(TextView path, DWORD access) {
    const win32::Handle handle(CreateFileW(win32::wide(path).c_str(), access,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return static_cast<bool>(handle);
}

class Doctor {
public:
    std::vector<Diagnosis> run() {
        look_at_registration();
        look_at_loading();
        look_at_resiliency();
        look_at_start();
        look_at_folders();
        look_at_choice(admin::HTMFilesPath, user::Template, true);
        look_at_choice(admin::SignaturesPath, user::Signature, false);
        look_at_log();
        look_at_database();
        return std::move(all_);
    }

private:
    void say(State state, TextView what, Text seen, TextView advice = {}) {
        all_.push_back({state, Text(what), std::move(seen), Text(advice)});
    }

    void look_at_registration() {
        const auto for_user = text_in(HKEY_CURRENT_USER, class_key, u"");
        const auto for_machine = text_in(HKEY_LOCAL_MACHINE, class_key, u"");
        if (!for_user && !for_machine)
            return say(State::broken, u"registration", u"Ornavel.dll is not registered", register_it);
        // Each registration brings its own entry among Outlook's add-ins.
        const bool twice = number_in(HKEY_CURRENT_USER, add_in_key, u"LoadBehavior") &&
                           number_in(HKEY_LOCAL_MACHINE, add_in_key, u"LoadBehavior");
        if (twice)
            say(State::look, u"registration", u"registered twice: for this user, and for the machine",
                u"The user's one is loaded. Remove it with regsvr32 /u, or uninstall the package");
        else
            say(State::fine, u"registration", for_user ? u"for this user" : u"for the machine");
        look_at_module(for_user ? *for_user : *for_machine);
    }

    void look_at_module(const Text& dll) {
        if (is_32_bit_module(files_, dll)) return say(State::fine, u"module", dll);
        const bool there = files_.file_exists(dll);
        say(State::broken, u"module", dll + (there ? u" is no 32-bit module" : u" is not there"),
            u"Bring Ornavel.dll there, or register it where it is");
    }

    void look_at_loading() {
        const auto for_user = number_in(HKEY_CURRENT_USER, add_in_key, u"LoadBehavior");
        const auto behavior =
            for_user ? for_user : number_in(HKEY_LOCAL_MACHINE, add_in_key, u"LoadBehavior");
        if (!behavior)
            return say(State::broken, u"loading", u"Outlook does not know the add-in", register_it);
        if (*behavior == 3) return say(State::fine, u"loading", u"at Outlook's start");
        say(State::broken, u"loading",
            u"LoadBehavior is " + to_text(*behavior) + u", so Outlook does not load it at its start",
            u"Close Outlook and set LoadBehavior to 3, or tick Ornavel in Outlook's list of COM add-ins");
    }

    void look_at_resiliency() {
        for (const TextView version : {u"9.0", u"10.0", u"11.0"}) {
            const Text key = u"Software\\Microsoft\\Office\\" + Text(version) + u"\\Outlook\\Resiliency\\";
            for (const Text& item : values_in(HKEY_CURRENT_USER, key + u"DisabledItems"))
                if (contains(lower_case(item), u"ornavel"))
                    return say(State::broken, u"Outlook's disabled items",
                               u"Outlook " + Text(version) + u" has disabled the add-in",
                               u"In Outlook: Help, About, Disabled Items; choose Ornavel and Enable");
        }
        say(State::fine, u"Outlook's disabled items", u"the add-in is not among them");
    }

    void look_at_start() {
        const Text mode = read(store_, user::SettingButtonBar, u"");
        if (mode == modes::automatic)
            say(State::fine, u"mode", u"every message is dressed");
        else
            say(State::look, u"mode",
                u"SettingButtonBar is \"" + mode + u"\", so no message is dressed by itself",
                u"Set it to \"auto\", or press Outlook's toolbar button");
        for (const TextKey* key : {&admin::SigEmail, &admin::SigWebsite})
            if (read(store_, *key).empty())
                say(State::look, u"first start",
                    Text(key->name) + u" is empty, so the setup program starts at every connection",
                    u"Set it");
    }

    void look_at_folders() {
        const PathKey* const keys[] = {&admin::HTMFilesPath, &admin::SignaturesPath, &admin::ApplicationPath,
                                       &admin::BrowserPath};
        for (const PathKey* key : keys) {
            const Text folder = read(store_, *key);
            if (folder.empty()) continue;
            if (!files_.folder_exists(folder))
                say(State::broken, key->name, folder + u" is not there",
                    u"Make the folder, or correct the setting");
            else if (!may(folder, FILE_LIST_DIRECTORY))
                say(State::broken, key->name, folder + u" can't be read",
                    u"Give the user the right to read it");
            else
                say(State::fine, key->name, folder);
        }
    }

    void look_at_choice(const PathKey& folder, const TextKey& name, bool needs_marker) {
        const Text chosen = trim(read(store_, name));
        if (!needs_marker && chosen == u"none") return say(State::fine, name.name, u"none");
        if (chosen.empty())
            return say(State::look, name.name, u"none is chosen, so the first send is held back",
                       u"Choose one");
        const Text path = read(store_, folder) + u"\\" + chosen;
        Text text;
        if (!attempt([&] { text = read_text(files_, path); }))
            return say(State::broken, name.name, path + u" is not there or can't be read",
                       u"Correct the setting, or bring the file");
        if (needs_marker && !contains(text, compose::insertion_marker))
            return say(State::broken, name.name, path + u" has no marker, so the user's text is lost",
                       u"Write [#Input your message here#] where the text belongs");
        say(State::fine, name.name, path);
    }

    void look_at_log() {
        const Text path = read(store_, admin::ErrorFileLocation);
        if (path.empty())
            return say(State::look, u"error log",
                       u"ErrorFileLocation is empty, so the first error chooses a place",
                       u"Set it to a file in a folder that the user may write");
        const bool there = files_.file_exists(path);
        const bool writable = there ? may(path, FILE_APPEND_DATA) : may(folder_of(path), FILE_ADD_FILE);
        if (writable) return say(State::fine, u"error log", path);
        say(State::broken, u"error log", path + u" can't be written",
            u"Name a file in a folder that is there and that the user may write");
    }

    void look_at_database() {
        const auto log = compose::Get_Marketing_Info(store_);
        if (!log.enabled || log.connection_string.empty()) return say(State::fine, u"usage log", u"off");
        const HRESULT entered = CoInitialize(nullptr);
        try {
            win32::ComObjects objects;
            const auto connection = host::Connection::create(objects);
            connection.open(log.connection_string);
            connection.close();
            say(State::fine, u"usage log", u"the database answers");
        } catch (const Failure& failure) {
            say(State::broken, u"usage log", u"the database does not answer: " + failure.description(),
                u"Messages leave all the same, without a row; correct Marketing, or the database");
        }
        if (SUCCEEDED(entered)) CoUninitialize();
    }

    win32::RegistryStore store_;
    win32::WindowsFiles files_;
    std::vector<Diagnosis> all_;
};

} // namespace

std::vector<Diagnosis> examine() { return Doctor().run(); }

} // namespace ornavel::workbench
