#include "base/find.h"
#include "compose/merge_rows.h"
#include "workbench/lint/known_fields.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

// Lines that stay while the value of their field is empty. What goes and what stays is found by running the
// merge.

namespace ornavel::workbench {
namespace {

using compose::MergeBlock;

constexpr TextView blocks_of_lines[] = {u"p",  u"div", u"td", u"th",   u"tr", u"table",
                                        u"li", u"ul",  u"ol", u"h1",   u"h2", u"h3",
                                        u"h4", u"h5",  u"h6", u"body", u"hr", u"center"};

bool ends_line(const Tag& tag) {
    return tag.name == u"br" || std::ranges::find(blocks_of_lines, tag.name) != std::end(blocks_of_lines);
}

/// The line around a position, with the break that ends it.
TextView line_around(const Page& page, std::size_t position) {
    std::size_t begin = 0, end = page.text.size();
    for (const Tag& tag : page.tags) {
        if (!ends_line(tag)) continue;
        if (tag.end <= position) {
            begin = tag.end;
            continue;
        }
        end = tag.name == u"br" ? tag.end : tag.begin;
        break;
    }
    return TextView(page.text).substr(begin, end - begin);
}

bool has_break(TextView html) { return find_in_either_case(html, u"<br") != Text::npos; }

/// Settings in which every field has a value but this one.
settings::MemoryStore all_but(const settings::Key& key) {
    settings::MemoryStore store = all_fields(u"x");
    settings::save(store, key, u"");
    return store;
}

/// What stays of a line while the key is empty; nothing where all of it goes.
std::optional<Text> rest_of(TextView line, const settings::Key& key) {
    const Text left = merged(line, all_but(key));
    const Text text = visible_text(left);
    if (text.empty() && !has_break(left)) return {};
    return text;
}

/// A spelling of the line that goes altogether: one with the same label where there is one.
Text spelling_that_goes(const MergeBlock& block, TextView line, const settings::Key& key) {
    const Text field = field_of(key), label = visible_text(line.substr(0, line.find(field)));
    Text plain;
    for (const compose::MergeRow& row : block.rows) {
        const TextView search = row.search;
        const auto at = search.find(field);
        if (at == Text::npos || !has_break(search) || rest_of(search, key)) continue;
        const Text its_label = visible_text(search.substr(0, at));
        if (same_name(its_label, label)) return Text(search);
        if (plain.empty() && !its_label.empty()) plain = search;
        if (its_label.empty() && label.empty()) plain = search;
    }
    return plain.empty() ? field + u"<BR>" : plain;
}

/// Whether the line holds other fields than those of the key: it is another's line as well.
bool is_shared(TextView line, const settings::Key& key) {
    const Text name = u"[#" + Text(key.name);
    for (auto at = line.find(u"[#"); at != Text::npos; at = line.find(u"[#", at + 1))
        if (!same_name(line.substr(at, name.size()), name)) return true;
    return false;
}

void check_line(const Sheet& sheet, std::size_t at, const settings::Key& key, const MergeBlock* block) {
    const TextView line = line_around(sheet.page, at);
    if (is_shared(line, key)) return;
    const auto rest = rest_of(line, key);
    if (!rest || (rest->empty() && !has_break(line))) return;
    const Text what = rest->empty() ? Text(u"an empty line stays") : shown(*rest) + u" stays";
    sheet.tell(at, "field-rest", u"While " + Text(key.name) + u" is empty, " + what,
               block ? u"A line written as " + spelling_that_goes(*block, line, key) + u" goes with its value"
                     : Text(u"No spelling of this line goes with its value: fill it, or take the line out"));
}

void check_each(const Sheet& sheet, const settings::Key& key, const MergeBlock* block) {
    const Text field = field_of(key);
    const Text& text = sheet.page.text;
    for (auto at = text.find(field); at != Text::npos; at = text.find(field, at + 1))
        if (!sheet.page.hides(at)) check_line(sheet, at, key, block);
}

} // namespace

void check_empty_lines(const Sheet& sheet) {
    std::set<TextView> with_rules;
    for (const MergeBlock& block : compose::signature_fields())
        if (const auto* key = block.when.emptied()) {
            with_rules.insert(key->name);
            check_each(sheet, *key, &block);
        }
    if (!sheet.ground.file) return;
    std::set<TextView> seen;
    for_each_value([&](const compose::MergeRow& row) {
        const bool own = row.search == field_of(*row.value) && !with_rules.contains(row.value->name);
        const bool empty = settings::read(sheet.ground.store, *row.value).empty();
        if (own && empty && seen.insert(row.value->name).second) check_each(sheet, *row.value, nullptr);
    });
}

} // namespace ornavel::workbench
