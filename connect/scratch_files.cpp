#include "connect/scratch_files.h"

#include "compose/word_file.h"

namespace ornavel::connect {
namespace {

void remove(Files& files, const Text& path) noexcept {
    attempt([&] {
        if (files.file_exists(path)) files.remove(path);
    });
}

} // namespace

Text preview_page(const Session& session) {
    const Text& folder = session.start_up.browser_path;
    return (folder.empty() ? session.start_up.application_path : folder) + u"\\myTestHtmlFile.html";
}

void remove_scratch_files(Session& session) noexcept {
    attempt([&] {
        if (is_on(session.platform.settings, settings::admin::WipeOutFileCompare) || session.sent_to_many)
            return;
        remove(session.platform.files, preview_page(session));
        for (const TextView name : {u"beforetext.txt", u"aftertext.txt"})
            remove(session.platform.files, session.start_up.application_path + u"\\" + Text(name));
        compose::remove_word_file(session.platform.files, session.start_up.application_path);
    });
}

} // namespace ornavel::connect
