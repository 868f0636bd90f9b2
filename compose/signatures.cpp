#include "compose/signatures.h"

namespace ornavel::compose {
namespace {

using namespace settings;

Text short_html_signature(const Store& store) {
    const Text cell = read(store, admin::SigCell);
    Text signature = u"<b><font style='font-size: 10pt; color: #28447E; font-family: Verdana'>" +
                     read(store, admin::SigFullname) + u"</font></b>" +
                     u",&nbsp;<font face=Verdana size=1><b>TEL</b>&nbsp;" + read(store, admin::SigTelephone) +
                     u"</font>";
    if (!cell.empty()) signature += u",&nbsp;<font face=Verdana size=1><b>CELL</b>&nbsp;" + cell + u"</font>";
    return signature + u"<br>" + u"<font style='font-size: 8pt; font-family: Verdana'>" +
           read(store, admin::SigPosition) + u"</font>";
}

Text short_text_signature(const Store& store) {
    const Text cell = read(store, admin::SigCell);
    return read(store, admin::SigFullname) + read(store, admin::SigTelephone) +
           (cell.empty() ? Text() : u", Cell " + cell) + read(store, admin::SigPosition);
}

Text with_signature(Text body, const Text& signature, TextView marker, TextView line_break) {
    const auto position = marker.empty() ? Text::npos : body.find(marker);
    if (position == Text::npos) return body + signature;
    const bool on_its_own_line = marker == u"-----Original";
    return body.insert(position, (on_its_own_line ? Text(line_break) : Text()) + signature);
}

Text piece(const Text& text) { return text.empty() ? u"&nbsp;" : text; }

/// The labels are padded to 11 characters, so that the values line up.
Text labelled(TextView label, const Text& value) { return value.empty() ? Text() : Text(label) + value; }

Text columns(const Text& left, const Text& right) { return piece(left) + u"&nbsp;" + piece(right) + u"<br>"; }

} // namespace

void add_internal_signature(const Store& store, const host::MailItem& item, int editor,
                            TextView reply_marker) {
    if (editor == host::plain_text_editor || editor == host::rich_text_editor)
        item.set_body(with_signature(item.body(), short_text_signature(store), reply_marker, line_end));
    else
        item.set_html_body(
            with_signature(item.html_body(), short_html_signature(store), reply_marker, u"<br>"));
}

Text text_signature(const Store& store) {
    const auto value = [&](const TextKey& key) { return read(store, key); };
    return piece(value(admin::SigFullname)) + u"<br>" +
           columns(value(admin::SigOrganizationName), value(admin::SigWebsite)) +
           columns(value(admin::SigPosition), value(admin::SigEmail)) +
           columns(value(admin::SigAddress), labelled(u"Telephone: ", value(admin::SigTelephone))) +
           columns(value(admin::SigAddress2), labelled(u"Fax:       ", value(admin::Sigfax))) +
           columns(value(admin::SigAddress3), labelled(u"Cell:      ", value(admin::SigCell))) +
           piece(value(admin::SigAddress4)) + u"<br>";
}

} // namespace ornavel::compose
