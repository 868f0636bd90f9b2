#include "connect/registry_files.h"

#include "connect/session.h"
#include "host/file_system.h"

// A registry file is imported from a copy in a temporary folder, by the system's own program.

namespace ornavel::connect {
namespace {

constexpr TextView program_folder = u"C:\\Program Files\\Brevant\\Ornavel\\Programs";
constexpr TextView temporary_folder = u"C:\\BrevantTempReg";
constexpr int patience = 2000; // milliseconds: the mail client's start waits as long

Text in_folder(TextView folder, TextView name) { return Text(folder) + u"\\" + Text(name); }

/// Throws where the copy can't be made: an older one of that name must not be imported in its place.
void copy(Session& session, TextView name) {
    if (session.platform.files.leads_elsewhere(temporary_folder))
        throw Failure(Text(temporary_folder) + u" leads elsewhere");
    const host::FileSystem disk = host::FileSystem::create(session.platform.objects);
    attempt([&] { disk.create_folder(temporary_folder); });
    disk.copy_file(registry_file(session, name), in_folder(temporary_folder, name));
}

void remove(Files& files, const Text& path) noexcept {
    attempt([&] { files.remove(path); });
}

/// A copy whose source is still there belongs to an import that has not ended.
bool is_waited_for(const Session& session, TextView copied, TextView imported) {
    return !same_name(copied, imported) && session.platform.files.file_exists(registry_file(session, copied));
}

void clean_up(Session& session, TextView imported) {
    Files& files = session.platform.files;
    remove(files, registry_file(session, imported));
    bool others_wait = false;
    for (const Text& name : files.list(temporary_folder)) {
        if (is_waited_for(session, name, imported))
            others_wait = true;
        else
            remove(files, in_folder(temporary_folder, name));
    }
    if (!others_wait) files.remove_folder(temporary_folder);
}

} // namespace

Text registry_file(const Session& session, TextView name) {
    const bool installed = session.platform.files.folder_exists(program_folder);
    return in_folder(installed ? program_folder : TextView(session.platform.addin_folder), name);
}

bool import_registry_file(Session& session, TextView name) noexcept {
    bool ended = false;
    attempt([&] {
        copy(session, name);
        const Progress progress = session.platform.launcher.run_windows_program(
            u"regedit", u"/s " + in_folder(temporary_folder, name), WindowState::minimised, patience);
        ended = progress == Progress::ended;
        if (ended) clean_up(session, name);
    });
    return ended;
}

} // namespace ornavel::connect
