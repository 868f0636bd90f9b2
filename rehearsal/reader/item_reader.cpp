#include "rehearsal/reader/parts.h"

namespace ornavel::rehearsal {
namespace {

RecipientEntry read_recipient(const JsonPlace& place) {
    RecipientEntry recipient;
    if (place.is_text()) {
        recipient.address = place.text();
        return recipient;
    }
    if (!place.is_object()) place.refuse("expected an address or an object");
    place.fields({
        {"name", [&](const JsonPlace& at) { recipient.name = at.text(); }},
        {"address", [&](const JsonPlace& at) { recipient.address = at.text(); }},
        {"type", [&](const JsonPlace& at) { recipient.type = static_cast<int>(at.number(1, 3)); }},
    });
    return recipient;
}

WordDocument read_word(const JsonPlace& place) {
    WordDocument word;
    place.fields({
        {"Version", [&](const JsonPlace& at) { word.version = at.text(); }},
        {"html", [&](const JsonPlace& at) { word.html = at.text(); }},
    });
    return word;
}

Contact read_link(const JsonPlace& place) {
    Contact contact;
    const auto read_folder = [&](const JsonPlace& folder) {
        folder.fields({
            {"Name", [&](const JsonPlace& at) { contact.folder_name = at.text(); }},
            {"EntryID", [&](const JsonPlace& at) { contact.folder_entry_id = at.text(); }},
        });
    };
    place.fields({
        {"FullName", [&](const JsonPlace& at) { contact.full_name = at.text(); }},
        {"CompanyName", [&](const JsonPlace& at) { contact.company_name = at.text(); }},
        {"EntryID", [&](const JsonPlace& at) { contact.entry_id = at.text(); }},
        {"Folder", read_folder},
        {"Body", [&](const JsonPlace& at) { contact.body = at.text(); }},
    });
    return contact;
}

void read_user_properties(Item& item, const JsonPlace& place) {
    place.each_member(
        [&](const Text& name, const JsonPlace& at) { item.user_properties.emplace_back(name, at.text()); });
}

} // namespace

Item read_item(const JsonPlace& place) {
    Item item;
    const auto text = [](Text& field) { return [&field](const JsonPlace& at) { field = at.text(); }; };
    const auto number = [](int& field) {
        return [&field](const JsonPlace& at) { field = at.small_number(); };
    };
    const auto flag = [](bool& field) { return [&field](const JsonPlace& at) { field = at.flag(); }; };
    const auto each = [](const auto& visit) {
        return [&visit](const JsonPlace& at) { at.each_element(visit); };
    };
    const auto add_recipient = [&](const JsonPlace& at) { item.recipients.push_back(read_recipient(at)); };
    const auto add_attachment = [&](const JsonPlace& at) { item.attachments.push_back(at.text()); };
    const auto add_link = [&](const JsonPlace& at) { item.links.push_back(read_link(at)); };
    place.fields({
        {"MessageClass", text(item.message_class)},
        {"Parent", text(item.parent)},
        {"Subject", text(item.subject)},
        {"Body", text(item.body)},
        {"HTMLBody", text(item.html_body)},
        {"BillingInformation", text(item.billing_information)},
        {"EditorType", number(item.editor_type)},
        {"BodyFormat", [&](const JsonPlace& at) { item.body_format = at.small_number(); }},
        {"IsWordMail", flag(item.is_word_mail)},
        {"Recipients", each(add_recipient)},
        {"Attachments", each(add_attachment)},
        {"UserProperties", [&](const JsonPlace& at) { read_user_properties(item, at); }},
        {"Importance", number(item.importance)},
        {"Sensitivity", number(item.sensitivity)},
        {"ReadReceiptRequested", flag(item.read_receipt_requested)},
        {"OriginatorDeliveryReportRequested", flag(item.delivery_report_requested)},
        {"Categories", text(item.categories)},
        {"FlagRequest", text(item.flag_request)},
        {"Word", [&](const JsonPlace& at) { item.word = read_word(at); }},
        {"Links", each(add_link)},
    });
    return item;
}

} // namespace ornavel::rehearsal
