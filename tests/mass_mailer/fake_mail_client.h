#pragma once

#include "base/encoding.h"
#include "host/object.h"

#include <functional>
#include <map>

namespace ornavel::mass_mailer {

/// A mail client that takes messages and counts them. What the test wants to happen at a member happens in
/// `at`, before the member has its effect: it may throw.
class FakeMailClient final : public host::Objects {
public:
    using Message = std::map<Text, Text>;

    std::vector<Message> sent;
    std::vector<Text> statements; ///< what a database was told
    std::vector<Text> created;    ///< the objects that were asked for
    std::function<void(TextView member)> at = [](TextView) {};
    std::function<void()> after_send = [] {};

    host::ObjectPtr create(TextView prog_id) override {
        created.emplace_back(prog_id);
        at(prog_id);
        return std::make_shared<Part>(*this, Text(prog_id));
    }
    host::ObjectPtr get(TextView) override { throw host::Error(u"none"); }

    std::map<Text, int> messages_by_address() const {
        std::map<Text, int> counts;
        for (const Message& message : sent) ++counts[message.at(u"To")];
        return counts;
    }

private:
    class Part final : public host::Object {
    public:
        Part(FakeMailClient& client, Text name) : client_(client), name_(std::move(name)) {}
        /// Through COM a method comes as either.
        host::Value get(host::Member member, const host::Arguments& arguments) override {
            if (Text(member.name) == u"Address") return Text(u"jo@example.com");
            return call(member, arguments);
        }
        void put(host::Member member, const host::Value& value) override {
            client_.at(member.name);
            if (const auto* wrapped = std::get_if<host::ObjectPtr>(&value))
                message_ = dynamic_cast<Part&>(**wrapped).message_;
            else
                message_[member.name] = host::as_text(value);
        }
        host::Value call(host::Member member, const host::Arguments& arguments) override {
            const Text name = member.name;
            client_.at(name);
            if (name == u"Execute") client_.statements.push_back(host::as_text(arguments[0]));
            if (name == u"Send") {
                client_.sent.push_back(message_);
                client_.sent.back()[u"through"] = name_;
                client_.after_send();
            }
            return std::make_shared<Part>(client_, name);
        }
        host::Subscription advise(host::EventSource, host::EventHandler) override { return nullptr; }
        bool is_same(const host::Object& other) const override { return this == &other; }

    private:
        FakeMailClient& client_;
        Text name_;
        Message message_;
    };
};

} // namespace ornavel::mass_mailer
