#include "workbench/program.h"

#include "workbench/command.h"

namespace ornavel::workbench {
namespace {

constexpr const char* about =
    "Answers what makers of letterheads and administrators ask, with Ornavel's own code.\n"
    "Paths with backslashes are understood; --drive C=FOLDER lets a folder stand in for a "
    "drive.";

int parse(CLI::App& program, std::vector<std::string> words, const Machine& machine) {
    std::ranges::reverse(words); // CLI11 takes them from the back
    try {
        program.parse(std::move(words));
    } catch (const CLI::ParseError& error) {
        return program.exit(error, machine.out, machine.err) == 0 ? -1 : unusable;
    }
    return fine;
}

int do_task(const Task& task, Context& context) {
    try {
        return task(context);
    } catch (const Failure& failure) {
        context.err << "ornavel: " << failure.description() << '\n';
    }
    return unusable;
}

int run_program(std::vector<std::string> words, const Machine& machine) {
    CLI::App program(about, "ornavel");
    std::vector<std::string> drives;
    program.add_option("--drive", drives, "A folder that stands in for a drive: C=FOLDER")
        ->type_name("C=FOLDER");
    program.require_subcommand(1);
    program.fallthrough();
    program.set_help_all_flag("--help-all", "Prints the help of every subcommand");
    Task task;
    add_compose(program, task);
    add_lint(program, task);
    add_settings(program, task);
    add_explain(program, task);
    add_policy(program, task);
    add_doctor(program, task);
    add_presets(program, task);
    if (const int code = parse(program, std::move(words), machine); code != fine) return std::max(code, 0);

    Context context{Drives(machine.files), machine.clock, machine.out, machine.err};
    return do_task(
        [&](Context& all) {
            for (const std::string& drive : drives) all.files.stand_in(from_utf8(drive));
            return task(all);
        },
        context);
}

} // namespace

int run(std::vector<std::string> words, const Machine& machine) noexcept {
    int code = unusable;
    if (!attempt([&] { code = run_program(std::move(words), machine); }))
        attempt([&] { machine.err << "ornavel: there is not enough memory\n"; });
    return code;
}

std::ostream& operator<<(std::ostream& stream, TextView text) { return stream << to_utf8(text); }

void deliver(Context& context, const std::string& path, std::string_view bytes) {
    if (path.empty())
        context.out << bytes;
    else
        context.files.write(from_utf8(path), bytes);
}

} // namespace ornavel::workbench
