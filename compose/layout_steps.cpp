#include "base/find.h"
#include "compose/composition.h"
#include "compose/passes.h"

#include <deque>

// The signature, the template, and the text poured into it.

namespace ornavel::compose {
namespace {

using namespace settings;

/// Room for the fields' values, so that the merge needs no other copy of a large body.
std::size_t with_room(std::size_t size) { return size + size / 64 + 4096; }

} // namespace

void choose_signature(Composition& c) {
    const auto& chosen = c.request.form_signature;
    c.signature_name = chosen ? trim(*chosen) : read(c.settings(), user::Signature, u"none");
}

void append_signature(Composition& c) {
    if (c.signature_name.empty() || c.signature_name == u"none") return;
    const Text path = c.read(admin::SignaturesPath) + u"\\" + trim(c.signature_name);
    const Text signature =
        read_lines(c.services.files, path_or_first_of(c, path, admin::SignaturesPath), line_end);
    Text& text = c.body();
    const bool in_table = c.is_reply() && c.is_on(admin::WipeoutSignatureTable);
    text.append(u"<P>").append(signature);
    if (!in_table) return;
    // Two blanks after "TABLE" are deliberate.
    text.insert(0, u"<TABLE  width='100%' cellspacing='0' cellpadding='0' border='0'>");
    text.append(u"</TABLE>");
}

void read_template(Composition& c) {
    // A template that can't be read loses nothing: the message stands alone.
    c.template_text = insertion_marker;
    c.template_text = read_lines(c.services.files, c.template_path, line_end);
}

void ask_about_script(Composition& c) {
    if (c.for_preview()) return;
    if (!contains(c.template_text, u"</script>") && !contains(c.template_text, u"</SCRIPT>")) return;
    if (c.services.boxes.ask(
            u"Ornavel Security Warning",
            u"This Template has script in it. This means that your recipients may not be able to \r\nsee or "
            u"access your message. Continue with your message? Click No to cancel, Yes to continue"))
        return;
    c.result = std::move(c.template_text);
    c.refused = true;
}

void find_marker(Composition& c) {
    c.marker = find_text(c.template_text, insertion_marker);
    if (c.takes_message()) return;
    c.result = c.template_text;
    c.services.boxes.inform(
        u"Brevant Template error",
        u"You have chosen to use a Template that has not been \r\nmodified for use as an Brevant "
        u"Template.\r\n\r\nYou can click Help! and learn more about Brevant Templates.\r\nBrevant "
        u"will try to use this Template.");
}

void insert_message(Composition& c) {
    if (!c.takes_message()) return;
    const Text& text = c.body();
    const TextView whole = c.template_text;
    c.result.reserve(with_room(whole.size() + text.size() + c.quoted.size()));
    c.result.append(whole.substr(0, c.marker)).append(text);
    c.result.append(whole.substr(c.marker + insertion_marker.size()));
    if (c.is_reply()) Text().swap(c.new_text);
}

void break_reply_tags(Composition& c) {
    if (!c.is_reply() || !c.is_on(admin::RemoveReplyTags)) return;
    std::deque<Text> broken;
    const Text begin = c.read(admin::WipeoutHTMLBeginTag), end = c.read(admin::WipeoutHTMLEndTag);
    std::vector<Pass> passes{{begin, u"<!-- "}, {end, u" -->"}};
    const Text group = c.read(admin::WipeoutHTMLTagsGroup);
    const auto tags = group.empty() || contains(group, u"NONE") ? std::vector<Text>() : split(group, u",");
    for (const Text& tag : tags) passes.push_back({tag, broken.emplace_back(u"x" + tag)});
    Text text = c.quoted;
    if (Passes(passes).apply(text) < passes.size()) throw TextTooLarge();
    c.quoted = std::move(text);
}

void shrink_reply_font(Composition& c) {
    if (!c.is_reply() || !c.is_on(admin::WipeoutReplyFontSmall)) return;
    c.quoted.insert(0, u"<span font size=1>");
    c.quoted.append(u"</span>");
}

void insert_reply(Composition& c) {
    if (!c.is_reply() || !c.takes_message()) return;
    c.result.append(u"<p>").append(c.read(admin::WipeoutReplySeparator)).append(c.quoted);
    Text().swap(c.quoted);
}

} // namespace ornavel::compose
