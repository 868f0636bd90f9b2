#include "base/encoding.h"
#include "settings/descriptions.h"
#include "workbench/command.h"
#include "workbench/policy_files.h"

namespace ornavel::workbench {
namespace {

constexpr const char* policy_example =
    "Writes Ornavel.adm for Windows 2000 to 2003, and Ornavel.admx with en-US\\Ornavel.adml for later ones. "
    "Both write\n"
    "the values that Ornavel itself reads, for the user; what Ornavel remembers for itself is left out.\n\n"
    "Example:\n"
    "  ornavel policy -o policies";

} // namespace

void add_policy(CLI::App& program, Task& task) {
    const auto out = std::make_shared<std::string>();
    CLI::App* command = program.add_subcommand("policy", "Writes policy templates of the settings");
    command->add_option("-o", *out, "The folder for the files")->required()->type_name("FOLDER");
    command->footer(policy_example);
    command->callback([out, &task] {
        task = [out](Context& context) {
            const Text folder = from_utf8(*out);
            const auto policies = all_policies();
            context.files.create_folder(folder + u"/en-US");
            context.files.write(folder + u"/Ornavel.adm", adm_file(policies));
            context.files.write(folder + u"/Ornavel.admx", admx_file(policies));
            context.files.write(folder + u"/en-US/Ornavel.adml", adml_file(policies));
            context.out << policies.size() << " policies\n";
            return fine;
        };
    });
}

} // namespace ornavel::workbench
