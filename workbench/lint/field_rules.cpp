#include "base/nearest.h"
#include "compose/composition.h"
#include "compose/contact_fields.h"
#include "compose/usage_log.h"
#include "workbench/lint/known_fields.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

bool filled_from_elsewhere(const Sheet& sheet, TextView field) {
    const auto& store = sheet.ground.store;
    const Text recipient = compose::Get_Marketing_Info(store).recipient_field;
    return field == compose::insertion_marker || field == u"[#" + recipient + u"#]";
}

bool is_contact_field(TextView field) {
    return std::ranges::find(compose::contact_fields, field) != std::end(compose::contact_fields);
}

void tell_contact_field(const Sheet& sheet, std::size_t at, TextView field) {
    const bool on = read(sheet.ground.store, settings::admin::Marketing) == u"Enterprise";
    if (on || !sheet.ground.file) return;
    sheet.tell(at, "field-unknown",
               Text(field) + u" is filled only while Marketing is \"Enterprise\", and it is not",
               u"Set Marketing, or take the field out");
}

std::optional<Text> in_right_case(TextView field) {
    for (const Text& known : known_fields().filled)
        if (same_name(known, field)) return known;
    return {};
}

void tell_unknown(const Sheet& sheet, std::size_t at, const Text& field) {
    if (const auto right = in_right_case(field))
        return sheet.tell(at, "field-case", u"No merge fills " + field + u": capitals count",
                          u"Write " + *right);
    if (known_fields().signature_files.contains(field))
        return sheet.tell(at, "field-unknown",
                          field + u" is filled only in the mail client's own signature files",
                          u"Take it out of templates and signatures");
    const auto near = nearest(field, known_fields().names());
    sheet.tell(at, "field-unknown", u"No merge fills " + field,
               near ? u"Did you mean " + *near + u"?" : Text(u"docs/fields.md lists all fields"));
}

/// The field that begins there; nothing for one that never ends.
std::optional<Text> field_at(const Text& text, std::size_t begin) {
    const auto end = text.find(u"#]", begin + 2);
    if (end == Text::npos) return {};
    const Text field = text.substr(begin, end + 2 - begin);
    const bool broken = field.find(u"[#", 2) != Text::npos || field.find_first_of(u"\r\n<>") != Text::npos;
    return broken ? std::nullopt : std::optional(field);
}

} // namespace

void check_fields(const Sheet& sheet) {
    const Text& text = sheet.page.text;
    for (auto at = text.find(u"[#"); at != Text::npos; at = text.find(u"[#", at + 2)) {
        const auto field = field_at(text, at);
        if (!field)
            sheet.tell(at, "field-open", u"A field begins here and does not end with \"#]\"",
                       u"Close it, in the same line");
        else if (is_contact_field(*field))
            tell_contact_field(sheet, at, *field);
        else if (!known_fields().filled.contains(*field) && !filled_from_elsewhere(sheet, *field))
            tell_unknown(sheet, at, *field);
    }
}

} // namespace ornavel::workbench
