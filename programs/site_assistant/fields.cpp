#include "programs/site_assistant/fields.h"

#include "settings/modes.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

using namespace settings;
using forms::Control;
using forms::ControlKind;
using forms::Form;

constexpr Field fields[] = {
    {u"txtSigFullname", admin::SigFullname, true},
    {u"txtSigPosition", admin::SigPosition, true},
    {u"txtSigOrganizationName", admin::SigOrganizationName, true},
    {u"txtSigEmail", admin::SigEmail, true},
    {u"txtSigWebsite", admin::SigWebsite, true},
    {u"txtSigTelephone", admin::SigTelephone, true},
    {u"txtSigFax", admin::SigFax, true},
    {u"txtSigCell", admin::SigCell, true},
    {u"txtSigAddress", admin::SigAddress, true},
    {u"txtSigAddress2", admin::SigAddress2, true},
    {u"txtSigAddress3", admin::SigAddress3, true},
    {u"txtSigAddress4", admin::SigAddress4, true},
    {u"txtSigFullnameFR", admin::SigFullnameFR, true},
    {u"txtSigPositionFR", admin::SigPositionFR, true},
    {u"txtSigOrganizationNameFR", admin::SigOrganizationNameFR, true},
    {u"txtSigWebsiteFR", admin::SigWebsiteFR, true},
    {u"txtSigAddressFR", admin::SigAddressFR, true},
    {u"txtSigAddress2FR", admin::SigAddress2FR, true},
    {u"txtSigAddress3FR", admin::SigAddress3FR, true},
    {u"txtSigAddress4FR", admin::SigAddress4FR, true},
    {u"txtTemplatesFolder", admin::HTMFilesPath},
    {u"txtSignaturesFolder", admin::SignaturesPath},
    {u"cboTemplates", user::Template},
    {u"cboSignatures", user::Signature},
    {u"cboMode", user::SettingButtonBar},
    {u"chkAutoPreview", admin::AutoPreview},
    {u"chkReplyAsIs", user::ReplyAsIs},
    {u"txtvCard", user::vCardPath},
    {u"chkSendvCard", user::SendvCard},
    {u"chkInsertDate", user::InsertDate},
    {u"chkSendQuote", user::SendQuote},
};

struct Mode {
    TextView value, name;
};

constexpr Mode modes[] = {
    {settings::modes::automatic, u"Dress automatically"},
    {settings::modes::on, u"Ask me for each message"},
    {settings::modes::off, u"Off"},
    {settings::modes::signature, u"The mail client's own signature"},
};

constexpr TextView ticked_tick = u"1", empty_tick = u"0";

TextView value_of_box(const Key& key, bool ticked) {
    if (key.kind == SettingKind::tick) return ticked ? ticked_tick : empty_tick;
    return ticked ? on : off;
}

bool is_ticked_by(const Key& key, TextView value) { return value == value_of_box(key, true); }

TextView mode_named(TextView name) {
    const auto mode = std::ranges::find(modes, name, &Mode::name);
    return mode == std::end(modes) ? name : mode->value;
}

TextView name_of_mode(TextView value) {
    const auto mode = std::ranges::find(modes, value, &Mode::value);
    return mode == std::end(modes) ? TextView() : mode->name;
}

bool is_mode(const Key& key) { return key.name == user::SettingButtonBar.name; }

/// A stored value, as the control would say it.
Text as_shown(const Field& field, const Control& control, TextView stored) {
    if (control.kind == ControlKind::check_box)
        return Text(value_of_box(field.key, is_ticked_by(field.key, stored)));
    if (is_mode(field.key)) return Text(mode_named(name_of_mode(stored)));
    return Text(stored);
}

/// The names of the files without folder and extension; several stand with ";" between them.
Text names_of_files(TextView paths) {
    Text names;
    for (const Text& path : split(paths, u";")) {
        const Text file = path.substr(path.find_last_of(u"\\/") + 1);
        names += (names.empty() ? u"" : u";") + file.substr(0, file.find_last_of(u'.'));
    }
    return names;
}

/// Whether the user, or the wizard for them, says something else than was stored. What nobody touched stays
/// as it is, blanks around it and all.
bool is_meant(const Field& field, const Control& control, const Beginning& beginning, TextView shown) {
    const Text stored = as_shown(field, control, beginning.stored);
    return shown != stored && trim(shown) != stored;
}

void add_name_of_vcard(std::vector<Change>& changes, TextView path, const Store& store) {
    const Text name = names_of_files(path);
    if (name != stored_value(store, user::vCard)) changes.push_back({user::vCard, name});
}

} // namespace

std::span<const Field> setup_fields() { return fields; }

Text stored_value(const Store& store, const Key& key) {
    return store.find(key.section, key.name).value_or(Text(value_where_absent(key)));
}

void show_value(Form& form, const Field& field, TextView value) {
    Control& control = form[field.control];
    if (control.kind == ControlKind::check_box)
        control.ticked = is_ticked_by(field.key, value);
    else if (is_mode(field.key))
        control.choose(name_of_mode(value));
    else if (control.kind == ControlKind::combo_box)
        control.choose(value);
    else
        control.text = value;
}

Text shown_value(Form& form, const Field& field) {
    const Control& control = form[field.control];
    if (control.kind == ControlKind::check_box) return Text(value_of_box(field.key, control.ticked));
    return is_mode(field.key) ? Text(mode_named(control.text)) : control.text;
}

std::vector<Change> changes_in(Form& form, const Store& store, std::span<const Beginning> beginnings) {
    std::vector<Change> changes;
    for (std::size_t i = 0; i < beginnings.size(); ++i) {
        const Field& field = fields[i];
        const Control& control = form[field.control];
        if (control.frame == u"fraFrench" && !form[u"chkFrench"].ticked) continue;
        const Text shown = shown_value(form, field), value = trim(shown);
        if (!is_meant(field, control, beginnings[i], shown)) continue;
        const Text now = stored_value(store, field.key);
        const bool is_overtaken = shown == beginnings[i].shown && now != beginnings[i].stored;
        if (value == now || is_overtaken) continue;
        changes.push_back({field.key, value});
        if (field.key.name == user::vCardPath.name) add_name_of_vcard(changes, value, store);
    }
    return changes;
}

void list_modes(Control& list, TextView mode_now) {
    for (const Mode& mode : modes)
        if (mode.value != settings::modes::signature || mode_now == settings::modes::signature)
            list.items.emplace_back(mode.name);
}

} // namespace ornavel::programs
