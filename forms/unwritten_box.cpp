#include "forms/unwritten_box.h"

namespace ornavel::forms {
namespace {

constexpr std::size_t most_named = 10; // a file that is imported may hold hundreds

Text names_of(const std::vector<const settings::Key*>& keys) {
    Text names;
    for (std::size_t i = 0; i < keys.size() && i < most_named; ++i)
        names += (names.empty() ? u"" : u", ") + Text(keys[i]->name);
    if (keys.size() > most_named)
        names += u" and " + to_text(static_cast<long long>(keys.size() - most_named)) + u" more";
    return names;
}

} // namespace

void tell_unwritten(MessageBoxes& boxes, TextView title, const settings::Unwritten& unwritten) {
    const Text refused(unwritten.refused->name);
    if (unwritten.changed.empty())
        return boxes.inform(title,
                            u"Nothing was changed, because the setting " + refused + u" can't be written.");
    boxes.inform(title, u"The setting " + refused +
                            u" can't be written, and what was written before it can't be taken back: " +
                            names_of(unwritten.changed) + u".");
}

} // namespace ornavel::forms
