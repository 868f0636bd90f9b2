#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// The number in front of the stand-in's version; 0 where there is none.
inline int major_version(const Host& host) { return numeric_value(TextView(host.version).substr(0, 2)); }

/// From Outlook 2007 on an inspector's EditorType is always Word's, and items have a BodyFormat.
inline bool word_is_the_only_editor(const Host& host) { return major_version(host) >= 12; }
/// From Outlook 2007 on message windows have the ribbon, and no Standard bar.
inline bool message_windows_have_the_ribbon(const Host& host) { return major_version(host) >= 12; }
/// From Outlook 2010 on explorers have it too.
inline bool explorers_have_the_ribbon(const Host& host) { return major_version(host) >= 14; }

/// What the window of an item says of its editor.
inline int editor_type_of(const Item& item, const Host& host) {
    constexpr int word = 4;
    return word_is_the_only_editor(host) ? word : item.editor_type;
}

/// Plain text is 1, HTML 2, and rich text 3, as with the editors; what Word writes is HTML.
inline int body_format_of(const Item& item) {
    constexpr int html = 2, word = 4;
    return item.body_format.value_or(item.editor_type == word ? html : item.editor_type);
}

/// By which of the two the kind of a message is told: 1 is plain text, 3 rich text, and any other HTML.
inline int kind_of(const Item& item, const Host& host) {
    return word_is_the_only_editor(host) ? body_format_of(item) : item.editor_type;
}

} // namespace ornavel::rehearsal
