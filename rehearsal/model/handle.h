#pragma once

#include "rehearsal/model/node.h"
#include "rehearsal/references.h"

namespace ornavel::rehearsal {

/// What the add-in gets of a node: a counted reference. Every use goes through the class's table, is noted
/// in the journal, and fails where the scenario says so.
class Handle final : public host::Object {
public:
    Handle(MailClient& client, NodePtr node);

    host::Value get(host::Member member, const host::Arguments& arguments = {}) override;
    void put(host::Member member, const host::Value& value) override;
    host::Value call(host::Member member, const host::Arguments& arguments = {}) override;
    host::Subscription advise(host::EventSource source, host::EventHandler handler) override;
    bool is_same(const host::Object& other) const override;

    const NodePtr& node() const { return node_; }

private:
    struct Target {
        Node& node;
        const MemberRow& row;
    };
    Target find(TextView member) const;
    /// "MailItem.Subject": as the class spells it that has the member, also behind a wrapper.
    Text full_name(TextView member) const;

    MailClient& client_;
    NodePtr node_;
    References::Token token_;
};

/// The node behind an object that the add-in hands back. Throws host::Error for anything that is not one.
NodePtr node_of(const host::Value& value);

/// Tells everyone who listens to the node. Handlers may stop listening while they are told.
void raise_event(MailClient& client, Node& node, TextView event, std::span<host::Value> arguments = {});

} // namespace ornavel::rehearsal
