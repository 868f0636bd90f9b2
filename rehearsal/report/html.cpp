#include "rehearsal/report/html.h"

namespace ornavel::rehearsal::report {

std::string escape(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size() + text.size() / 8);
    for (const char letter : text) {
        switch (letter) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        case '\0':
            escaped += "\uFFFD";
            break;
        default:
            escaped += letter;
        }
    }
    return escaped;
}

std::string element(std::string_view tag, std::string_view css_class, std::string_view inside) {
    std::string html = "<";
    html += tag;
    if (!css_class.empty()) {
        html += " class=\"";
        html += css_class;
        html += '"';
    }
    html += '>';
    html += inside;
    html += "</";
    html += tag;
    return html += ">\n";
}

std::string text_element(std::string_view tag, std::string_view css_class, std::string_view text) {
    return element(tag, css_class, escape(text));
}

std::string fold_out(std::string_view summary, std::string_view inside) {
    return element("details", "", text_element("summary", "", summary) + std::string(inside));
}

} // namespace ornavel::rehearsal::report
