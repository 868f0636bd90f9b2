#include "host/mail_item.h"

namespace ornavel::host {

SafeMailItem SafeMailItem::around(Objects& objects, const MailItem& item) {
    SafeMailItem safe(objects.create(u"Redemption.SafeMailItem"));
    safe.put({u"Item"}, item.object());
    return safe;
}

} // namespace ornavel::host
