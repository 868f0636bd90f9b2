#include "rehearsal/outcome.h"

#include "base/encoding.h"
#include "rehearsal/model/application.h"
#include "rehearsal/model/versions.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

Json recipient_outcome(const RecipientNode& recipient) {
    if (recipient.name.empty() && recipient.type == 1) return to_json(recipient.address);
    Json json{{"name", to_json(recipient.name)}, {"address", to_json(recipient.address)}};
    if (recipient.type != 1) json["type"] = recipient.type;
    return json;
}

template <class Nodes, class Show>
Json list(const Nodes& nodes, Show show) {
    Json json = Json::array();
    for (const auto& node : nodes) json.push_back(show(*node));
    return json;
}

Json texts(const std::vector<Text>& entries) {
    Json json = Json::array();
    for (const auto& entry : entries) json.push_back(to_json(entry));
    return json;
}

Json attachments_of(const MailItemNode& item) {
    return list(item.attachment_nodes, [](const AttachmentNode& node) { return to_json(node.path); });
}

Json user_properties_of(const MailItemNode& item) {
    Json json = Json::object();
    for (const auto& node : item.user_property_nodes) json[to_utf8(node->name)] = to_json(node->value);
    return json;
}

Json contact_outcome(const ContactNode& contact) {
    return {{"FullName", to_json(contact.full_name)},
            {"CompanyName", to_json(contact.company_name)},
            {"Body", to_json(contact.body)},
            {"closed with", contact.closed_with ? Json(*contact.closed_with) : Json()}};
}

Json word_outcome(const std::optional<WordDocument>& word) {
    if (!word) return {};
    return {{"Version", to_json(word->version)}, {"html", to_json(word->html)}};
}

Json item_outcome(const MailItemNode& item, const Host& host) {
    Json json{
        {"MessageClass", to_json(item.message_class)},
        {"Parent", to_json(item.parent)},
        {"Subject", to_json(item.subject)},
        {"Body", to_json(item.body)},
        {"HTMLBody", to_json(item.html_body)},
        {"BillingInformation", to_json(item.billing_information)},
        {"EditorType", editor_type_of(item, host)},
        {"IsWordMail", item.is_word_mail},
        {"Recipients", list(item.recipient_nodes, recipient_outcome)},
        {"Attachments", attachments_of(item)},
        {"UserProperties", user_properties_of(item)},
        {"Importance", item.importance},
        {"Sensitivity", item.sensitivity},
        {"ReadReceiptRequested", item.read_receipt_requested},
        {"OriginatorDeliveryReportRequested", item.delivery_report_requested},
        {"Categories", to_json(item.categories)},
        {"FlagRequest", to_json(item.flag_request)},
        {"Word", word_outcome(item.word)},
        {"saves", item.saves},
        {"sent", item.sent},
        {"cancelled", item.cancelled},
        {"links", list(item.contacts, contact_outcome)},
    };
    if (word_is_the_only_editor(host)) json["BodyFormat"] = body_format_of(item);
    return json;
}

Json mail_outcome(const MailItemNode& item) {
    return {
        {"Subject", to_json(item.subject)},
        {"Body", to_json(item.body)},
        {"Recipients",
         list(item.recipient_nodes, [](const RecipientNode& node) { return to_json(node.address); })},
        {"Attachments", attachments_of(item)},
        {"HTMLBody", to_json(item.html_body)},
        {"BillingInformation", to_json(item.billing_information)},
        {"DeleteAfterSubmit", item.delete_after_submit},
        {"sent", item.sent},
        {"through", to_json(item.through)},
    };
}

Json button_outcome(const ButtonNode& button) {
    return {{"tag", to_json(button.tag)}, {"caption", to_json(button.caption)}, {"face", button.face}};
}

/// The number of a face is a toolbar's; on the ribbon a picture has a name.
Json control_outcome(const ShownControl& control) {
    return {{"tag", to_json(control.tag)},
            {"caption", to_json(control.label)},
            {"face", 0},
            {"picture", to_json(control.picture)}};
}

/// The buttons of the explorers' toolbar, and those of the ribbon in whatever window has one.
Json toolbar_outcome(MailClient& client) {
    Json buttons = list(client.standard_bar->buttons, button_outcome);
    for (const ShownControl& control : client.ribbons().shown()) buttons.push_back(control_outcome(control));
    return buttons;
}

Json connection_outcome(const ConnectionNode& connection) {
    return {{"opened with", to_json(connection.opened_with)}, {"closed", connection.closed}};
}

Json setting_outcome(const SettingValue& value) {
    if (std::holds_alternative<Text>(value)) return to_json(std::get<Text>(value));
    return {{"expand", to_json(stored_text(value))}};
}

Json settings_outcome(const Snapshot& machine) {
    Json json = Json::object();
    for (const auto& [section, keys] : machine.settings) {
        Json& values = json[to_utf8(section)] = Json::object();
        for (const auto& [key, value] : keys) values[to_utf8(key)] = setting_outcome(value);
    }
    return json;
}

Json references_outcome(const References& references) {
    return {{"held", references.held()}, {"names", texts(references.names())}};
}

} // namespace

Json write_outcome(const Scenario& scenario, const Player& player, MailClient& client, const Machine& machine,
                   const Snapshot& before) {
    const Snapshot after = machine.snapshot();
    return {
        {"name", to_json(scenario.name)},
        {"acts", player.acts()},
        {"items",
         list(client.items, [&](const MailItemNode& item) { return item_outcome(item, client.host()); })},
        {"settings", settings_outcome(after)},
        {"files", changed_files(before, after)},
        {"registry", changed_registry(before, after)},
        {"windows", machine.windows()},
        {"toolbar", toolbar_outcome(client)},
        {"tray", machine.tray_outcome()},
        {"pages", texts(client.pages)},
        {"launched", machine.launched()},
        {"statements", texts(client.statements)},
        {"connections", list(client.connections, connection_outcome)},
        {"mails", list(client.sent_mails, mail_outcome)},
        {"browser", client.browser},
        {"references", references_outcome(*client.references())},
        {"error", player.error()},
    };
}

Json crash_outcome(const Text& name, const std::string& error) {
    Json json{{"name", to_json(name)}};
    for (const char* list_member : {"acts", "items", "windows", "toolbar", "pages", "launched", "statements",
                                    "connections", "mails", "browser"})
        json[list_member] = Json::array();
    for (const char* object_member : {"settings", "files", "registry", "tray"})
        json[object_member] = Json::object();
    json["references"] = references_outcome({});
    json["error"] = error;
    return json;
}

} // namespace ornavel::rehearsal
