#include "base/find.h"
#include "compose/composition.h"
#include "compose/filters.h"
#include "compose/word_file.h"

// Where the text comes from: the item's HTML, Word's document, or plain text; and on a reply, where it ends.

namespace ornavel::compose {
namespace {

/// Word's number of the format to save in, or nothing for a version that saves in none.
std::optional<int> format_for(TextView version) {
    if (version.starts_with(u"9")) return 8;
    if (version.starts_with(u"10") || version.starts_with(u"8")) return 10;
    return {};
}

bool is_plain(const Composition& c) { return !c.is_html && !c.is_word_mail; }

/// The text is the message or another one; the message's own memory serves the new text.
void split_at(Composition& c, Text& text, std::size_t marker) {
    const std::int64_t position = static_cast<std::int64_t>(marker) + 1;
    const std::int64_t kept = position - c.request.reply.search_offset;
    const std::int64_t quoted_from = position + c.request.reply.insert_offset - 1;
    if (kept < 0) throw Failure(u"Invalid procedure call or argument");
    if (quoted_from < static_cast<std::int64_t>(text.size()))
        c.quoted = text.substr(static_cast<std::size_t>(quoted_from));
    text.resize(static_cast<std::size_t>(kept));
    c.new_text = std::move(text);
}

void cut_at_marker(Composition& c) {
    for (Text* text : {&c.message, &c.html_with_marker})
        if (const auto at = find_text(*text, c.request.reply.marker); at != Text::npos)
            return split_at(c, *text, at);
    c.new_text = std::move(c.message);
}

/// What an earlier message left behind is never read as this one. A version that saves in no format leaves no
/// file, and reading it fails. The editor may still hold the file of an earlier composition: it then writes
/// it anew.
void save_document(const host::WordDocument& document, Files& files, const Text& path) {
    const auto format = format_for(document.word_version());
    const auto remove = [&] {
        if (files.file_exists(path)) files.remove(path);
    };
    if (!format) return remove();
    attempt(remove);
    document.save_as(path, *format);
}

} // namespace

void look_at_item(Composition& c) {
    Text html = c.request.item.html_body();
    c.is_html = !html.empty();
    if (!c.is_html) c.is_word_mail = c.request.item.inspector().is_word_mail();
    // The item is read once: a filter may have taken the marker out of the message.
    if (c.is_reply() && !contains(c.message, c.request.reply.marker)) c.html_with_marker = std::move(html);
}

void read_Word_document(Composition& c) {
    if (!c.is_word_mail) return;
    const Text& folder = c.services.start_up.application_path;
    const host::WordDocument document = c.request.item.inspector().word_editor();
    document.copy_content_to_clipboard();
    save_document(document, c.services.files, word_file(folder));
    Text text = read_lines(c.services.files, word_file(folder), u" ");
    break_image_tags(text);
    c.message = std::move(text);
    remove_word_file(c.services.files, folder);
}

void link_addresses(Composition& c) {
    constexpr TextView prefix = u"www.";
    if (is_plain(c) && contains(c.message, prefix)) c.message = with_links(c.message, prefix);
}

void wrap_lines(Composition& c) {
    if (is_plain(c)) c.message = lines_as_divisions(c.message);
}

void replace_tabs(Composition& c) {
    if (is_plain(c)) replace_tabs(c.message);
}

void cut_reply(Composition& c) {
    if (!c.is_reply()) return;
    const Text label = u"parsing error - reply - length of the message is " +
                       to_text(static_cast<long long>(c.message.size())) +
                       (c.is_html ? u" - CreateHTMLBody- error Reply state parsing - myMessageReply_err"
                                  : u" - myMessageReplyFormatFalse_err");
    c.keep_beginning();
    if (!trap(c.errors, {label, u"", reply_cut}, [&] { cut_at_marker(c); })) {
        c.new_text = std::move(c.message);
        c.quoted.clear();
    }
    Text().swap(c.message);
}

} // namespace ornavel::compose
