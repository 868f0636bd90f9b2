#include "base/encoding.h"
#include "workbench/command.h"
#include "workbench/diagnosis.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

constexpr const char* doctor_example =
    "It reads the registry, folders and files, and asks the usage database for a "
    "connection; it changes nothing.\n\n"
    "Example:\n"
    "  ornavel doctor";

const char* words_for(Diagnosis::State state) {
    constexpr const char* words[] = {"fine", "look at this", "broken"};
    return words[static_cast<std::size_t>(state)];
}

void print(std::ostream& stream, const Diagnosis& diagnosis) {
    stream << words_for(diagnosis.state) << ": " << diagnosis.what << ": " << diagnosis.seen << '\n';
    if (!diagnosis.advice.empty()) stream << "    " << diagnosis.advice << '\n';
}

Json as_json(const Diagnosis& diagnosis) {
    return {{"state", words_for(diagnosis.state)},
            {"what", to_utf8(diagnosis.what)},
            {"seen", to_utf8(diagnosis.seen)},
            {"advice", to_utf8(diagnosis.advice)}};
}

Exit examine_and_print(bool json, std::ostream& stream) {
    const auto all = examine();
    Json list = Json::array();
    for (const Diagnosis& diagnosis : all)
        if (json)
            list.push_back(as_json(diagnosis));
        else
            print(stream, diagnosis);
    if (json) stream << list.dump(2) << '\n';
    const bool well = std::ranges::all_of(
        all, [](const Diagnosis& diagnosis) { return diagnosis.state == Diagnosis::State::fine; });
    return well ? fine : found_something;
}

} // namespace

void add_doctor(CLI::App& program, Task& task) {
    const auto json = std::make_shared<bool>(false);
    CLI::App* command =
        program.add_subcommand("doctor", "Looks at the installation of this machine (on Windows)");
    command->add_flag("--json", *json, "Prints an array of JSON");
    command->footer(doctor_example);
    command->callback(
        [json, &task] { task = [json](Context& context) { return examine_and_print(*json, context.out); }; });
}

} // namespace ornavel::workbench
