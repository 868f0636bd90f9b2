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

std::string frame(const std::string& document, int height) {
    return "<iframe sandbox height=\"" + std::to_string(height) + "\" srcdoc=\"" + escape(document) +
           "\"></iframe>\n";
}

} // namespace

std::string message_frame(const std::string& html, const Named<std::string>& files, int height) {
    return frame(closed_world + to_utf8(with_pictures(from_utf8(html), files)), height);
}

std::string plain_text_frame(const std::string& text, int height) {
    return frame(closed_world + element("pre", "", escape(text)), height);
}

} // namespace ornavel::rehearsal::report
