#pragma once

#include "host/value.h"

#include <functional>
#include <span>
#include <vector>

namespace ornavel::host {

/// The name of a member of a host object, spelled once, in the typed views of this room, and that of its
/// object's class, for those who look for an error.
struct Member {
    const char16_t* name;
    const char16_t* object = u"";

    /// "MailItem.HTMLBody"
    Text full_name() const { return Text(object) + u"." + name; }
};

using Arguments = std::vector<Value>;

/// The sets of events that the add-in listens to.
enum class EventSource { application, explorers, explorer, inspectors, inspector, button };

/// Called with the event's name and its arguments in their order. What the handler leaves in an argument that
/// the host passed by reference goes back to the host. A handler never throws.
using EventHandler = std::function<void(TextView event, std::span<Value> arguments)>;

/// Events arrive for as long as this is kept.
using Subscription = std::shared_ptr<void>;

/// One late-bound object of the mail client, or of another automation server. Every member may throw Error.
class Object {
public:
    virtual ~Object() = default;
    virtual Value get(Member member, const Arguments& arguments = {}) = 0;
    virtual void put(Member member, const Value& value) = 0;
    virtual Value call(Member member, const Arguments& arguments = {}) = 0;
    virtual Subscription advise(EventSource source, EventHandler handler) = 0;
    /// Whether the other one stands for the same object of the mail client.
    virtual bool is_same(const Object& other) const = 0;
};

/// Makes objects by their programmatic identifier, and finds them by moniker. Throws Error when there is
/// none.
class Objects {
public:
    virtual ~Objects() = default;
    virtual ObjectPtr create(TextView prog_id) = 0;
    virtual ObjectPtr get(TextView moniker) = 0;
};

} // namespace ornavel::host
