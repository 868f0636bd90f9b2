#include "connect/gates.h"
#include "connect/send_pipeline.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// The number that the first two characters of the host's version form; one that can't be read counts as 0.
int host_major_version(Send& send) {
    int major = 0;
    trap(send.session.errors, version_trap, [&] {
        const Text version = send.session.host.oHostApp.version();
        if (version.find_first_of(u"0123456789") != 0) throw Failure(u"Type mismatch");
        major = numeric_value(TextView(version).substr(0, 2));
    });
    return major;
}

bool is_plain_text(const Send& send) {
    return send.item().inspector().editor_type() == host::plain_text_editor;
}

} // namespace

Verdict load_reply_marker(Send& send) {
    const bool older_host = host_major_version(send) < 11;
    trace(send, u"Just before MyMessItem is called- line 1001");
    const TextKey& marker =
        older_host || is_plain_text(send) ? system::MyReplySearchString : system::Office2003SearchString;
    trace(send, marker_was_loaded);
    send.reply.marker = read(send.settings(), marker);
    return Verdict::next;
}

Verdict reply_test(Send& send) {
    compose::Reply& reply = send.reply;
    reply.found = !reply.marker.empty() && (contains(send.html.of(send.item()), reply.marker) ||
                                            contains(send.item().body(), reply.marker));
    if (!reply.found) return Verdict::next;
    reply.search_offset = read_number(send.settings(), system::ReplySearchStringVal);
    reply.insert_offset = read_number(send.settings(), system::ReplyInsertStringVal);
    if (!is_ticked(send.settings(), user::ReplyAsIs)) return Verdict::next;
    reply.found = false;
    return Verdict::leave;
}

} // namespace ornavel::connect
