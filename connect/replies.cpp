#include "connect/replies.h"

#include "host/versions.h"

namespace ornavel::connect {
namespace {

using namespace settings;

bool is_plain_text(const Session& session, const host::MailItem& item) {
    return host::kind_of(item, session.host.oHostApp) == host::plain_text_editor;
}

} // namespace

bool host_is_older(Session& session) {
    constexpr int first_with_other_marks = 11;
    int major = 0;
    trap(session.errors, version_trap, [&] {
        const Text version = session.host.oHostApp.version();
        if (version.find_first_of(u"0123456789") != 0) throw Failure(u"Type mismatch");
        major = host::major_version(version);
    });
    return major < first_with_other_marks;
}

Text reply_marker(const Session& session, const host::MailItem& item, bool older_host) {
    const TextKey& marker = older_host || is_plain_text(session, item) ? system::MyReplySearchString
                                                                       : system::Office2003SearchString;
    return read(session.platform.settings, marker);
}

compose::Reply reply_with(const Session& session, Text marker) {
    const Store& store = session.platform.settings;
    return {.found = true,
            .marker = std::move(marker),
            .search_offset = read_number(store, system::ReplySearchStringVal),
            .insert_offset = read_number(store, system::ReplyInsertStringVal)};
}

compose::Reply find_reply(Session& session, const host::MailItem& item) {
    Text marker = reply_marker(session, item, host_is_older(session));
    const bool found =
        !marker.empty() && (contains(item.html_body(), marker) || contains(item.body(), marker));
    return found ? reply_with(session, std::move(marker)) : compose::Reply{.marker = std::move(marker)};
}

} // namespace ornavel::connect
