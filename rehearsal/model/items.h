#pragma once

#include "rehearsal/model/node.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

struct BarNode;

struct RecipientNode final : Node, RecipientEntry {
    explicit RecipientNode(RecipientEntry entry) : RecipientEntry(std::move(entry)) {}
    const Class& what() const override;
};

struct AttachmentNode final : Node {
    explicit AttachmentNode(Text file) : path(std::move(file)) {}
    const Class& what() const override;
    Text path;
};

struct UserPropertyNode final : Node {
    const Class& what() const override;
    Text name, value;
    int type = 1;
};

struct FolderNode final : Node {
    FolderNode(Text folder_name, Text id) : name(std::move(folder_name)), entry_id(std::move(id)) {}
    const Class& what() const override;
    Text name, entry_id;
};

struct ContactNode final : Node, Contact {
    explicit ContactNode(Contact contact) : Contact(std::move(contact)) {}
    const Class& what() const override;
    std::optional<int> closed_with;
};

/// A message: one of the scenario's, or one that the add-in made.
struct MailItemNode final : Node, Item {
    explicit MailItemNode(Item item = {});
    const Class& what() const override;

    std::vector<std::shared_ptr<RecipientNode>> recipient_nodes;
    std::vector<std::shared_ptr<AttachmentNode>> attachment_nodes;
    std::vector<std::shared_ptr<UserPropertyNode>> user_property_nodes;
    std::vector<std::shared_ptr<ContactNode>> contacts;
    std::shared_ptr<BarNode> inspector_bar; ///< the "Standard" bar of its own window
    int saves = 0;
    bool sent = false, cancelled = false;
    bool made_by_addin = false, delete_after_submit = false;
    bool made_by_program = false; ///< by a program beside the add-in, as if the user wrote it
    Text through = u"MailItem";   ///< the class by which the add-in sent it
    int send_requests = 0;        ///< how often the add-in called Send, also where that failed

    void asked(TextView member) override { send_requests += same_name(member, u"Send"); }
};

/// Something that belongs to an item and keeps it alive.
struct PartOfItem : Node {
    explicit PartOfItem(std::shared_ptr<MailItemNode> owner) : item(std::move(owner)) {}
    std::shared_ptr<MailItemNode> item;
};

struct RecipientsNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};
struct AttachmentsNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};
struct UserPropertiesNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};
/// The window of an item, with toolbars of its own.
struct InspectorNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
    bool activated = false; ///< before that it has no toolbars
};
struct LinksNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};
struct LinkNode final : Node {
    explicit LinkNode(std::shared_ptr<ContactNode> linked) : contact(std::move(linked)) {}
    const Class& what() const override;
    std::shared_ptr<ContactNode> contact;
};

/// The outside wrapper: whatever it doesn't have itself is the item's.
struct SafeMailItemNode final : Node {
    const Class& what() const override;
    Node* behind() override { return item.get(); }
    std::shared_ptr<MailItemNode> item;
};

} // namespace ornavel::rehearsal
