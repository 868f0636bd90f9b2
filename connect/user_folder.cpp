#include "connect/user_folder.h"

namespace ornavel::connect {
namespace {

using namespace settings;

TextView folder_of(TextView file) {
    const auto end = file.find_last_of(u'\\');
    return end == TextView::npos ? TextView() : file.substr(0, end);
}

void make(Session& session, TextView folder) {
    Files& files = session.platform.files;
    if (is_in_user_folder(folder, session.platform.user_folder) && !files.folder_exists(folder))
        files.create_folder(folder);
}

} // namespace

bool is_in_user_folder(TextView folder, TextView own) {
    return !own.empty() && same_name(folder.substr(0, own.size()), own) &&
           (folder.size() == own.size() || folder[own.size()] == u'\\') && !contains(folder, u"..");
}

void make_user_folders(Session& session) noexcept {
    const Store& settings = session.platform.settings;
    attempt([&] { make(session, read(settings, admin::ApplicationPath)); });
    attempt([&] { make(session, read(settings, admin::BrowserPath)); });
    attempt([&] { make(session, folder_of(read(settings, admin::ErrorFileLocation))); });
}

} // namespace ornavel::connect
