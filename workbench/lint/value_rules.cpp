#include "compose/usage_log.h"
#include "workbench/lint/known_fields.h"
#include "workbench/lint/sheet.h"

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr struct {
    const TextKey &code, &swap;
} user_codes[] = {
    {templates::UserCode1, templates::UserSwap1}, {templates::UserCode2, templates::UserSwap2},
    {templates::UserCode3, templates::UserSwap3}, {templates::UserCode4, templates::UserSwap4},
    {templates::UserCode5, templates::UserSwap5},
};

MemoryStore without_user_codes(const Ground& ground) {
    MemoryStore store = ground.store;
    for (const auto& [code, swap] : user_codes) save(store, swap, u"");
    return store;
}

void tell(const Ground& ground, Findings& findings, const Key& key, std::string_view rule, Text message,
          Text mend) {
    findings.add(ground.file->path, ground.file->place_of(key), rule, std::move(message), std::move(mend));
}

/// A value that the merge puts in and changes again.
void check_replaced(const Ground& ground, Findings& findings, const compose::MergeRow& row) {
    const Text field(row.search), value = read(ground.store, *row.value, row.fallback);
    if (value.empty() || field != field_of(*row.value) ||
        !ground.store.find(row.value->section, row.value->name))
        return;
    if (merged(field, without_user_codes(ground)) == value || merged(field, all_fields(u"")) == field) return;
    const Text becomes = merged(field, ground.store);
    if (becomes == value) return;
    tell(ground, findings, *row.value, "value-is-pattern",
         u"The value of " + Text(row.value->name) + u" is replaced again: " + shown(value) + u" becomes " +
             shown(becomes),
         u"Write a value that holds no field and no label with one");
}

void check_user_code(const Ground& ground, Findings& findings, const TextKey& code, const TextKey& swap) {
    const Text search = read(ground.store, code), replacement = read(ground.store, swap);
    if (search.empty() || replacement.empty()) return;
    if (const Text becomes = merged(search, ground.store); becomes != replacement)
        return tell(ground, findings, swap, "value-is-pattern",
                    u"What " + Text(swap.name) + u" puts in is replaced again: " + shown(replacement) +
                        u" becomes " + shown(becomes),
                    u"Write a text that holds no field");
    for (const Text& field : known_fields().filled)
        if (contains(field, search))
            return tell(ground, findings, code, "value-is-pattern",
                        Text(code.name) + u" occurs in the field " + field + u", which is then never filled",
                        u"Use a text that occurs nowhere else");
}

/// Where an "&" begins no entity, or a "<" or ">" stands; npos where nothing does.
std::size_t markup_in(TextView value) {
    for (auto at = value.find_first_of(u"&<>"); at != Text::npos; at = value.find_first_of(u"&<>", at + 1)) {
        if (value[at] != u'&') return at;
        std::size_t end = at + 1;
        while (end < value.size() && end < at + 12 && value[end] != u';' && value[end] != u' ' &&
               value[end] != u'&')
            ++end;
        if (end == value.size() || value[end] != u';' || end == at + 1) return at;
    }
    return Text::npos;
}

void check_markup(const Ground& ground, Findings& findings, const TextKey& key) {
    const auto value = ground.store.find(key.section, key.name);
    if (!value) return;
    const auto at = markup_in(*value);
    if (at == Text::npos) return;
    tell(ground, findings, key, "value-markup",
         Text(key.name) + u" goes into HTML as it stands, and " + shown(TextView(*value).substr(at)) +
             u" is markup there",
         u"Write &amp; for \"&\", &lt; for \"<\", &gt; for \">\", unless markup is meant");
}

void check_usage_log(const Ground& ground, Findings& findings) {
    const Text name = read(ground.store, user::template_);
    if (!compose::Get_Marketing_Info(ground.store).enabled || !contains(name, u"'")) return;
    tell(ground, findings, user::Template, "value-markup",
         u"The template's name goes into the SQL of the usage log as it stands, and \"'\" ends a text there",
         u"Give the template a name without \"'\"");
}

} // namespace

void check_values(const Ground& ground, Findings& findings) {
    std::set<TextView> seen;
    for_each_value([&](const compose::MergeRow& row) {
        if (!seen.insert(row.value->name).second) return;
        check_markup(ground, findings, *row.value);
    });
    seen.clear();
    for_each_value([&](const compose::MergeRow& row) {
        if (row.search != field_of(*row.value) || !seen.insert(row.value->name).second) return;
        check_replaced(ground, findings, row);
    });
    for (const auto& [code, swap] : user_codes) check_user_code(ground, findings, code, swap);
    check_usage_log(ground, findings);
}

} // namespace ornavel::workbench
