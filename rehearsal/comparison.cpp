#include "rehearsal/comparison.h"

#include "rehearsal/comparable_text.h"
#include "rehearsal/excerpt.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

std::string text_of(const Json* value) {
    if (!value) return "nothing";
    const Json shown =
        value->is_string() ? Json(comparable_text(value->get_ref<const std::string&>())) : *value;
    return shown.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool is_same_text(const Json& native, const Json& dll) {
    return native.is_string() && dll.is_string() &&
           comparable_text(native.get_ref<const std::string&>()) ==
               comparable_text(dll.get_ref<const std::string&>());
}

class Comparison {
public:
    std::vector<Difference> found;

    void compare(const Json* native, const Json* dll, const std::string& path) {
        if (native && dll) {
            if (*native == *dll || is_same_text(*native, *dll)) return;
            if (native->is_object() && dll->is_object()) return compare_members(*native, *dll, path);
            if (native->is_array() && dll->is_array()) return compare_elements(*native, *dll, path);
        }
        const std::string one = text_of(native), other = text_of(dll);
        const auto parting = std::ranges::mismatch(one, other).in1 - one.begin();
        const auto position = static_cast<std::size_t>(parting);
        found.push_back({path, around(one, position), around(other, position)});
    }

private:
    void compare_members(const Json& native, const Json& dll, const std::string& path) {
        const auto find = [](const Json& object, const std::string& name) {
            const auto member = object.find(name);
            return member == object.end() ? nullptr : &*member;
        };
        const auto visit = [&](const std::string& name) {
            if (name != "milliseconds")
                compare(find(native, name), find(dll, name), path.empty() ? name : path + "." + name);
        };
        for (const auto& [name, value] : native.items()) visit(name);
        for (const auto& [name, value] : dll.items())
            if (!native.contains(name)) visit(name);
    }

    void compare_elements(const Json& native, const Json& dll, const std::string& path) {
        const auto element = [](const Json& array, std::size_t i) {
            return i < array.size() ? &array[i] : nullptr;
        };
        for (std::size_t i = 0; i < std::max(native.size(), dll.size()); ++i)
            compare(element(native, i), element(dll, i), path + "[" + std::to_string(i) + "]");
    }
};

} // namespace

std::vector<Difference> differences(const Json& native, const Json& dll) {
    Comparison comparison;
    comparison.compare(&native, &dll, {});
    return std::move(comparison.found);
}

std::string to_line(const Difference& difference) {
    return difference.path + ": native " + difference.native + ", real DLL " + difference.dll;
}

} // namespace ornavel::rehearsal
