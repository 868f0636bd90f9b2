#include "rehearsal/report/pictures.h"

#include "base/encoding.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::string_view attributes[] = {"src=", "background="};

std::string lower(std::string text) {
    for (char& letter : text)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return text;
}

/// The value of an attribute that begins here, without its quotes.
std::string value_at(const std::string& html, std::size_t at) {
    const char quote = at < html.size() ? html[at] : '\0';
    const bool has_quotes = quote == '"' || quote == '\'';
    const auto end = has_quotes ? html.find(quote, at + 1) : html.find_first_of(" \t\r\n>", at);
    const auto begin = has_quotes ? at + 1 : at;
    return html.substr(begin, end == std::string::npos ? std::string::npos : end - begin);
}

bool is_drive(const std::string& path) {
    return path.size() > 2 && ((path[0] >= 'a' && path[0] <= 'z') || (path[0] >= 'A' && path[0] <= 'Z')) &&
           path[1] == ':' && (path[2] == '\\' || path[2] == '/');
}

std::string without_escapes(const std::string& address) {
    std::string plain;
    for (std::size_t at = 0; at < address.size(); ++at) {
        if (address.compare(at, 3, "%20") == 0) {
            plain += ' ';
            at += 2;
        } else {
            plain += address[at];
        }
    }
    return plain;
}

} // namespace

std::vector<std::string> pictures_in(const std::string& html) {
    std::vector<std::string> addresses;
    const std::string text = lower(html);
    for (std::size_t tag = text.find('<'); tag != std::string::npos; tag = text.find('<', tag + 1)) {
        const std::size_t end = std::min(text.find('>', tag), text.size());
        for (const std::string_view attribute : attributes) {
            const auto at = text.substr(tag, end - tag).find(std::string(" ").append(attribute));
            if (at == std::string::npos) continue;
            const std::string address = value_at(html, tag + at + 1 + attribute.size());
            if (std::ranges::find(addresses, address) == addresses.end()) addresses.push_back(address);
        }
    }
    return addresses;
}

Text path_of_picture(const std::string& address) {
    std::string path = without_escapes(address);
    if (lower(path).starts_with("file:"))
        path.erase(0, std::min(path.find_first_not_of('/', 5), path.size()));
    if (!is_drive(path)) return {};
    std::ranges::replace(path, '/', '\\');
    return from_utf8(path);
}

} // namespace ornavel::rehearsal::report
