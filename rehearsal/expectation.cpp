#include "rehearsal/expectation.h"

#include "rehearsal/excerpt.h"

#include <regex>

namespace ornavel::rehearsal {
namespace {

std::string one_line(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

/// As it stands in one line within a text that contains it.
std::string inside(const Json& part) {
    const std::string line = one_line(part);
    return part.is_string() ? line.substr(1, line.size() - 2) : line;
}

class Check {
public:
    std::vector<std::string> lines;

    void compare(const Json& expected, const Json* actual, const std::string& path) {
        if (const auto* test = find_test(expected)) return apply(*test, expected, actual, path);
        if (!actual) return report(path, expected, nothing, {});
        if (expected.is_object() && actual->is_object()) return compare_objects(expected, *actual, path);
        if (expected.is_array() && actual->is_array()) return compare_arrays(expected, *actual, path);
        if (expected != *actual) report(path, expected, one_line(*actual), one_line(expected));
    }

private:
    static constexpr const char* nothing = "nothing is there";
    using Passes = bool (*)(const Json& argument, const Json* actual);
    struct Test {
        const char* name;
        Json::value_t argument;
        Passes passes;
    };
    static const Test tests[];

    static const Test* find_test(const Json& expected);
    void apply(const Test& test, const Json& expected, const Json* actual, const std::string& path) {
        const Json& argument = expected.begin().value();
        if (!test.passes(argument, actual))
            report(path, expected, actual ? one_line(*actual) : nothing, inside(argument));
    }

    void compare_objects(const Json& expected, const Json& actual, const std::string& path) {
        for (const auto& [name, value] : expected.items()) {
            const auto member = actual.find(name);
            compare(value, member == actual.end() ? nullptr : &*member,
                    path.empty() ? name : path + "." + name);
        }
    }

    void compare_arrays(const Json& expected, const Json& actual, const std::string& path) {
        if (expected.size() != actual.size())
            lines.push_back(path + ": expected " + std::to_string(expected.size()) + " elements, got " +
                            std::to_string(actual.size()) + ": " + around(one_line(actual), 0));
        for (std::size_t index = 0; index < expected.size() && index < actual.size(); ++index)
            compare(expected[index], &actual[index], path + "[" + std::to_string(index) + "]");
    }

    /// Both may be long: what is told lies around the end of the longest beginning of a part of what is
    /// expected that the actual text holds.
    void report(const std::string& path, const Json& expected, const std::string& actual,
                const std::string& part) {
        const auto [place, length] = longest_beginning(part, actual);
        const std::string line = one_line(expected);
        lines.push_back((path.empty() ? "outcome" : path) + ": expected " +
                        around(line, line.find(part) + length) + ", got " + around(actual, place + length));
    }
};

bool holds(const Json& part, const Json* actual) {
    return actual && actual->is_string() &&
           actual->get<std::string>().find(part.get<std::string>()) != std::string::npos;
}

const Check::Test Check::tests[] = {
    {"contains", Json::value_t::string, holds},
    {"absent", Json::value_t::string,
     [](const Json& part, const Json* actual) {
         return actual && actual->is_string() && !holds(part, actual);
     }},
    {"matches", Json::value_t::string,
     [](const Json& pattern, const Json* actual) {
         return actual && actual->is_string() &&
                std::regex_search(actual->get<std::string>(), std::regex(pattern.get<std::string>()));
     }},
    {"count", Json::value_t::number_unsigned,
     [](const Json& count, const Json* actual) {
         return actual && actual->is_array() && actual->size() == count.get<std::size_t>();
     }},
    {"missing", Json::value_t::boolean,
     [](const Json& missing, const Json* actual) { return (actual == nullptr) == missing.get<bool>(); }},
};

const Check::Test* Check::find_test(const Json& expected) {
    if (!expected.is_object() || expected.size() != 1) return nullptr;
    for (const Test& test : tests)
        if (expected.begin().key() == test.name && expected.begin().value().type() == test.argument)
            return &test;
    return nullptr;
}

} // namespace

std::vector<std::string> mismatches(const Json& expected, const Json& outcome) {
    Check check;
    check.compare(expected, &outcome, {});
    return check.lines;
}

} // namespace ornavel::rehearsal
