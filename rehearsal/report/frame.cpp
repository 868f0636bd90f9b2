#include "rehearsal/report/frame.h"

#include "base/encoding.h"
#include "rehearsal/report/html.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::pair<TextView, const char*> picture_kinds[] = {
    {u".gif", "image/gif"},   {u".png", "image/png"}, {u".jpg", "image/jpeg"},
    {u".jpeg", "image/jpeg"}, {u".bmp", "image/bmp"},
};

/// Only what the frame itself carries may be shown, and a link in it leads nowhere.
constexpr const char* closed_world =
    "<meta charset=\"utf-8\"><meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
    "img-src data:; style-src 'unsafe-inline'\"><meta http-equiv=\"x-dns-prefetch-control\" content=\"off\">";

std::string data_address(TextView path, const std::string& bytes) {
    const Text name = lower_case(path);
    for (const auto& [ending, kind] : picture_kinds)
        if (name.ends_with(ending)) return "data:" + std::string(kind) + ";base64," + encode_base64(bytes);
    return {};
}

Text with_pictures(Text html, const Named<std::string>& files) {
    for (const auto& [path, bytes] : files) {
        const Text data = from_utf8(data_address(path, bytes));
        if (data.empty()) continue;
        html = replace_all(html, u"file:///" + replace_all(path, u"\\", u"/"), data);
        html = replace_all(html, path, data);
    }
    return html;
}

/// Tags that begin a line of their own.
constexpr TextView line_tags[] = {u"<br", u"<p", u"<div", u"<tr", u"<li", u"<img", u"<hr"};
constexpr int margins = 100, height_of_tag = 11, letters_in_pixel = 9, lowest = 150, highest = 760;

int count_of(TextView text, TextView part) {
    int count = 0;
    for (auto place = text.find(part); place != TextView::npos; place = text.find(part, place + 1)) ++count;
    return count;
}

/// The page may measure what the frame shows; nothing in the frame may run.
std::string frame(const std::string& title, const std::string& document, int height) {
    return "<iframe sandbox=\"allow-same-origin\" title=\"" + escape(title) + "\" height=\"" +
           std::to_string(height) + "\" srcdoc=\"" + escape(document) + "\"></iframe>\n";
}

} // namespace

int estimated_height(const std::string& html) {
    const Text text = lower_case(from_utf8(html));
    int tags = 0, letters = 0;
    for (const TextView tag : line_tags) tags += count_of(text, tag);
    bool in_tag = false;
    for (const char16_t letter : text) {
        if (letter == u'<') in_tag = true;
        if (!in_tag) ++letters;
        if (letter == u'>') in_tag = false;
    }
    return std::clamp(margins + tags * height_of_tag + letters / letters_in_pixel, lowest, highest);
}

std::string message_frame(const std::string& title, const std::string& html, const Named<std::string>& files,
                          int height) {
    return frame(title, closed_world + to_utf8(with_pictures(from_utf8(html), files)), height);
}

std::string plain_text_frame(const std::string& title, const std::string& text, int height) {
    return frame(
        title, std::string(closed_world) + "<pre style=\"white-space: pre-wrap\">" + escape(text) + "</pre>",
        height);
}

} // namespace ornavel::rehearsal::report
