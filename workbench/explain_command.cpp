#include "base/encoding.h"
#include "workbench/command.h"
#include "workbench/log_reader.h"

namespace ornavel::workbench {
namespace {

constexpr const char* explain_example =
    "The log is the file that ErrorFileLocation names, written while SystemCheck "
    "is on. Where it can't tell two ways\n"
    "out apart, both are named. Messages that leave before the records begin "
    "have no line: those of another mode, with\n"
    "a user property, or of another class.\n\n"
    "Example:\n"
    "  ornavel explain SupportLog.txt --message 3";

struct ExplainOptions {
    std::string log;
    std::size_t message = 0;
    bool json = false;
};

Json as_json(std::size_t number, const LoggedSend& send, const Way& way) {
    Json passed = Json::array(), left = Json::array();
    for (const Text& gate : way.passed) passed.push_back(to_utf8(gate));
    for (const auto& [gate, because, setting] : way.left)
        left.push_back(
            {{"gate", to_utf8(gate)}, {"because", to_utf8(because)}, {"setting", to_utf8(setting)}});
    return {{"message", number},
            {"date", to_utf8(send.date)},
            {"line", send.line},
            {"passed", passed},
            {"dressed", way.dressed},
            {"left", left},
            {"remark", to_utf8(way.remark)}};
}

void print(std::ostream& stream, std::size_t number, const LoggedSend& send, const Way& way) {
    stream << "Message " << number << ", " << send.date << " (line " << send.line << "): ";
    if (way.dressed) stream << "it passed all gates and was dressed";
    if (!way.remark.empty()) stream << way.remark;
    for (std::size_t at = 0; at < way.left.size(); ++at) {
        const auto& [gate, because, setting] = way.left[at];
        stream << (at == 0 ? "it left at “" : "; or at “") << gate << "”, because " << because;
        if (!setting.empty()) stream << " (" << setting << ")";
    }
    if (!way.dressed && way.left.empty() && way.remark.empty()) stream << "the log breaks off";
    stream << ".\n    Passed:";
    for (std::size_t at = 0; at < way.passed.size(); ++at) stream << (at == 0 ? " " : ", ") << way.passed[at];
    stream << (way.passed.empty() ? " no gate that leaves a record\n" : "\n");
}

Exit explain(const ExplainOptions& options, Context& context) {
    const auto sends = sends_in(read_text(context.files, from_utf8(options.log)));
    if (options.message > sends.size())
        throw Failure(u"The log has " + to_text(static_cast<long long>(sends.size())) + u" messages");
    Json list = Json::array();
    for (std::size_t at = 0; at < sends.size(); ++at) {
        if (options.message != 0 && options.message != at + 1) continue;
        const Way way = way_of(sends[at]);
        if (options.json)
            list.push_back(as_json(at + 1, sends[at], way));
        else
            print(context.out, at + 1, sends[at], way);
    }
    if (options.json) context.out << list.dump(2) << '\n';
    if (!sends.empty()) return fine;
    context.err << "ornavel: no message has left a record in this log; SystemCheck must be on\n";
    return found_something;
}

} // namespace

void add_explain(CLI::App& program, Task& task) {
    const auto options = std::make_shared<ExplainOptions>();
    CLI::App* command =
        program.add_subcommand("explain", "Says in plain words what a log tells of each message");
    command->add_option("log", options->log, "The log")->required()->type_name("LOG");
    command->add_option("--message", options->message, "Only that message, counted from 1")->type_name("N");
    command->add_flag("--json", options->json, "Prints an array of JSON");
    command->footer(explain_example);
    command->callback(
        [options, &task] { task = [options](Context& context) { return explain(*options, context); }; });
}

} // namespace ornavel::workbench
