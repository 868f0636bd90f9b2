// What the user chooses in the preview window.
#include "forms/frmBrowser.h"

#include "forms/frmBrowser_design.h"
#include "forms/stationery.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;
using namespace preview_design;

/// What a signature profile holds: the user's own fields, which it is copied over.
constexpr const TextKey* profile_fields[] = {
    &admin::SigEmail,
    &admin::SigWebsite,
    &admin::SigWebsiteDisplayName,
    &admin::SigFullname,
    &admin::SigPosition,
    &admin::SigTelephone,
    &admin::SigFax,
    &admin::SigAddress,
    &admin::SigAddress2,
    &admin::SigAddress3,
    &admin::SigAddress4,
    &admin::SigOrganizationName,
    &admin::SigCell,
    &admin::SigWebsiteFR,
    &admin::SigWebsiteDisplayNameFR,
    &admin::SigFullnameFR,
    &admin::SigPositionFR,
    &admin::SigAddressFR,
    &admin::SigAddress2FR,
    &admin::SigAddress3FR,
    &admin::SigAddress4FR,
    &admin::SigOrganizationNameFR,
};

} // namespace

const frmBrowser::Choice frmBrowser::templates{u"cboTemplates", u"cboListTemplates", admin::HTMFilesPath,
                                               user::Template};
const frmBrowser::Choice frmBrowser::signatures{u"cboSignatures", u"cboPrevSigs", admin::SignaturesPath,
                                                user::Signature};

void frmBrowser::on_choice(const Choice& choice) {
    form_.on(choice.shown, Event::drop_down, [this, &choice] { fill(choice); });
    form_.on(choice.shown, Event::click, [this, &choice] { take_entry(choice); });
    form_.on(choice.shown, Event::change, [this, &choice] { take_entry(choice); });
}

void frmBrowser::cmdOptions_Click() {
    const bool shown = form_[u"cmdOptions"].caption == options_folded;
    save(needs_.settings, admin::PreviewOptionsShow, shown ? on : off);
    show_options(shown);
    arrange();
}

void frmBrowser::show_options(bool shown) {
    form_[u"cmdOptions"].caption = shown ? options_shown : options_folded;
    for (const TextView control : options()) form_[control].visible = shown;
    for (const Choice& choice : {templates, signatures})
        form_[choice.shown].choose(display_name(read(needs_.settings, choice.chosen)));
}

/// On the first use only: the user's own list is not built again under their hand.
void frmBrowser::fill(const Choice& choice) {
    Control& shown = form_[choice.shown];
    Control& files = form_[choice.files];
    if (!files.items.empty()) return;
    for (const Text& file : stationery_in(needs_.files, read(needs_.settings, choice.folder))) {
        files.items.push_back(file);
        shown.items.push_back(display_name(file));
    }
    shown.choose(Text(shown.text));
}

/// Typed words name a file as the entries do.
void frmBrowser::take_entry(const Choice& choice) {
    const Control& shown = form_[choice.shown];
    const Control& files = form_[choice.files];
    save(needs_.settings, choice.chosen,
         shown.index < 0 ? shown.text + u".htm" : files.items[static_cast<std::size_t>(shown.index)]);
    render_anew();
}

/// After the last entry comes the first, and so it does after a name that the list does not have.
void frmBrowser::take_next(const Choice& choice) {
    fill(choice);
    const auto& files = form_[choice.files].items;
    if (files.empty()) return;
    const Text current = trim(read(needs_.settings, choice.chosen));
    auto entry = std::ranges::find_if(files, [&](const Text& file) { return same_name(file, current); });
    if (entry != files.end()) ++entry;
    if (entry == files.end()) entry = files.begin();
    form_[choice.shown].select(static_cast<int>(entry - files.begin()));
    take_entry(choice);
}

void frmBrowser::list_colours() {
    Control& names = form_[u"cboBGColourName"];
    Control& codes = form_[u"cboBGColourCode"];
    for (const Colour& colour : colours()) {
        names.items.emplace_back(colour.name);
        codes.items.emplace_back(colour.code);
    }
    codes.choose(read(needs_.settings, admin::SigBGColor));
    names.select(codes.index);
}

void frmBrowser::cboBGColourName_Click() {
    Control& codes = form_[u"cboBGColourCode"];
    codes.select(form_[u"cboBGColourName"].index);
    save(needs_.settings, admin::SigBGColor, codes.text);
    render_anew();
}

void frmBrowser::list_boilerplates() {
    if (!is_on(needs_.settings, admin::ShowBoilerplates)) return;
    Control& shown = form_[u"cboBplates"];
    for (const Text& file : needs_.files.list(read(needs_.settings, admin::HTMFilesPath)))
        if (lower_case(file).ends_with(u".txt")) shown.items.push_back(file);
    form_[u"cboListBplates"].items = shown.items;
    shown.visible = form_[u"lblBplates"].visible = true;
}

/// What is typed counts once it is one of the entries; an empty text takes the choice back.
void frmBrowser::cboBplates_Click() {
    Control& shown = form_[u"cboBplates"];
    shown.choose(Text(shown.text));
    form_[u"cboListBplates"].select(shown.index);
    if (shown.index < 0 && !shown.text.empty()) return;
    boilerplate_ = shown.text;
    render_anew();
}

void frmBrowser::list_profiles() {
    if (!is_on(needs_.settings, admin::MultipleSignatures)) return;
    Control& profiles = form_[u"cboSig"];
    profiles.items = split(read(needs_.settings, user::SignatureList), u";");
    profiles.select(read_number(needs_.settings, admin::CurrentSignature));
    profiles.visible = form_[u"lblSig"].visible = true;
}

/// A field that the profile lacks is emptied: nothing of the profile before stays.
void frmBrowser::cboSig_Click() {
    const Control& profiles = form_[u"cboSig"];
    for (const TextKey* field : profile_fields)
        save(needs_.settings, *field, needs_.settings.find(profiles.text, field->name).value_or(Text()));
    save(needs_.settings, admin::CurrentSignature, to_text(profiles.index));
    render_anew();
}

} // namespace ornavel::forms
