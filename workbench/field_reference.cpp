#include "workbench/field_reference.h"

#include "base/encoding.h"
#include "compose/composition.h"
#include "compose/contact_fields.h"
#include "workbench/lint/known_fields.h"

#include <ostream>

namespace ornavel::workbench {
namespace {

using compose::MergeBlock;
using compose::MergeRow;

constexpr const char* introduction =
    "# All fields\n\n"
    "Made by `tools/ornavel settings --fields --format markdown`; `./check` says when it is out of date. "
    "Fields stand in\n"
    "templates and signatures; capitals count. Messages and Outlook's own signature files are filled by two "
    "merges that\n"
    "know different fields. Five texts of your own (**UserCode1** to **UserCode5**) are replaced first, in "
    "both.\n\n"
    "| field | filled with | messages | signature files | in a message, while it is empty |\n"
    "|---|---|---|---|---|\n";

/// The setting that fills the field in one of the tables; nothing where none does.
const settings::Key* key_in(std::span<const MergeBlock> blocks, const Text& field) {
    for (const MergeBlock& block : blocks)
        for (const MergeRow& row : block.rows)
            if (row.value && row.search == field) return row.value;
    return nullptr;
}

const settings::Key* setting_of(const Text& field) {
    for (const auto blocks :
         {compose::signature_fields(), compose::background_colour(), compose::signature_file_fields()})
        if (const auto* key = key_in(blocks, field)) return key;
    return nullptr;
}

bool is_in(std::span<const MergeBlock> blocks, const Text& field) {
    for (const MergeBlock& block : blocks)
        for (const MergeRow& row : block.rows)
            if (row.search == field) return true;
    return false;
}

/// How many spellings of a whole line go with the field.
std::size_t spellings(const Text& field) {
    std::size_t count = 0;
    for (const MergeBlock& block : compose::signature_fields())
        for (const MergeRow& row : block.rows)
            count += block.when.emptied() && row.search != field && contains(row.search, field);
    return count;
}

Text while_empty(const Text& field, const settings::Key& key) {
    settings::MemoryStore store = all_fields(u"x");
    settings::save(store, key, u"");
    const Text line = merged(field + u"<BR>", store);
    Text words = line.empty()            ? Text(u"the line goes with its break")
                 : contains(line, u"[#") ? Text(u"the field itself stays")
                                         : Text(u"an empty line stays");
    if (const auto count = spellings(field); count > 0)
        words += u"; " + to_text(static_cast<long long>(count)) +
                 u" spellings of a line are known, with labels and breaks";
    return words;
}

FieldRow row_of(const Text& field) {
    const settings::Key* key = setting_of(field);
    FieldRow row{field,
                 key ? Text(key->name) : Text(),
                 known_fields().filled.contains(field),
                 is_in(compose::signature_file_fields(), field),
                 {}};
    if (field == u"[#SigQuote#]") row.source = u"the next quote of TipsFileLocation, while SendQuote is on";
    if (!row.in_messages && !row.in_signature_files)
        row.source = u"nothing: it is known only in front of a number";
    if (key && row.in_messages) row.while_empty = while_empty(field, *key);
    return row;
}

} // namespace

std::vector<FieldRow> field_rows() {
    std::vector<FieldRow> rows{
        {Text(compose::insertion_marker), u"the message; templates only", true, false, {}}};
    for (const Text& field : known_fields().mentioned) rows.push_back(row_of(field));
    for (const Text& field : known_fields().signature_files)
        if (const FieldRow row = row_of(field); row.in_signature_files) rows.push_back(row);
    for (const TextView field : compose::contact_fields)
        rows.push_back({Text(field),
                        u"the contact that the message was made from, while Marketing is Enterprise", true,
                        false, u"the field goes"});
    rows.push_back({u"[#NAME#]",
                    u"the first recipient's address, where Marketing names the field NAME",
                    true,
                    false,
                    {}});
    return rows;
}

void print_field_reference(std::ostream& stream, bool markdown) {
    const auto yes = [](bool is) { return is ? "yes" : ""; };
    if (markdown) stream << introduction;
    for (const FieldRow& row : field_rows())
        if (markdown)
            stream << "| `" << to_utf8(row.field) << "` | " << to_utf8(row.source) << " | "
                   << yes(row.in_messages) << " | " << yes(row.in_signature_files) << " | "
                   << to_utf8(row.while_empty) << " |\n";
        else
            stream << to_utf8(row.field) << "  " << to_utf8(row.source)
                   << (row.while_empty.empty() ? "" : "; while empty: " + to_utf8(row.while_empty)) << '\n';
}

} // namespace ornavel::workbench
