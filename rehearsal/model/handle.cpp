#include "rehearsal/model/handle.h"

#include "rehearsal/model/mail_client.h"
#include "rehearsal/turn.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using host::Arguments;
using host::Value;

const Arguments no_arguments;

Text shown(const Value& value) {
    if (const auto* object = std::get_if<host::ObjectPtr>(&value)) {
        const auto* handle = dynamic_cast<const Handle*>(object->get());
        return handle ? Text(handle->node()->what().name) : Text(u"Nothing");
    }
    Text text;
    attempt([&] { text = host::as_text(value); });
    return text;
}

Text shown(const Arguments& arguments) {
    Text list;
    for (const auto& argument : arguments) {
        if (!list.empty()) list += u", ";
        list += shown(argument);
    }
    return list;
}

const MemberRow* find_row(const Class& what, TextView member) {
    const auto row = std::find_if(what.members.begin(), what.members.end(),
                                  [&](const MemberRow& entry) { return same_name(entry.name, member); });
    return row == what.members.end() ? nullptr : &*row;
}

void check_count(const MemberRow& row, const Arguments& arguments) {
    if (arguments.size() < row.least || arguments.size() > row.most)
        throw host::Error(u"Wrong number of arguments or invalid property assignment");
}

} // namespace

Handle::Handle(MailClient& client, NodePtr node)
    : client_(client), node_(std::move(node)), token_(client.references(), Text(node_->what().name)) {}

Handle::Target Handle::find(TextView member) const {
    if (node_->gone) throw host::Error(u"The object has been deleted or moved.");
    Text used(node_->what().name);
    used += u'.';
    Node* node = node_.get();
    const MemberRow* row = find_row(node->what(), member);
    if (!row && node->behind()) {
        client_.count_use(used + Text(member));
        node = node->behind();
        row = find_row(node->what(), member);
        used = Text(node->what().name) + u'.';
    }
    if (!row) throw host::Error(u"Object doesn't support this property or method");
    used += row->name;
    node->asked(row->name);
    client_.count_use(used);
    return {*node, *row};
}

Text Handle::full_name(TextView member) const {
    for (Node* node = node_.get(); node; node = node->behind())
        if (const MemberRow* row = find_row(node->what(), member))
            return Text(node->what().name) + u'.' + Text(row->name);
    return Text(node_->what().name) + u'.' + Text(member);
}

Value Handle::get(host::Member member, const Arguments& arguments) {
    const MachinesTurn turn;
    Journal& journal = client_.journal();
    return journal.note_use(Deed::get, full_name(member.name), {}, [&] {
        const std::size_t place = journal.entries().size() - 1;
        const Target target = find(member.name);
        check_count(target.row, arguments);
        Value value = client_.given(target.row.read({client_, target.node, arguments, *node_}));
        journal.tell_value(place, shown(value));
        return value;
    });
}

void Handle::put(host::Member member, const Value& value) {
    const MachinesTurn turn;
    client_.journal().note_use(Deed::put, full_name(member.name), shown(value), [&] {
        const Target target = find(member.name);
        if (!target.row.write) throw host::Error(u"Object doesn't support this property or method");
        target.row.write({client_, target.node, no_arguments, *node_}, value);
    });
}

Value Handle::call(host::Member member, const Arguments& arguments) {
    const MachinesTurn turn;
    return client_.journal().note_use(Deed::call, full_name(member.name), shown(arguments), [&] {
        const Target target = find(member.name);
        check_count(target.row, arguments);
        return client_.given(target.row.read({client_, target.node, arguments, *node_}));
    });
}

host::Subscription Handle::advise(host::EventSource source, host::EventHandler handler) {
    const MachinesTurn turn;
    if (node_->what().events != source)
        throw host::Error(u"Object or class does not support the set of events");
    struct Counted {
        References::Token token;
        NodePtr node;
        std::shared_ptr<Node::Listener> listener;
    };
    auto listener = std::make_shared<Node::Listener>(Node::Listener{source, std::move(handler)});
    node_->listeners.push_back(listener);
    const Text name = Text(node_->what().name) + u" events";
    return std::shared_ptr<Counted>(new Counted{{client_.references(), name}, node_, std::move(listener)});
}

bool Handle::is_same(const host::Object& other) const {
    const auto* handle = dynamic_cast<const Handle*>(&other);
    return handle && handle->node_ == node_;
}

NodePtr node_of(const Value& value) {
    const auto object = host::as_object(value);
    const auto* handle = dynamic_cast<const Handle*>(object.get());
    if (!handle) throw host::Error(u"Type mismatch");
    return handle->node();
}

void raise_event(MailClient& client, Node& node, TextView event, std::span<Value> arguments) {
    const NodePtr kept = node.shared_from_this();
    std::erase_if(node.listeners, [](const auto& listener) { return listener.expired(); });
    const auto listeners = node.listeners;
    for (const auto& entry : listeners) {
        const auto listener = entry.lock();
        if (!listener) continue;
        client.journal().note(Deed::event, Text(node.what().name) + u'.' + Text(event));
        const AddInsTurn turn;
        listener->handler(event, arguments);
    }
}

} // namespace ornavel::rehearsal
