#pragma once

#include "rehearsal/json.h"

#include <functional>
#include <limits>

namespace ornavel::rehearsal {

/// One value of a scenario and the path to it. Every reading refuses another type as Unusable, in one line.
class JsonPlace {
public:
    JsonPlace(const Json& json, std::string source, std::string path = {})
        : json_(&json), source_(std::move(source)), path_(std::move(path)) {}

    const Json& json() const { return *json_; }
    const std::string& path() const { return path_; }
    const std::string& source() const { return source_; }
    bool is_text() const { return json_->is_string(); }
    bool is_object() const { return json_->is_object(); }
    bool is_array() const { return json_->is_array(); }

    Text text() const;
    std::string bytes() const;
    bool flag() const;
    std::int64_t number(std::int64_t least = std::numeric_limits<std::int32_t>::min(),
                        std::int64_t most = std::numeric_limits<std::int32_t>::max()) const;
    int small_number(int least = std::numeric_limits<int>::min()) const;
    LocalTime time() const;

    JsonPlace member(const std::string& name) const;
    JsonPlace element(std::size_t index) const;
    std::size_t size() const { return json_->size(); }

    void must_be_object() const;
    /// Visits the elements of an array in order.
    void each_element(const std::function<void(const JsonPlace&)>& visit) const;
    /// Visits the members of an object in order; two names that differ by case only are refused.
    void each_member(const std::function<void(const Text& name, const JsonPlace&)>& visit) const;

    struct Field {
        const char* name;
        std::function<void(const JsonPlace&)> read;
    };
    /// Reads an object whose members are the given fields, each optional; any other member is refused.
    void fields(std::initializer_list<Field> known) const;

    [[noreturn]] void refuse(const std::string& reason) const;

private:
    const Json* json_;
    std::string source_, path_;
};

} // namespace ornavel::rehearsal
