#pragma once

#include "base/text.h"

namespace ornavel::compose {

// The filters to the letter, each search from the start of a lower-cased copy: references for the quick ones.

inline Text plain_body_tag(Text text) {
    const auto begin = lower_case(text).find(u"<body");
    if (begin == Text::npos) return text;
    std::size_t end = begin;
    while (end < text.size() && text[end] != u'>') ++end;
    if (end == text.size() || end + 1 == 6) return text;
    return text.substr(0, begin) + u"<BODY>" + text.substr(end + 1);
}

inline Text plain_style_block(Text text, bool& found) {
    found = false;
    const Text lower = lower_case(text);
    const auto begin = lower.find(u"<style>");
    if (begin == Text::npos) return text;
    const auto end = lower.find(u"</style>", begin);
    if (end == Text::npos) return text;
    found = true;
    return text.substr(0, begin) + u"<STYLE></STYLE>" + text.substr(end + 8);
}

inline Text plain_images(Text text) {
    for (auto at = lower_case(text).find(u"<img"); at != Text::npos; at = lower_case(text).find(u"<img")) {
        const auto end = text.find(u'>', at);
        if (end == Text::npos) break;
        const Text tag = lower_case(text.substr(at, end - at));
        if (contains(tag, u"id=rid"))
            text.replace(at, end + 1 - at, u"<xIMG>");
        else if (!contains(tag, u"alt="))
            text.replace(at, 4, u"<xxxIMG");
        else
            text.replace(at, end + 1 - at, u"<xIMG>");
    }
    for (auto at = lower_case(text).find(u"<xxximg"); at != Text::npos;
         at = lower_case(text).find(u"<xxximg"))
        text.replace(at, 7, u"<IMG ");
    return text;
}

inline Text plain_image_letters(Text text) {
    for (auto at = lower_case(text).find(u"img"); at != Text::npos; at = lower_case(text).find(u"img"))
        text = text.substr(0, at) + u"xMG" + text.substr(at + 3);
    return text;
}

inline Text plain_links(Text text, TextView prefix) {
    std::vector<Text> words;
    for (auto at = text.find(prefix); at != Text::npos; at = text.find(prefix, at + 1)) {
        const Text word = text.substr(at, text.find_first_of(u" \r\t)?,:;!", at) - at);
        bool known = false;
        for (const Text& other : words) known = known || other == word;
        if (!known) words.push_back(word);
    }
    for (const Text& word : words) {
        const Text link = u"<a href=\"http://" + word + u"\">" + word + u"</a>";
        for (auto at = text.find(word); at != Text::npos; at = text.find(word, at + link.size()))
            text.replace(at, word.size(), link);
    }
    return text;
}

inline Text joined(const std::vector<Text>& pieces, TextView between) {
    Text text;
    for (std::size_t i = 0; i < pieces.size(); ++i)
        text.append(i == 0 ? TextView() : between).append(pieces[i]);
    return text;
}

inline Text plain_divisions(const Text& text) {
    auto lines = split(text, u"\r\n");
    for (Text& line : lines) {
        if (trim(line).empty()) line = u"&nbsp" + line;
        line = u"<div><span>" + line + u"</span></div>";
    }
    return joined(lines, u"");
}

inline Text plain_tabs(const Text& text) {
    auto pieces = split(text, u"\t");
    for (Text& piece : pieces)
        if (trim(piece).empty()) piece = u"&nbsp" + piece;
    return joined(pieces, u"&nbsp;&nbsp;&nbsp;");
}

} // namespace ornavel::compose
