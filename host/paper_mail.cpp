#include "host/paper_mail.h"

#include <map>

namespace ornavel::host {
namespace {

/// An object of fixed values. A collection counts its entries from 1.
class Paper final : public Object {
public:
    explicit Paper(std::map<Text, Value> values, std::vector<ObjectPtr> entries = {})
        : values_(std::move(values)), entries_(std::move(entries)) {}

    Value get(Member member, const Arguments&) override {
        if (const auto value = values_.find(member.name); value != values_.end()) return value->second;
        if (TextView(member.name) == u"Count") return static_cast<std::int32_t>(entries_.size());
        throw Error(u"Object doesn't support this property or method", member.full_name());
    }
    void put(Member member, const Value& value) override { values_[member.name] = value; }
    Value call(Member member, const Arguments& arguments) override {
        if (TextView(member.name) != u"Item" || arguments.empty()) return get(member, arguments);
        const auto index = as_number(arguments.front());
        if (index < 1 || static_cast<std::size_t>(index) > entries_.size())
            throw Error(u"Array index out of bounds.", member.full_name());
        return entries_[static_cast<std::size_t>(index) - 1];
    }
    Subscription advise(EventSource, EventHandler) override { return nullptr; }
    bool is_same(const Object& other) const override { return this == &other; }

private:
    std::map<Text, Value> values_;
    std::vector<ObjectPtr> entries_;
};

ObjectPtr paper(std::map<Text, Value> values, std::vector<ObjectPtr> entries = {}) {
    return std::make_shared<Paper>(std::move(values), std::move(entries));
}

} // namespace

MailItem paper_item(const Letter& letter) {
    std::vector<ObjectPtr> recipients;
    for (const Text& address : letter.recipients) recipients.push_back(paper({{u"Address", address}}));
    const bool is_word = letter.editor == word_editor;
    return MailItem(paper({{u"HTMLBody", letter.html_body},
                           {u"Body", letter.body},
                           {u"Subject", letter.subject},
                           {u"Recipients", paper({}, std::move(recipients))},
                           {u"Links", paper({})},
                           {u"GetInspector", paper({{u"EditorType", std::int32_t{letter.editor}},
                                                    {u"IsWordMail", is_word}})}}));
}

Application paper_application(const Letter& letter) {
    return Application(paper({{u"Version", letter.host_version}}));
}

} // namespace ornavel::host
