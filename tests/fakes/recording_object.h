#pragma once

#include "host/object.h"

#include <map>
#include <set>

namespace ornavel {

/// A host object of prepared values that writes down what is put and called, one line each. A member in
/// `failing` fails; a get or call of a member without a value gives back an empty one.
class RecordingObject final : public host::Object {
public:
    explicit RecordingObject(std::vector<Text>& journal, TextView name = u"")
        : journal_(journal), name_(name) {}

    std::map<Text, host::Value> values;
    std::set<Text> failing;
    std::function<void(TextView member)> when_called; ///< runs before a call gives back its value

    host::Value get(host::Member member, const host::Arguments&) override { return value(member); }
    void put(host::Member member, const host::Value& value) override {
        require(member);
        journal_.push_back(name_ + u"." + member.name + u" = " + shown(value));
    }
    host::Value call(host::Member member, const host::Arguments& arguments) override {
        require(member);
        Text line = name_ + u"." + member.name;
        for (const host::Value& argument : arguments) line += u" " + shown(argument);
        journal_.push_back(line);
        if (when_called) when_called(member.name);
        return value(member);
    }
    host::Subscription advise(host::EventSource, host::EventHandler) override { return nullptr; }
    bool is_same(const host::Object& other) const override { return this == &other; }

private:
    void require(host::Member member) const {
        if (failing.count(member.name)) throw host::Error(u"rehearsed failure of " + Text(member.name));
    }
    host::Value value(host::Member member) const {
        require(member);
        const auto found = values.find(member.name);
        return found == values.end() ? host::Value() : found->second;
    }
    static Text shown(const host::Value& value) {
        return std::holds_alternative<host::ObjectPtr>(value) ? u"(object)" : host::as_text(value);
    }

    std::vector<Text>& journal_;
    Text name_;
};

} // namespace ornavel
