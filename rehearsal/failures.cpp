#include "rehearsal/failures.h"

namespace ornavel::rehearsal {
namespace {

[[noreturn]] void fail(Failing::Kind kind, TextView words) {
    if (kind == Failing::Kind::member) throw host::Error(words);
    throw Failure(words);
}

} // namespace

Failures::Failures(std::vector<Failing> entries) {
    for (auto& entry : entries) entries_.push_back({std::move(entry)});
}

void Failures::plant(Fault fault, std::size_t use) {
    fault_ = fault;
    planted_use_ = use;
}

void Failures::use(Failing::Kind kind, TextView subject) {
    uses_.push_back({kind, Text(subject), act_});
    const Failing* failing = nullptr;
    for (auto& [entry, uses] : entries_) {
        if (entry.kind != kind || !same_name(entry.subject, subject)) continue;
        ++uses;
        if (!failing && (entry.use == 0 || entry.use == uses)) failing = &entry;
    }
    if (failing) fail(kind, failing->says);
    strike(kind);
}

void Failures::strike(Failing::Kind kind) {
    if (planted_use_ == 0) return;
    const bool now = uses_.size() == planted_use_, member = kind == Failing::Kind::member;
    const bool gone = fault_ == Fault::disconnected && member && uses_.size() > planted_use_ && struck_;
    if (!now && !gone) return;
    if (fault_ == Fault::disconnected && member) {
        struck_ = true;
        fail(kind, u"The object invoked has disconnected from its clients.");
    }
    if (fault_ == Fault::failure || fault_ == Fault::described_failure) {
        struck_ = true;
        fail(kind, fault_ == Fault::failure ? u"" : u"A description of its own,\r\nwith „quotes“.");
    }
}

std::optional<Fault> Failures::take_change() {
    const bool changes = fault_ == Fault::wrong_type || fault_ == Fault::empty_value;
    if (!changes || struck_ || planted_use_ == 0 || uses_.size() != planted_use_) return {};
    struck_ = true;
    return fault_;
}

host::Value Failures::given(host::Value value, const std::function<host::Value()>& another_type) {
    const auto change = take_change();
    if (!change) return value;
    const bool object = std::holds_alternative<host::ObjectPtr>(value);
    if (*change == Fault::empty_value) return object ? host::Value(host::ObjectPtr()) : host::Value();
    return object ? host::Value(Text(u"no object")) : another_type();
}

std::string Failures::given(std::string bytes) {
    const auto change = take_change();
    if (!change) return bytes;
    return *change == Fault::empty_value ? std::string() : std::string("\xFF\xFE\x00\xD8\x01", 5);
}

std::optional<Text> Failures::given(std::optional<Text> setting) {
    const auto change = take_change();
    if (!change) return setting;
    return *change == Fault::empty_value ? Text() : Text(u"\x1|#[#;%1\xD800");
}

} // namespace ornavel::rehearsal
