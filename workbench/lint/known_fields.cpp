#include "workbench/lint/known_fields.h"

#include "compose/merge.h"

namespace ornavel::workbench {
namespace {

using namespace compose;

void collect(TextView text, std::set<Text>& fields) {
    for (auto begin = text.find(u"[#"); begin != Text::npos; begin = text.find(u"[#", begin + 1)) {
        const auto end = text.find(u"#]", begin);
        if (end == Text::npos) return;
        const TextView field = text.substr(begin, end + 2 - begin);
        if (field.find(u'\\') == Text::npos) fields.emplace(field);
    }
}

void collect(std::span<const MergeBlock> blocks, std::set<Text>& fields) {
    for (const MergeBlock& block : blocks)
        for (const MergeRow& row : block.rows) collect(row.search, fields);
}

bool is_filled(const Text& field, const settings::Store& full, const settings::Store& empty) {
    return merged(field, full) != field && merged(field, empty) != field;
}

KnownFields find_fields() {
    KnownFields known;
    collect(signature_fields(), known.mentioned);
    collect(background_colour(), known.mentioned);
    const auto full = all_fields(u"x"), empty = all_fields(u"");
    for (const Text& field : known.mentioned)
        if (is_filled(field, full, empty)) known.filled.insert(field);
    std::set<Text> files;
    collect(signature_file_fields(), files);
    for (const Text& field : files)
        if (!known.mentioned.contains(field)) known.signature_files.insert(field);
    return known;
}

} // namespace

std::vector<Text> KnownFields::names() const { return {filled.begin(), filled.end()}; }

const KnownFields& known_fields() {
    static const KnownFields known = find_fields();
    return known;
}

Text field_of(const settings::Key& key) { return u"[#" + Text(key.name) + u"#]"; }

void for_each_value(const std::function<void(const MergeRow&)>& take) {
    for (const auto blocks : {signature_fields(), background_colour()})
        for (const MergeBlock& block : blocks)
            for (const MergeRow& row : block.rows)
                if (row.value) take(row);
}

settings::MemoryStore all_fields(TextView value) {
    settings::MemoryStore store;
    for_each_value([&](const MergeRow& row) { settings::save(store, *row.value, value); });
    return store;
}

Text merged(TextView text, const settings::Store& store) {
    Text result(text);
    Merge::of_body(store).apply(result);
    return result;
}

} // namespace ornavel::workbench
