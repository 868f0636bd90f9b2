#include "base/splice.h"
#include "compose/composition.h"
#include "compose/contact_fields.h"
#include "compose/dates.h"
#include "compose/merge.h"

// What fills the composed body: the contact it is written to, the recipient, and the signature fields.

namespace ornavel::compose {
namespace {

using namespace settings;

struct ContactValues {
    Text name, company, folder, id, folder_id;
};

/// The part of a message that a contact's note shows. A long one is cut by the subject's length as well, and
/// a short one not at all: odd, and kept.
Text noted_text(const Text& subject, const Text& body) {
    Text text = replace_all(body, line_end, u" ");
    const std::size_t length = subject.size() + text.size();
    return length < 85 ? text : text.substr(0, length - 85);
}

void note_in(const Composition& c, const host::Contact& contact) {
    const Text subject = c.request.item.subject();
    const Text note = u"[" + note_moment(c.services.clock.now()) + u"] " + subject + u": " +
                      noted_text(subject, c.request.item.body()) + u"\r\n";
    contact.set_body(note + contact.body());
    contact.close_saving();
}

ContactValues contact_values(const Composition& c) {
    const host::Links links = c.request.item.links();
    if (links.count() <= 0)
        return {c.request.item.subject(), c.beginning, u"Mail not created from a contact item", {}, {}};
    const host::Contact contact = links.contact(1);
    const host::Folder folder = contact.parent();
    ContactValues values{contact.full_name(), contact.company_name(), folder.name(), contact.entry_id(),
                         folder.entry_id()};
    if (c.is_on(user::LogContactNotes)) note_in(c, contact);
    return values;
}

void fill_recipient(Composition& c) {
    const Text placeholder = u"[#" + c.services.start_up.usage_log.recipient_field + u"#]";
    if (!contains(c.result, placeholder)) return;
    substitute(c.result, placeholder, c.request.item.recipients().item(1).address());
}

} // namespace

void fill_contact_fields(Composition& c) {
    if (c.for_preview() || c.read(admin::Marketing) != u"Enterprise") return;
    c.log_usage = false;
    const ContactValues values = contact_values(c);
    const Text address = c.read(admin::SigEmail);
    const Pass passes[] = {
        {contact_name_field, values.name},           {contact_company_field, values.company},
        {contact_folder_field, values.folder},       {contact_id_field, values.id},
        {contact_folder_id_field, values.folder_id}, {u"[#SigEmail#]", address},
    };
    if (!Passes(passes).apply_all(c.result)) throw TextTooLarge();
}

void log_usage(Composition& c) {
    if (c.for_preview() || !c.log_usage) return;
    fill_recipient(c);
    const UsageLog& log = c.services.start_up.usage_log;
    if (log.connection_string.empty()) return;
    const UsageRow row{log_moment(c.services.clock.now()), c.read(user::template_),
                       sender_of(c.services.application)};
    write_usage(log, row, c.request.item.recipients(), c.services.objects);
}

void merge_fields(Composition& c) {
    for (auto failures = Merge::of_body(c.settings()).apply(c.result); failures > 0; --failures)
        trap(c.errors, {any_step.sub_function, any_step.section, merge_group}, [] { throw TextTooLarge(); });
}

} // namespace ornavel::compose
