#include "connect/scratch_files.h"

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
        for (const TextView name : {u"beforetext.txt", u"aftertext.txt", u"GetMyHtml.htm"})
            remove(session.platform.files, session.start_up.application_path + u"\\" + Text(name));
    });
}

} // namespace ornavel::connect
