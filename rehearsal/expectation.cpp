#include "rehearsal/expectation.h"

#include <regex>

namespace ornavel::rehearsal {
namespace {

std::string one_line(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

class Comparison {
public:
    std::vector<std::string> lines;

    void compare(const Json& expected, const Json* actual, const std::string& path) {
        if (const auto* test = find_test(expected)) return apply(*test, expected, actual, path);
        if (!actual) return report(path, expected, "nothing is there");
        if (expected.is_object() && actual->is_object()) return compare_objects(expected, *actual, path);
        if (expected.is_array() && actual->is_array()) return compare_arrays(expected, *actual, path);
        if (expected != *actual) report(path, expected, one_line(*actual));
    }

private:
    using Passes = bool (*)(const Json& argument, const Json* actual);
    struct Test {
        const char* name;
        Json::value_t argument;
        Passes passes;
    };
    static const Test tests[];

    static const Test* find_test(const Json& expected);
    void apply(const Test& test, const Json& expected, const Json* actual, const std::string& path) {
        if (!test.passes(expected.begin().value(), actual))
            report(path, expected, actual ? one_line(*actual) : "nothing is there");
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
                            std::to_string(actual.size()) + ": " + one_line(actual));
        for (std::size_t index = 0; index < expected.size() && index < actual.size(); ++index)
            compare(expected[index], &actual[index], path + "[" + std::to_string(index) + "]");
    }

    void report(const std::string& path, const Json& expected, const std::string& actual) {
        lines.push_back((path.empty() ? "outcome" : path) + ": expected " + one_line(expected) + ", got " +
                        actual);
    }
};

bool holds(const Json& part, const Json* actual) {
    return actual && actual->is_string() &&
           actual->get<std::string>().find(part.get<std::string>()) != std::string::npos;
}

const Comparison::Test Comparison::tests[] = {
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

const Comparison::Test* Comparison::find_test(const Json& expected) {
    if (!expected.is_object() || expected.size() != 1) return nullptr;
    for (const Test& test : tests)
        if (expected.begin().key() == test.name && expected.begin().value().type() == test.argument)
            return &test;
    return nullptr;
}

} // namespace

std::vector<std::string> mismatches(const Json& expected, const Json& outcome) {
    Comparison comparison;
    comparison.compare(expected, &outcome, {});
    return comparison.lines;
}

} // namespace ornavel::rehearsal
