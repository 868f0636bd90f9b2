#include "rehearsal/model/items.h"
#include "rehearsal/model/mail_client.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using host::Value;

/// The members that every collection of an item has: how many entries, and one of them from 1.
template <class Collection, auto entries>
Value count(const Call& call) {
    return static_cast<std::int32_t>(((*call.as<Collection>().item).*entries).size());
}
template <class Collection, auto entries>
Value at(const Call& call) {
    return call.client.hand_out(entry_at((*call.as<Collection>().item).*entries, call.number(0)));
}

Value add_recipient(const Call& call) {
    auto& entries = call.as<RecipientsNode>().item->recipient_nodes;
    return call.client.hand_out(
        entries.emplace_back(std::make_shared<RecipientNode>(RecipientEntry{{}, call.text(0)})));
}

constexpr MemberRow recipients_members[] = {
    method(u"Count", count<RecipientsNode, &MailItemNode::recipient_nodes>),
    method(u"Item", at<RecipientsNode, &MailItemNode::recipient_nodes>, 1, 1),
    method(u"Add", add_recipient, 1, 1),
};

Value recipient_name(const Call& call) {
    const auto& recipient = call.as<RecipientNode>();
    return recipient.name.empty() ? recipient.address : recipient.name;
}

constexpr MemberRow recipient_members[] = {
    read_only<RecipientNode, &RecipientEntry::address>(u"Address"),
    method(u"Name", recipient_name),
    property<RecipientNode, &RecipientEntry::type>(u"Type"),
    method(u"Resolve", [](const Call&) -> Value { return true; }),
};

Value add_attachment(const Call& call) {
    const Text path = call.text(0);
    if (!call.client.machine().files().file_exists(path))
        throw host::Error(u"Cannot find this file. Verify the path and file name are correct.");
    auto& entries = call.as<AttachmentsNode>().item->attachment_nodes;
    return call.client.hand_out(entries.emplace_back(std::make_shared<AttachmentNode>(path)));
}

constexpr MemberRow attachments_members[] = {
    method(u"Count", count<AttachmentsNode, &MailItemNode::attachment_nodes>),
    method(u"Item", at<AttachmentsNode, &MailItemNode::attachment_nodes>, 1, 1),
    method(u"Add", add_attachment, 1, 4),
};

Value file_name(const Call& call) {
    const Text& path = call.as<AttachmentNode>().path;
    const auto folder = path.find_last_of(u'\\');
    return folder == Text::npos ? path : path.substr(folder + 1);
}

constexpr MemberRow attachment_members[] = {
    method(u"FileName", file_name),
    method(u"DisplayName", file_name),
    read_only<AttachmentNode, &AttachmentNode::path>(u"PathName"),
};

std::shared_ptr<UserPropertyNode> find_property(const Call& call, TextView name) {
    for (const auto& entry : call.as<UserPropertiesNode>().item->user_property_nodes)
        if (same_name(entry->name, name)) return entry;
    return nullptr;
}

Value add_property(const Call& call) {
    auto property = find_property(call, call.text(0));
    if (!property) {
        property = std::make_shared<UserPropertyNode>();
        property->name = call.text(0);
        property->type = call.number(1);
        call.as<UserPropertiesNode>().item->user_property_nodes.push_back(property);
    }
    return call.client.hand_out(property);
}

Value look_up_property(const Call& call) {
    const auto property = find_property(call, call.text(0));
    return property ? call.client.hand_out(property) : host::ObjectPtr();
}

Value property_at(const Call& call) {
    if (std::holds_alternative<Text>(call.arguments[0])) return look_up_property(call);
    return at<UserPropertiesNode, &MailItemNode::user_property_nodes>(call);
}

constexpr MemberRow user_properties_members[] = {
    method(u"Count", count<UserPropertiesNode, &MailItemNode::user_property_nodes>),
    method(u"Item", property_at, 1, 1),
    method(u"Find", look_up_property, 1, 2),
    method(u"Add", add_property, 2, 4),
};

constexpr MemberRow user_property_members[] = {
    read_only<UserPropertyNode, &UserPropertyNode::name>(u"Name"),
    read_only<UserPropertyNode, &UserPropertyNode::type>(u"Type"),
    property<UserPropertyNode, &UserPropertyNode::value>(u"Value"),
};

Value link_at(const Call& call) {
    auto& contact = entry_at(call.as<LinksNode>().item->contacts, call.number(0));
    return call.client.hand_out(std::make_shared<LinkNode>(contact));
}

constexpr MemberRow links_members[] = {
    method(u"Count", count<LinksNode, &MailItemNode::contacts>),
    method(u"Item", link_at, 1, 1),
};

constexpr MemberRow link_members[] = {
    method(u"Item",
           [](const Call& call) -> Value { return call.client.hand_out(call.as<LinkNode>().contact); }),
    method(u"Name", [](const Call& call) -> Value { return call.as<LinkNode>().contact->full_name; }),
};

Value contact_folder(const Call& call) {
    const auto& contact = call.as<ContactNode>();
    return call.client.hand_out(std::make_shared<FolderNode>(contact.folder_name, contact.folder_entry_id));
}

Value close_contact(const Call& call) {
    call.as<ContactNode>().closed_with = call.number(0);
    return {};
}

constexpr MemberRow contact_members[] = {
    property<ContactNode, &Contact::full_name>(u"FullName"),
    property<ContactNode, &Contact::company_name>(u"CompanyName"),
    property<ContactNode, &Contact::body>(u"Body"),
    read_only<ContactNode, &Contact::entry_id>(u"EntryID"),
    method(u"Parent", contact_folder),
    method(u"Close", close_contact, 1, 1),
};

constexpr MemberRow folder_members[] = {
    read_only<FolderNode, &FolderNode::name>(u"Name"),
    read_only<FolderNode, &FolderNode::entry_id>(u"EntryID"),
};

} // namespace

const Class& RecipientsNode::what() const {
    static constexpr Class table{u"Recipients", recipients_members};
    return table;
}
const Class& RecipientNode::what() const {
    static constexpr Class table{u"Recipient", recipient_members};
    return table;
}
const Class& AttachmentsNode::what() const {
    static constexpr Class table{u"Attachments", attachments_members};
    return table;
}
const Class& AttachmentNode::what() const {
    static constexpr Class table{u"Attachment", attachment_members};
    return table;
}
const Class& UserPropertiesNode::what() const {
    static constexpr Class table{u"UserProperties", user_properties_members};
    return table;
}
const Class& UserPropertyNode::what() const {
    static constexpr Class table{u"UserProperty", user_property_members};
    return table;
}
const Class& LinksNode::what() const {
    static constexpr Class table{u"Links", links_members};
    return table;
}
const Class& LinkNode::what() const {
    static constexpr Class table{u"Link", link_members};
    return table;
}
const Class& ContactNode::what() const {
    static constexpr Class table{u"ContactItem", contact_members};
    return table;
}
const Class& FolderNode::what() const {
    static constexpr Class table{u"Folder", folder_members};
    return table;
}

} // namespace ornavel::rehearsal
