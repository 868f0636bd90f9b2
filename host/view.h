#pragma once

#include "host/object.h"

#include <algorithm>

namespace ornavel::host {

/// A typed view of a late-bound object: each member is spelled in one view, once. A view that holds nothing
/// throws Error from every member.
class View {
public:
    View() = default;
    explicit View(ObjectPtr object) : object_(std::move(object)) {}

    explicit operator bool() const { return object_ != nullptr; }
    const ObjectPtr& object() const { return object_; }
    /// Whether both hold the same object of the mail client.
    bool is_same(const View& other) const {
        return object_ && other.object_ && object_->is_same(*other.object_);
    }
    void release() { object_.reset(); }

protected:
    Object& target(Member member) const {
        if (!object_) throw Error(u"Object variable not set", member.full_name());
        return *object_;
    }

private:
    ObjectPtr object_;
};

/// The name of an object's class, as a template's argument.
template <std::size_t size>
struct ClassName {
    consteval ClassName(const char16_t (&name)[size]) { std::ranges::copy(name, text); }
    char16_t text[size];
};

/// A view of an object of the class with this name.
template <ClassName class_name>
class ViewOf : public View {
public:
    using View::View;

protected:
    Value get(Member member, const Arguments& arguments = {}) const {
        return target(named(member)).get(named(member), arguments);
    }
    void put(Member member, Value value) const { target(named(member)).put(named(member), value); }
    Value call(Member member, const Arguments& arguments = {}) const {
        return target(named(member)).call(named(member), arguments);
    }
    Subscription advise(EventSource source, EventHandler handler) const {
        return target({u"events", class_name.text}).advise(source, std::move(handler));
    }

private:
    static Member named(Member member) { return {member.name, class_name.text}; }
};

} // namespace ornavel::host
