#pragma once

#include "host/mail_item.h"
#include "settings/store.h"

namespace ornavel::compose {

/// Gives an item of internal mail the short signature: in front of the reply marker where the body holds one,
/// else at the end. Plain and rich text get its text form in the body, anything else its HTML form in the
/// HTML body. editor: the item's, as the host numbers it.
void add_internal_signature(const settings::Store& settings, const host::MailItem& item, int editor,
                            TextView reply_marker);

/// The signature of plain-text mail, as HTML lines of two columns.
Text text_signature(const settings::Store& settings);

} // namespace ornavel::compose
