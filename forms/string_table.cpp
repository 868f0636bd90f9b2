#include "forms/string_table.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

struct Row {
    int id;
    TextView text;
};

#define TEXT_ROW(id, name, text) {id, u"" text},
constexpr Row rows[] = {
#include "forms/string_table.inc"
};
#undef TEXT_ROW

class BuiltInStrings final : public StringTable {
public:
    std::optional<Text> find(int id) const override {
        const auto row = std::ranges::find(rows, id, &Row::id);
        if (row == std::end(rows)) return {};
        return Text(row->text);
    }
};

} // namespace

Text load_text(const StringTable& table, int id) { return table.find(id).value_or(Text()); }

const StringTable& built_in_strings() {
    static const BuiltInStrings strings;
    return strings;
}

} // namespace ornavel::forms
