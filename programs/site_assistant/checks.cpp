#include "programs/site_assistant/checks.h"

#include "base/errors.h"
#include "compose/composition.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

using forms::Form;

struct Check {
    TextView page, control;
    bool (*is_wrong)(TextView value, const Files& files);
    TextView sentence;
};

bool has_blank(TextView value) { return value.find_first_of(u" \t\x00A0") != TextView::npos; }

bool is_no_address(TextView value, const Files&) {
    return !value.empty() && (has_blank(value) || !contains(value, u"@"));
}
bool is_no_website(TextView value, const Files&) { return has_blank(value); }
bool is_no_folder(TextView value, const Files& files) { return !files.folder_exists(without_end(value)); }

constexpr TextView website_sentence = u"A website's address has no blanks. Take them out, or leave it empty.";

constexpr Check checks[] = {
    {u"fraYou", u"txtSigEmail", is_no_address,
     u"An e-mail address has an \"@\" and no blanks, such as jo@example.com. Correct it, or leave it empty."},
    {u"fraYou", u"txtSigWebsite", is_no_website, website_sentence},
    {u"fraFrench", u"txtSigWebsiteFR", is_no_website, website_sentence},
    {u"fraLetterhead", u"txtTemplatesFolder", is_no_folder,
     u"This folder of templates is not there. Choose the one in which your templates lie."},
    {u"fraLetterhead", u"txtSignaturesFolder", is_no_folder,
     u"This folder of signatures is not there. Choose the one in which your signatures lie."},
};

Text warning_about_identity(Form& form) {
    const bool email = trim(form[u"txtSigEmail"].text).empty();
    const bool website = trim(form[u"txtSigWebsite"].text).empty();
    if (!email && !website) return {};
    const Text what = email && website ? u"an e-mail address and a website"
                      : email          ? u"an e-mail address"
                                       : u"a website";
    return u"Without " + what +
           u", Ornavel Setup opens again at every start of the mail client. Next goes on all the same.";
}

bool is_drive_path(TextView path) {
    return path.size() > 2 && path[1] == u':' && path[2] == u'\\' &&
           ((path[0] >= u'A' && path[0] <= u'Z') || (path[0] >= u'a' && path[0] <= u'z'));
}

Text as_path(TextView address) {
    Text path = replace_all(Text(address), u"%20", u" ");
    std::ranges::replace(path, u'/', u'\\');
    if (same_name(TextView(path).substr(0, 5), u"file:"))
        path.erase(0, std::min(path.find_first_not_of(u'\\', 5), path.size()));
    return path;
}

/// The value of an attribute, from behind its "=" on.
TextView attribute_value(TextView rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\r\n"), rest.size()));
    if (rest.empty()) return {};
    const bool quoted = rest.front() == u'"' || rest.front() == u'\'';
    const TextView end = quoted ? rest.substr(0, 1) : TextView(u" \t\r\n>");
    if (quoted) rest.remove_prefix(1);
    return rest.substr(0, rest.find_first_of(end));
}

/// A file's name that leaves room for the rest of its sentence.
Text short_name(TextView path) {
    constexpr std::size_t longest = 60;
    const TextView name = path.substr(path.find_last_of(u'\\') + 1);
    return name.size() <= longest ? Text(name) : Text(name.substr(0, longest - 1)) + u"…";
}

Text warning_about_marker(const Text& path, TextView html) {
    if (contains(html, compose::insertion_marker)) return {};
    return u"The template " + short_name(path) + u" has no place for the message (" +
           Text(compose::insertion_marker) + u"): the text of every message would be lost. ";
}

Text warning_about_pictures(TextView html, const Files& files) {
    for (const Text& picture : local_pictures(html))
        if (!files.file_exists(picture)) return u"The picture " + short_name(picture) + u" is not there. ";
    return {};
}

/// Of a file that can't be read nothing is known.
Text text_or_nothing(const Files& files, TextView path) {
    Text text;
    attempt([&] { text = read_text(files, path); });
    return text;
}

Text warning_about_stationery(Form& form, const Files& files) {
    Text warning;
    if (const auto path =
            template_in_use(files, form[u"txtTemplatesFolder"].text, form[u"cboTemplates"].text))
        if (const Text html = text_or_nothing(files, *path); !html.empty())
            warning = warning_about_marker(*path, html) + warning_about_pictures(html, files);
    const Text signature = trim(form[u"cboSignatures"].text);
    if (!signature.empty() && signature != u"none") {
        const Text folder(without_end(form[u"txtSignaturesFolder"].text));
        warning += warning_about_pictures(text_or_nothing(files, folder + u"\\" + signature), files);
    }
    return warning.empty() ? warning : warning + u"Next goes on all the same.";
}

} // namespace

std::optional<Problem> refusal_of(Form& form, TextView page, const Files& files) {
    for (const Check& check : checks)
        if (check.page == page && check.is_wrong(trim(form[check.control].text), files))
            return Problem{check.control, Text(check.sentence)};
    return {};
}

Text warning_of(Form& form, TextView page, const Files& files) {
    if (page == u"fraYou") return warning_about_identity(form);
    return page == u"fraLetterhead" ? warning_about_stationery(form, files) : Text();
}

TextView without_end(TextView folder) {
    while (folder.size() > 3 && folder.ends_with(u'\\')) folder.remove_suffix(1);
    return folder;
}

std::optional<Text> template_in_use(const Files& files, TextView folder, TextView name) {
    const Text home(without_end(trim(folder)));
    const Text path = home + u"\\" + trim(name);
    if (files.file_exists(path)) return path;
    const auto first = first_html_file(files, home);
    if (!first) return {};
    return home + u"\\" + *first;
}

std::vector<Text> local_pictures(TextView html) {
    std::vector<Text> pictures;
    const Text lower = lower_case(html);
    for (const TextView name : {u"src=", u"background="})
        for (auto at = lower.find(name); at != Text::npos; at = lower.find(name, at + 1)) {
            Text path = as_path(attribute_value(html.substr(at + name.size())));
            if (is_drive_path(path) && !contains(path, u"[#")) pictures.push_back(std::move(path));
        }
    return pictures;
}

} // namespace ornavel::programs
