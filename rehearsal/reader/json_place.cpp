#include "rehearsal/reader/json_place.h"

#include "base/encoding.h"

#include <algorithm>

namespace ornavel::rehearsal {

void JsonPlace::refuse(const std::string& reason) const {
    throw Unusable(source_ + ": " + (path_.empty() ? "" : path_ + ": ") + reason);
}

Text JsonPlace::text() const { return from_utf8(bytes()); }

std::string JsonPlace::bytes() const {
    if (!json_->is_string()) refuse("expected a text");
    return json_->get<std::string>();
}

bool JsonPlace::flag() const {
    if (!json_->is_boolean()) refuse("expected true or false");
    return json_->get<bool>();
}

std::int64_t JsonPlace::number(std::int64_t least, std::int64_t most) const {
    if (!json_->is_number()) refuse("expected a number");
    if (!json_->is_number_integer()) refuse("expected a whole number");
    const bool huge = json_->is_number_unsigned() &&
                      json_->get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    if (huge || json_->get<std::int64_t>() < least || json_->get<std::int64_t>() > most)
        refuse("out of range");
    return json_->get<std::int64_t>();
}

int JsonPlace::small_number(int least) const {
    return static_cast<int>(number(least, std::numeric_limits<int>::max()));
}

LocalTime JsonPlace::time() const {
    const auto time = parse_time(bytes());
    if (!time) refuse("expected a time such as 2003-11-20T14:05:09");
    return *time;
}

JsonPlace JsonPlace::member(const std::string& name) const {
    return {json_->at(name), source_, path_.empty() ? name : path_ + "." + name};
}

JsonPlace JsonPlace::element(std::size_t index) const {
    return {json_->at(index), source_, path_ + "[" + std::to_string(index) + "]"};
}

void JsonPlace::must_be_object() const {
    if (!json_->is_object()) refuse("expected an object");
}

void JsonPlace::each_element(const std::function<void(const JsonPlace&)>& visit) const {
    if (!json_->is_array()) refuse("expected an array");
    for (std::size_t index = 0; index < json_->size(); ++index) visit(element(index));
}

void JsonPlace::each_member(const std::function<void(const Text&, const JsonPlace&)>& visit) const {
    must_be_object();
    std::vector<Text> seen;
    for (const auto& [name, value] : json_->items()) {
        const Text text = from_utf8(name);
        const JsonPlace place = member(name);
        if (std::any_of(seen.begin(), seen.end(), [&](const Text& other) { return same_name(other, text); }))
            place.refuse("the same name is there in another spelling");
        seen.push_back(text);
        visit(text, place);
    }
}

void JsonPlace::fields(std::initializer_list<Field> known) const {
    must_be_object();
    for (const auto& [name, value] : json_->items()) {
        const auto field = std::ranges::find(known, name, &Field::name);
        if (field == known.end()) member(name).refuse("unknown member");
        field->read(member(name));
    }
}

} // namespace ornavel::rehearsal
