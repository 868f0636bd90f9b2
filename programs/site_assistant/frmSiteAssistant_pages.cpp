// What the pages about the letterhead and about the changes show.
#include "forms/stationery.h"
#include "programs/one_line.h"
#include "programs/site_assistant/checks.h"
#include "programs/site_assistant/frmSiteAssistant.h"
#include "programs/site_assistant/sample_letter.h"
#include "programs/site_assistant/unsaved_settings.h"

namespace ornavel::programs {

using forms::Control;

namespace {

Text or_empty(TextView value) { return value.empty() ? Text(u"(empty)") : in_one_line(value); }

/// "SigFax: (empty) → 12"
Text line_of(const settings::Change& change, const settings::Store& store) {
    return Text(change.key.name) + u": " + or_empty(stored_value(store, change.key)) + u" → " +
           or_empty(change.value.value_or(Text()));
}

/// A list that is filled anew keeps what it shows.
void fill(Control& list, std::vector<Text> items) {
    list.items = std::move(items);
    list.choose(Text(list.text));
}

/// A place that may take long to answer, or never does.
bool is_elsewhere(TextView folder) {
    const Text path = trim(folder);
    return path.starts_with(u"\\\\") || path.starts_with(u"//");
}

} // namespace

/// A name may be longer than its box.
void frmSiteAssistant::show_whole_names() {
    for (const TextView name :
         {u"txtTemplatesFolder", u"txtSignaturesFolder", u"cboTemplates", u"cboSignatures", u"txtvCard"})
        form_[name].tool_tip = form_[name].text;
}

void frmSiteAssistant::open_letterhead() {
    is_unseen_ = false;
    list_stationery();
    render();
}

void frmSiteAssistant::list_stationery() {
    const auto names_in = [&](TextView control) {
        std::vector<Text> names;
        attempt([&] {
            const Text folder(without_end(trim(form_[control].text)));
            platform_.windows.while_user_waits(
                [&] { names = forms::stationery_in(platform_.files, folder); });
        });
        return names;
    };
    fill(form_[u"cboTemplates"], names_in(u"txtTemplatesFolder"));
    std::vector<Text> signatures = names_in(u"txtSignaturesFolder");
    signatures.insert(signatures.begin(), u"none");
    fill(form_[u"cboSignatures"], std::move(signatures));
}

/// One that can't be composed or written leaves the page what it shows.
void frmSiteAssistant::render() {
    show_whole_names();
    attempt([&] {
        UnsavedSettings unsaved(platform_.settings, changes());
        Text html;
        platform_.windows.while_user_waits(
            [&] { html = sample_letter(unsaved, platform_.files, platform_.clock); });
        platform_.files.create_folder(platform_.scratch_folder);
        platform_.files.write(page_of_preview(), encode_html(html));
        form_[u"brwPreview"].visit(page_of_preview());
    });
}

/// A share is asked only once the user opens a list or goes on: not at every letter.
void frmSiteAssistant::folder_typed(TextView control) {
    show_whole_names();
    is_unseen_ = is_elsewhere(form_[control].text);
    if (!is_unseen_) open_letterhead();
}

void frmSiteAssistant::browse(TextView control, forms::PathQuestion question) {
    question.proposed = form_[control].text;
    const auto path = platform_.windows.ask_for_path(question);
    if (!path) return;
    form_[control].text = *path;
    show_whole_names();
    if (form_[control].frame == u"fraLetterhead") open_letterhead();
}

void frmSiteAssistant::open_ready() {
    Control& list = form_[u"lstChanges"];
    list.items.clear();
    for (const settings::Change& change : changes())
        list.items.push_back(line_of(change, platform_.settings));
    form_[u"lblChanges"].caption =
        list.items.empty() ? u"Nothing will change." : u"Finish will &change these settings:";
}

} // namespace ornavel::programs
