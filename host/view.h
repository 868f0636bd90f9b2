#pragma once

#include "host/object.h"

namespace ornavel::host {

/// A typed view of a late-bound object: each member is spelled in one view, once. A view that holds nothing
/// throws Error from every member.
class View {
public:
    View() = default;
    explicit View(ObjectPtr object) : object_(std::move(object)) {}

    explicit operator bool() const { return object_ != nullptr; }
    const ObjectPtr& object() const { return object_; }
    void release() { object_.reset(); }

protected:
    Value get(Member member, const Arguments& arguments = {}) const {
        return target().get(member, arguments);
    }
    void put(Member member, const Value& value) const { target().put(member, value); }
    Value call(Member member, const Arguments& arguments = {}) const {
        return target().call(member, arguments);
    }
    Subscription advise(EventSource source, EventHandler handler) const {
        return target().advise(source, std::move(handler));
    }

private:
    Object& target() const {
        if (!object_) throw Error(u"Object variable not set");
        return *object_;
    }

    ObjectPtr object_;
};

} // namespace ornavel::host
