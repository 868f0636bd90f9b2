#include "compose/composition.h"
#include "compose/usage_log.h"
#include "connect/user_folder.h"
#include "host/ado.h"
#include "settings/modes.h"
#include "win32/com_objects.h"
#include "win32/environment.h"
#include "win32/handle.h"
#include "win32/registry_store.h"
#include "win32/wide.h"
#include "win32/windows_files.h"
#include "workbench/diagnosis.h"
#include "workbench/drives.h"
#include "workbench/windows/parts.h"

#include <objbase.h>

namespace ornavel::workbench {
namespace {

using namespace settings;
using State = Diagnosis::State;

constexpr TextView made_at_start = u" is not there yet; the add-in makes the folder when Outlook starts";

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
        add(look_at_installation(files_));
        add(look_at_resiliency());
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

    void add(std::vector<Diagnosis> more) {
        for (Diagnosis& diagnosis : more) all_.push_back(std::move(diagnosis));
    }

    /// What the add-in makes itself when the mail client starts, so that it need not be there before.
    bool is_made_at_start(const Text& folder) const {
        return connect::is_in_user_folder(folder, user_folder_) && !files_.folder_exists(folder);
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
        for (const PathKey* key : {&admin::HTMFilesPath, &admin::SignaturesPath})
            look_at_folder(key->name, read(store_, *key));
        for (const PathKey* key : {&admin::ApplicationPath, &admin::BrowserPath})
            look_at_working_folder(key->name, read(store_, *key));
    }

    void look_at_folder(TextView setting, const Text& folder) {
        if (folder.empty()) return;
        if (!files_.folder_exists(folder))
            say(State::broken, setting, folder + u" is not there",
                u"Make the folder, or correct the setting");
        else if (!may(folder, FILE_LIST_DIRECTORY))
            say(State::broken, setting, folder + u" can't be read", u"Give the user the right to read it");
        else
            say(State::fine, setting, folder);
    }

    void look_at_working_folder(TextView setting, const Text& folder) {
        if (!is_made_at_start(folder)) return look_at_folder(setting, folder);
        say(State::fine, setting, folder + Text(made_at_start));
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
        if (is_made_at_start(Text(folder_of(path))))
            return say(State::fine, u"error log", path + Text(made_at_start));
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
    const Text user_folder_ = win32::user_folder();
    std::vector<Diagnosis> all_;
};

} // namespace

std::vector<Diagnosis> examine() { return Doctor().run(); }

} // namespace ornavel::workbench
