#include "connect/gates.h"
#include "connect/replies.h"
#include "connect/send_pipeline.h"

namespace ornavel::connect {

using namespace settings;

Verdict load_reply_marker(Send& send) {
    const bool older_host = host_is_older(send.session);
    trace(send, u"Just before MyMessItem is called- line 1001");
    Text marker = reply_marker(send.session, send.item(), older_host);
    trace(send, marker_was_loaded);
    send.reply.marker = std::move(marker);
    return Verdict::next;
}

Verdict reply_test(Send& send) {
    compose::Reply& reply = send.reply;
    reply.found = !reply.marker.empty() && (contains(send.html.of(send.item()), reply.marker) ||
                                            contains(send.item().body(), reply.marker));
    if (!reply.found) return Verdict::next;
    reply = reply_with(send.session, std::move(reply.marker));
    return is_ticked(send.settings(), user::ReplyAsIs) ? Verdict::leave : Verdict::next;
}

} // namespace ornavel::connect
