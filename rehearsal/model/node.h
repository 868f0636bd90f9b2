#pragma once

#include "host/object.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace ornavel::rehearsal {

class MailClient;
class Node;
using NodePtr = std::shared_ptr<Node>;

/// One use of a member, as the class's table sees it.
struct Call {
    MailClient& client;
    Node& self;
    const host::Arguments& arguments;
    Node& used; ///< what the add-in holds: the node itself, or a wrapper in front of it

    template <class Kind>
    Kind& as() const {
        return static_cast<Kind&>(self);
    }
    /// Whether the argument is there and not left out.
    bool given(std::size_t index) const;
    Text text(std::size_t index) const { return host::as_text(arguments.at(index)); }
    std::int32_t number(std::size_t index) const { return host::as_number(arguments.at(index)); }
    bool flag(std::size_t index) const { return host::as_flag(arguments.at(index)); }
};

using Read = host::Value (*)(const Call&);
using Write = void (*)(const Call&, const host::Value&);

/// One member of a class. A property is read without arguments unless it takes some; a member without a
/// writer can't be put.
struct MemberRow {
    TextView name;
    Read read;
    Write write = nullptr;
    std::size_t least = 0, most = 0; ///< how many arguments it takes
};

/// A class of the object model: its name and its members.
struct Class {
    TextView name;
    std::span<const MemberRow> members;
    std::optional<host::EventSource> events = {};
};

/// A thing of the mail client, as the rehearsal itself holds it. The add-in only sees handles to it.
class Node : public std::enable_shared_from_this<Node> {
public:
    virtual ~Node() = default;
    virtual const Class& what() const = 0;
    /// Another object that answers what this one's own table doesn't have.
    virtual Node* behind() { return nullptr; }
    /// Told each member of the table that is used, before it fails where it is to fail.
    virtual void asked(TextView) {}

    bool gone = false; ///< deleted, or its window closed
    struct Listener {
        host::EventSource source;
        host::EventHandler handler;
    };
    std::vector<std::weak_ptr<Listener>> listeners;
};

inline void assign(Text& field, const host::Value& value) { field = host::as_text(value); }
inline void assign(bool& field, const host::Value& value) { field = host::as_flag(value); }
inline void assign(int& field, const host::Value& value) { field = host::as_number(value); }

template <class Kind, auto field>
host::Value read_field(const Call& call) {
    return call.as<Kind>().*field;
}
template <class Kind, auto field>
void write_field(const Call& call, const host::Value& value) {
    assign(call.as<Kind>().*field, value);
}
/// A member that is one field of a node.
template <class Kind, auto field>
constexpr MemberRow property(TextView name) {
    return {name, read_field<Kind, field>, write_field<Kind, field>};
}
template <class Kind, auto field>
constexpr MemberRow read_only(TextView name) {
    return {name, read_field<Kind, field>};
}
constexpr MemberRow method(TextView name, Read body, std::size_t least = 0, std::size_t most = 0) {
    return {name, body, nullptr, least, most};
}

/// The entry with an index that counts from 1. Throws host::Error when there is none.
template <class Entry>
Entry& entry_at(std::vector<Entry>& entries, std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > entries.size())
        throw host::Error(u"Array index out of bounds.");
    return entries[static_cast<std::size_t>(index) - 1];
}

} // namespace ornavel::rehearsal
