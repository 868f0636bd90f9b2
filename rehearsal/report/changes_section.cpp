#include "base/encoding.h"
#include "rehearsal/outcome.h"
#include "rehearsal/report/frame.h"
#include "rehearsal/report/html.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/words.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

const Json nothing = Json::object();

const Json& part_of(const Story& story, const char* name) {
    const auto part = story.outcome.find(name);
    return part == story.outcome.end() || part->empty() ? nothing : *part;
}

std::string value_words(const Json& value) {
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string value_before(const Story& story, const std::string& key, const std::string& name) {
    for (const auto& [known_key, values] : story.scenario.registry)
        for (const auto& [known, value] : values)
            if (same_name(known_key, from_utf8(key)) && same_name(known, from_utf8(name)))
                return value_words(registry_outcome(value));
    return "not there";
}

std::string registry_rows(const Story& story) {
    std::string rows;
    for (const auto& [key, values] : part_of(story, "registry").items())
        for (const auto& [name, value] : values.items())
            rows += element("tr", "",
                            text_element("td", "what", key + "\\" + name) +
                                text_element("td", "value", value_before(story, key, name)) +
                                text_element("td", "", value.is_null() ? "removed" : value_words(value)));
    return rows;
}

std::string registry(const Story& story) {
    const std::string rows = registry_rows(story);
    if (rows.empty()) return {};
    const std::string headings =
        element("tr", "",
                text_element("th", "what", "Value") + text_element("th", "value", "Before") +
                    text_element("th", "", "After"));
    return fold_out("Registry before and after", element("table", "journal", headings + rows));
}

/// The name of a file without its folder, its ending and what marks it as a pattern.
std::string stem(const std::string& path) {
    const auto name = path.substr(path.rfind('\\') + 1);
    auto bare = name.substr(0, name.rfind('.'));
    constexpr std::string_view mark = "_template";
    if (bare.ends_with(mark)) bare.resize(bare.size() - mark.size());
    return bare;
}

bool is_html(const std::string& path) { return path.ends_with(".htm") || path.ends_with(".html"); }

/// The file among the scenario's that one was made from: another of its name and its kind.
const std::pair<Text, std::string>* source_of(const Story& story, const std::string& path) {
    const auto found = std::ranges::find_if(story.scenario.files, [&](const auto& file) {
        const std::string other = to_utf8(file.first);
        return other != path && stem(other) == stem(path) && is_html(other) == is_html(path) &&
               other.find("_template.") != std::string::npos;
    });
    return found == story.scenario.files.end() ? nullptr : &*found;
}

std::string shown_file(const Story& story, const std::string& caption, const std::string& path,
                       const std::string& text, int height) {
    const std::string frame = is_html(path) ? message_frame(caption, text, story.scenario.files, height)
                                            : plain_text_frame(caption, text, height);
    return element("figure", "", text_element("figcaption", "", caption) + element("div", "letter", frame));
}

std::string written_file(const Story& story, const std::string& path, const std::string& text) {
    const int height = estimated_height(text);
    const auto* source = source_of(story, path);
    const std::string result = shown_file(story, path, path, text, height);
    if (!source) return result;
    return shown_file(story, to_utf8(source->first), to_utf8(source->first), source->second, height) + result;
}

/// Files whose text can be shown, in pairs with what they were made from.
std::string files(const Story& story) {
    std::string shown, removed;
    std::size_t count = 0;
    for (const auto& [path, contents] : part_of(story, "files").items()) {
        if (contents.is_null()) removed += text_element("li", "", path);
        if (!contents.is_string()) continue;
        shown += element("div", "pair", written_file(story, path, contents.get<std::string>()));
        ++count;
    }
    return (shown.empty() ? "" : fold_out(counted(count, "file") + " written", shown)) +
           (removed.empty() ? "" : fold_out("Files removed", element("ul", "", removed)));
}

/// What a program was given to work on.
std::string files_given(const Story& story) {
    if (std::ranges::find(story.scenario.acts, Act::Kind::run, &Act::kind) == story.scenario.acts.end())
        return {};
    std::string shown;
    for (const auto& [path, bytes] : story.scenario.files) {
        const std::string name = to_utf8(path);
        if (is_utf8(bytes)) shown += shown_file(story, name, name, bytes, estimated_height(bytes));
    }
    const std::size_t count = story.scenario.files.size();
    return shown.empty() ? shown : fold_out(counted(count, "file") + " given", element("div", "pair", shown));
}

std::string recipients_of(const Json& mail) {
    std::string names;
    for (const auto& recipient : mail.value("Recipients", Json::array()))
        names += (names.empty() ? "" : ", ") + value_words(recipient);
    return names;
}

/// Messages that no user wrote: reports, and those of Send to Many.
std::string mails(const Story& story) {
    std::string shown;
    const Json& sent = part_of(story, "mails");
    for (const auto& mail : sent) {
        const std::string subject = text_of(mail, "Subject"), html = text_of(mail, "HTMLBody");
        const std::string caption = recipients_of(mail) + ": " + subject;
        const std::string& text = html.empty() ? text_of(mail, "Body") : html;
        shown +=
            shown_file(story, caption, html.empty() ? "mail.txt" : "mail.html", text, estimated_height(text));
    }
    return shown.empty()
               ? shown
               : fold_out(counted(sent.size(), "message") + " of its own", element("div", "pair", shown));
}

} // namespace

std::string changes_section(const Story& story) {
    return files_given(story) + mails(story) + registry(story) + files(story);
}

} // namespace ornavel::rehearsal::report
