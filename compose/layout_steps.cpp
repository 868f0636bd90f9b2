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
    // A message of somebody who never chose a signature has none.
    c.signature_name = chosen ? trim(*chosen) : read(c.settings(), user::Signature, u"none");
}

void append_signature(Composition& c) {
    if (c.signature_name.empty() || c.signature_name == u"none") return;
    const Text path = c.read(admin::SignaturesPath) + u"\\" + trim(c.signature_name);
    const Text signature =
        read_lines(c.services.files, path_or_first_of(c, path, admin::SignaturesPath), line_end);
    const bool in_table = c.is_reply() && c.is_on(admin::WipeoutSignatureTable);
    Text& text = c.body();
    text.reserve(with_room(text.size() + signature.size() + c.quoted.size()));
    // Its two blanks stay: rules that administrators wrote for quoted mail name this opening as it stands.
    if (in_table) text.insert(0, u"<TABLE  width='100%' cellspacing='0' cellpadding='0' border='0'>");
    text.append(u"<P>").append(signature).append(in_table ? u"</TABLE>" : u"");
}

void read_template(Composition& c) {
    c.template_text = read_lines(c.services.files, c.template_path, line_end);
}

void ask_about_script(Composition& c) {
    if (c.for_preview()) return;
    if (!contains(c.template_text, u"</script>") && !contains(c.template_text, u"</SCRIPT>")) return;
    if (c.services.boxes.ask_risky(
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
    if (!c.is_reply()) c.keep_beginning();
    if (!c.takes_message()) return;
    // The message's own memory becomes the result's.
    Text& text = c.body();
    const TextView whole = c.template_text;
    text.reserve(with_room(whole.size() + text.size() + c.quoted.size()));
    text.insert(0, whole.substr(0, c.marker)).append(whole.substr(c.marker + insertion_marker.size()));
    c.result = std::move(text);
}

void break_reply_tags(Composition& c) {
    if (!c.is_reply() || !c.is_on(admin::RemoveReplyTags)) return;
    std::deque<Text> broken;
    const Text begin = c.read(admin::WipeoutHTMLBeginTag), end = c.read(admin::WipeoutHTMLEndTag);
    std::vector<Pass> passes{{begin, u"<!-- "}, {end, u" -->"}};
    const Text group = c.read(admin::WipeoutHTMLTagsGroup);
    const auto tags = group.empty() || contains(group, u"NONE") ? std::vector<Text>() : split(group, u",");
    for (const Text& tag : tags) passes.push_back({tag, broken.emplace_back(u"x" + tag)});
    if (!Passes(passes).apply_all(c.quoted)) throw TextTooLarge();
}

void shrink_reply_font(Composition& c) {
    c.small_quote = c.is_reply() && c.is_on(admin::WipeoutReplyFontSmall);
}

void insert_reply(Composition& c) {
    if (!c.is_reply() || !c.takes_message()) return;
    c.result.append(u"<p>").append(c.read(admin::WipeoutReplySeparator));
    c.result.append(c.small_quote ? u"<span font size=1>" : u"").append(c.quoted);
    c.result.append(c.small_quote ? u"</span>" : u"");
    Text().swap(c.quoted);
}

} // namespace ornavel::compose
