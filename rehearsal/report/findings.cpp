#include "rehearsal/report/findings.h"

#include "base/encoding.h"
#include "rehearsal/report/pictures.h"
#include "rehearsal/report/visible_text.h"
#include "rehearsal/report/words.h"

#include <algorithm>
#include <set>

namespace ornavel::rehearsal::report {
namespace {

using Sentences = std::vector<std::string>;

TextView folder_of(TextView path) {
    const auto end = path.find_last_of(u'\\');
    return end == TextView::npos ? TextView() : path.substr(0, end);
}

std::string name_of_file(TextView path) { return to_utf8(path.substr(path.find_last_of(u'\\') + 1)); }

/// A setting that names a file, and the one that names its folder.
struct Choice {
    const char* word;
    TextView setting, folder;
};
constexpr Choice template_choice{"template", u"User Settings / Template", u"Admin Settings / HTM Files Path"},
    signature_choice{"signature", u"User Settings / Signature", u"Admin Settings / Signatures Path"};

Text folder_of(const Choice& choice, const Story& story, const Send& send) {
    Text folder = value_read(story, send, choice.folder);
    if (folder.empty()) folder = u"C:\\temp";
    while (folder.ends_with(u'\\')) folder.pop_back();
    return folder;
}

/// The last file of a choice's folder that was read.
std::string last_read(const Choice& choice, const Story& story, const Send& send) {
    const Text folder = folder_of(choice, story, send);
    std::string name;
    for (const auto* read : deeds_of(story, send, Deed::read_file))
        if (!read->failed && same_name(folder_of(read->what), folder)) name = name_of_file(read->what);
    return name;
}

/// The first line of a log's text without the date that it begins with.
std::string without_date(const Text& text) {
    const Text line = text.substr(0, text.find_first_of(u"\r\n"));
    const auto end = line.find(u", ");
    return to_utf8(trim(end == Text::npos ? TextView(line) : TextView(line).substr(end + 2)));
}

void errors(const Story& story, const Send& send, Sentences& sentences) {
    const std::size_t before = sentences.size();
    for (const auto* written : deeds_of(story, send, Deed::write_file)) {
        if (!written->value.starts_with(u"Date: ")) continue;
        sentences.push_back(written->failed ? "The error log can't be written: " + to_utf8(written->failure)
                                            : "The error log says: " + without_date(written->value));
    }
    if (sentences.size() > before) return;
    for (const auto* sprung : deeds_of(story, send, Deed::trap))
        sentences.push_back("An error was caught, and nothing is in the log: " + to_utf8(sprung->value));
}

std::vector<std::string> words_written(const Item& item) {
    if (!item.html_body.empty()) return visible_words(to_utf8(item.html_body));
    if (item.is_word_mail && item.word) return visible_words(to_utf8(item.word->html));
    return words_of(to_utf8(item.body));
}

void lost_text(const Item& before, const std::string& html, Sentences& sentences) {
    const std::string missing = missing_words(words_written(before), visible_words(html));
    if (!missing.empty())
        sentences.push_back("The user's text is not all there; missing is " + quoted(missing) + ".");
}

void fields_left_over(const std::string& html, Sentences& sentences) {
    constexpr std::size_t longest = 60;
    std::set<std::string> told;
    for (auto at = html.find("[#"); at != std::string::npos; at = html.find("[#", at + 1)) {
        const auto end = html.find("#]", at);
        if (end == std::string::npos || end - at > longest) continue;
        const std::string field = html.substr(at, end + 2 - at);
        if (told.insert(field).second) sentences.push_back("The field " + field + " is left over.");
    }
}

bool is_there(const Story& story, TextView path) {
    for (const auto& [name, bytes] : story.scenario.files)
        if (same_name(name, path)) return true;
    const Json files = story.outcome.value("files", Json::object());
    for (const auto& [name, contents] : files.items())
        if (!contents.is_null() && same_name(from_utf8(name), path)) return true;
    return false;
}

/// Another file takes the place of one that is not there, and nobody is told.
void missing_choice(const Choice& choice, const Story& story, const Send& send, Sentences& sentences) {
    const Text name = value_read(story, send, choice.setting);
    if (name.empty() || name == u"none" || is_there(story, folder_of(choice, story, send) + u'\\' + name))
        return;
    sentences.push_back("The " + std::string(choice.word) + ' ' + to_utf8(name) + " is not there.");
}

void missing_pictures(const Story& story, const std::string& html, Sentences& sentences) {
    for (const auto& address : pictures_in(html)) {
        const Text path = path_of_picture(address);
        if (path.empty() || is_there(story, path)) continue;
        sentences.push_back("The picture " + to_utf8(path) + " is not there.");
    }
}

/// The windows of the outcome stand in the order of the journal's.
void unanswered_windows(const Story& story, const Send& send, Sentences& sentences) {
    const Json windows = story.outcome.value("windows", Json::array());
    std::size_t number = 0;
    for (const auto& entry : story.journal) {
        if (entry.deed != Deed::window) continue;
        const std::size_t place = number++;
        if (entry.act == send.act && place < windows.size() && windows[place].value("unexpected", false))
            sentences.push_back("Nobody answered the window " + quoted(title_of_window(windows[place])) +
                                ".");
    }
}

} // namespace

std::vector<const JournalEntry*> deeds_of(const Story& story, const Send& send, Deed deed) {
    std::vector<const JournalEntry*> deeds;
    for (const auto& entry : story.journal)
        if (entry.act == send.act && entry.deed == deed) deeds.push_back(&entry);
    return deeds;
}

Text value_read(const Story& story, const Send& send, TextView setting) {
    Text value;
    for (const auto* read : deeds_of(story, send, Deed::read_setting))
        if (same_name(read->what, setting)) value = read->value;
    return value;
}

std::string template_read(const Story& story, const Send& send) {
    return last_read(template_choice, story, send);
}

std::string signature_read(const Story& story, const Send& send) {
    const std::string name = last_read(signature_choice, story, send);
    return name == template_read(story, send) ? std::string() : name;
}

std::vector<std::string> findings_in(const Story& story, const Send& send) {
    Sentences sentences;
    errors(story, send, sentences);
    const Json& after = story.outcome.at("items").at(send.item);
    const std::string html = text_of(after, "HTMLBody");
    if (is_stamped(story, send) && !html.empty()) {
        missing_choice(template_choice, story, send, sentences);
        missing_choice(signature_choice, story, send, sentences);
        lost_text(story.scenario.items.at(send.item), html, sentences);
        fields_left_over(html, sentences);
        missing_pictures(story, html, sentences);
    }
    unanswered_windows(story, send, sentences);
    return sentences;
}

} // namespace ornavel::rehearsal::report
