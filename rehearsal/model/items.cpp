#include "rehearsal/model/items.h"

#include "rehearsal/model/handle.h"
#include "rehearsal/model/mail_client.h"
#include "rehearsal/model/versions.h"
#include "rehearsal/model/word.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

/// A collection or another part of the item, made anew for each use, as the mail client does.
template <class Part>
Value part(const Call& call) {
    auto item = std::static_pointer_cast<MailItemNode>(call.self.shared_from_this());
    return call.client.hand_out(std::make_shared<Part>(std::move(item)));
}

Value parent_folder(const Call& call) {
    return call.client.hand_out(std::make_shared<FolderNode>(call.as<MailItemNode>().parent, Text()));
}

Value save(const Call& call) {
    ++call.as<MailItemNode>().saves;
    return {};
}

Value to(const Call& call) {
    Text names;
    for (const auto& node : call.as<MailItemNode>().recipient_nodes)
        if (node->type == RecipientEntry{}.type) names += (names.empty() ? u"" : u"; ") + node->address;
    return names;
}

/// In the place of those that the line had.
void put_to(const Call& call, const Value& value) {
    auto& nodes = call.as<MailItemNode>().recipient_nodes;
    std::erase_if(nodes, [](const auto& node) { return node->type == RecipientEntry{}.type; });
    for (const Text& address : split(host::as_text(value), u";"))
        if (!trim(address).empty())
            nodes.push_back(std::make_shared<RecipientNode>(RecipientEntry{{}, trim(address)}));
}

/// A program hears when its message was not let go; the add-in asks its own.
Value send(const Call& call) {
    auto& item = call.as<MailItemNode>();
    item.through = call.used.what().name;
    const bool is_told =
        !item.made_by_addin || item.made_by_program || call.client.host().own_mails_raise_item_send;
    if (is_told)
        call.client.send(item);
    else
        call.client.send_silently(item);
    if (item.made_by_addin)
        call.client.sent_mails.push_back(std::static_pointer_cast<MailItemNode>(item.shared_from_this()));
    if (item.made_by_program && item.cancelled) throw host::Error(u"Operation aborted");
    return {};
}

Value inspector(const Call& call) {
    auto item = std::static_pointer_cast<MailItemNode>(call.self.shared_from_this());
    if (auto open = call.client.window_of(*item)) return call.client.hand_out(std::move(open));
    return call.client.hand_out(std::make_shared<InspectorNode>(std::move(item)));
}

/// A property takes the numbers of its enumeration and nothing else, above all no empty value.
template <auto field, int last>
void put_choice(const Call& call, const Value& value) {
    const auto* number = std::get_if<std::int32_t>(&value);
    if (!number) throw host::Error(u"Type mismatch");
    if (*number < 0 || *number > last) throw host::Error(u"One or more parameter values are not valid.");
    call.as<MailItemNode>().*field = *number;
}

template <auto field>
void put_flag(const Call& call, const Value& value) {
    const auto* flag = std::get_if<bool>(&value);
    if (!flag) throw host::Error(u"Type mismatch");
    call.as<MailItemNode>().*field = *flag;
}

template <auto field>
void put_text(const Call& call, const Value& value) {
    const auto* text = std::get_if<Text>(&value);
    if (!text) throw host::Error(u"Type mismatch");
    call.as<MailItemNode>().*field = *text;
}

template <auto field>
constexpr MemberRow option(TextView name, Write write) {
    return {name, read_field<MailItemNode, field>, write};
}

/// Outlook 2000 to 2003 are played without it, as the add-in was made for them.
Value body_format(const Call& call) {
    if (!word_is_the_only_editor(call.client.host()))
        throw host::Error(u"Object doesn't support this property or method");
    return body_format_of(call.as<MailItemNode>());
}

