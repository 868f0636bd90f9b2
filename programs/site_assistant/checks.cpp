#include "programs/site_assistant/checks.h"

#include "base/errors.h"
#include "base/file_address.h"
#include "compose/composition.h"
#include "programs/one_line.h"

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

/// "an e-mail address and a website", or one of them.
Text missing_of(bool one, TextView name, bool other, TextView other_name) {
    return Text(one ? name : TextView()) + (one && other ? u" and " : u"") +
           Text(other ? other_name : TextView());
}

void warn_of_identity(Form& form, Warning& warning) {
    const bool email = trim(form[u"txtSigEmail"].text).empty();
    const bool website = trim(form[u"txtSigWebsite"].text).empty();
    if (email || website)
        warning.add(u"Without " + missing_of(email, u"an e-mail address", website, u"a website") +
                    u", Ornavel Setup opens again at every start of the mail client. ");
}

/// A send needs both, and is refused where one is missing.
void warn_of_choices(TextView template_name, TextView signature, Warning& warning) {
    const bool no_template = !contains(template_name, u".htm");
    const bool no_signature = !contains(signature, u".htm") && !contains(signature, u"none");
    if (no_template || no_signature)
        warning.add(u"Until " + missing_of(no_template, u"a template", no_signature, u"a signature") +
                    (no_template && no_signature ? u" are" : u" is") + u" chosen, messages are held back. ");
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

Text name_of(TextView path) { return Text(path.substr(path.find_last_of(u'\\') + 1)); }

void warn_of_marker(const Text& path, TextView html, Warning& warning) {
    if (!contains(html, compose::insertion_marker))
        warning.add(u"The template ", path,
                    u" has no place for the message (" + Text(compose::insertion_marker) +
                        u"): the text of every message would be lost. ");
}

void warn_of_pictures(TextView html, const Files& files, Warning& warning) {
    const auto pictures = local_pictures(html);
    const auto missing =
        std::ranges::find_if(pictures, [&](const Text& path) { return !files.file_exists(path); });
    if (missing != pictures.end()) warning.add(u"The picture ", *missing, u" is not there. ");
}

/// Of a file that can't be read nothing is known.
Text text_or_nothing(const Files& files, TextView path) {
    Text text;
    attempt([&] { text = read_text(files, path); });
    return text;
}

void warn_of_stationery(Form& form, const Files& files, Warning& warning) {
    const Text name = trim(form[u"cboTemplates"].text), signature = trim(form[u"cboSignatures"].text);
    warn_of_choices(name, signature, warning);
    if (const auto path = template_in_use(files, form[u"txtTemplatesFolder"].text, name))
        if (const Text html = text_or_nothing(files, *path); !html.empty()) {
            warn_of_marker(*path, html, warning);
            warn_of_pictures(html, files, warning);
        }
    if (signature.empty() || signature == u"none") return;
    const Text folder(without_end(form[u"txtSignaturesFolder"].text));
    warn_of_pictures(text_or_nothing(files, folder + u"\\" + signature), files, warning);
}

} // namespace

std::optional<Problem> refusal_of(Form& form, TextView page, const Files& files) {
    for (const Check& check : checks)
        if (check.page == page && check.is_wrong(trim(form[check.control].text), files))
            return Problem{check.control, Text(check.sentence)};
    return {};
}

void Warning::add(TextView sentence) { short_form += sentence, whole += sentence; }

void Warning::add(TextView before, TextView path, TextView behind) {
    constexpr std::size_t longest = 30; // leaves room for the rest of the sentence
    short_form += Text(before) + in_one_line(name_of(path), longest) + Text(behind);
    whole += Text(before) + name_of(path) + Text(behind);
}

Warning warning_of(Form& form, TextView page, const Files& files) {
    Warning warning;
    if (page == u"fraYou") warn_of_identity(form, warning);
    if (page == u"fraLetterhead") warn_of_stationery(form, files, warning);
    if (!warning.whole.empty()) warning.add(u"Next goes on all the same.");
    return warning;
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
            Text path = path_of_address(attribute_value(html.substr(at + name.size())));
            if (names_drive(path) && !contains(path, u"[#")) pictures.push_back(std::move(path));
        }
    return pictures;
}

} // namespace ornavel::programs