constexpr MemberRow mail_item_members[] = {
    property<MailItemNode, &Item::message_class>(u"MessageClass"),
    {u"To", to, put_to},
    property<MailItemNode, &Item::subject>(u"Subject"),
    property<MailItemNode, &Item::body>(u"Body"),
    property<MailItemNode, &Item::html_body>(u"HTMLBody"),
    method(u"BodyFormat", body_format),
    property<MailItemNode, &Item::billing_information>(u"BillingInformation"),
    option<&Item::importance>(u"Importance", put_choice<&Item::importance, 2>),
    option<&Item::sensitivity>(u"Sensitivity", put_choice<&Item::sensitivity, 3>),
    option<&Item::read_receipt_requested>(u"ReadReceiptRequested", put_flag<&Item::read_receipt_requested>),
    option<&Item::delivery_report_requested>(u"OriginatorDeliveryReportRequested",
                                             put_flag<&Item::delivery_report_requested>),
    option<&Item::categories>(u"Categories", put_text<&Item::categories>),
    option<&Item::flag_request>(u"FlagRequest", put_text<&Item::flag_request>),
    property<MailItemNode, &MailItemNode::delete_after_submit>(u"DeleteAfterSubmit"),
    read_only<MailItemNode, &MailItemNode::sent>(u"Sent"),
    method(u"Parent", parent_folder),
    method(u"Recipients", part<RecipientsNode>),
    method(u"Attachments", part<AttachmentsNode>),
    method(u"UserProperties", part<UserPropertiesNode>),
    method(u"Links", part<LinksNode>),
    method(u"GetInspector", inspector),
    method(u"Save", save),
    method(u"Send", send),
};

void wrap(const Call& call, const Value& value) {
    auto item = std::dynamic_pointer_cast<MailItemNode>(node_of(value));
    if (!item) throw host::Error(u"Type mismatch");
    call.as<SafeMailItemNode>().item = std::move(item);
}

Value wrapped(const Call& call) {
    const auto& item = call.as<SafeMailItemNode>().item;
    return item ? call.client.hand_out(item) : host::ObjectPtr();
}

constexpr MemberRow safe_members[] = {{u"Item", wrapped, wrap}};

MailItemNode& item_of(const Call& call) { return *call.as<InspectorNode>().item; }

Value word_editor(const Call& call) {
    const auto& item = call.as<InspectorNode>().item;
    return item->is_word_mail ? call.client.hand_out(std::make_shared<DocumentNode>(item))
                              : host::ObjectPtr();
}

Value inspector_bars(const Call& call) {
    if (!call.as<InspectorNode>().activated)
        throw host::Error(u"Method 'CommandBars' of object '_Inspector' failed");
    const bool has_it = !message_windows_have_the_ribbon(call.client.host());
    return call.client.hand_out(std::make_shared<BarsNode>(has_it ? item_of(call).inspector_bar : nullptr));
}

constexpr MemberRow inspector_members[] = {
    method(u"WordEditor", word_editor),
    method(u"EditorType",
           [](const Call& call) -> Value { return editor_type_of(item_of(call), call.client.host()); }),
    method(u"CurrentItem",
           [](const Call& call) -> Value { return call.client.hand_out(call.as<InspectorNode>().item); }),
    method(u"IsWordMail", [](const Call& call) -> Value { return item_of(call).is_word_mail; }),
    method(u"CommandBars", inspector_bars),
};

} // namespace

MailItemNode::MailItemNode(Item item) : Item(std::move(item)), inspector_bar(std::make_shared<BarNode>()) {
    for (const auto& entry : recipients) recipient_nodes.push_back(std::make_shared<RecipientNode>(entry));
    for (const auto& path : attachments) attachment_nodes.push_back(std::make_shared<AttachmentNode>(path));
    for (const auto& contact : links) contacts.push_back(std::make_shared<ContactNode>(contact));
    for (const auto& [name, value] : user_properties) {
        auto& node = user_property_nodes.emplace_back(std::make_shared<UserPropertyNode>());
        node->name = name;
        node->value = value;
    }
}

const Class& MailItemNode::what() const {
    static constexpr Class table{u"MailItem", mail_item_members};
    return table;
}

const Class& SafeMailItemNode::what() const {
    static constexpr Class table{u"SafeMailItem", safe_members};
    return table;
}

const Class& InspectorNode::what() const {
    static constexpr Class table{u"Inspector", inspector_members, host::EventSource::inspector};
    return table;
}

} // namespace ornavel::rehearsal
