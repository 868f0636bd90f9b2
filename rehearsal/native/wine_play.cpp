#include "rehearsal/native/wine_play.h"

#include "rehearsal/native/apart.h"

#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace ornavel::rehearsal {
namespace {

/// A path of the build, unless the environment names another.
std::string part_of_build(const char* variable, const char* built) {
    const char* given = std::getenv(variable);
    const std::string path = given ? given : built;
    if (!std::filesystem::exists(path)) throw Unusable(path + ": is not there; the wine binding needs it");
    return path;
}

/// Replaces this process by the command. What it prints goes to the error stream.
int become(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    execv(arguments[0], arguments.data());
    return 127;
}

} // namespace

Json play_under_wine(const Json& json, const Scenario& scenario, const std::string& source) {
    const auto runner = part_of_build("ORNAVEL_WINE_RUN", ORNAVEL_WINE_RUNNER);
    const auto player = part_of_build("ORNAVEL_WINE_REHEARSE", ORNAVEL_WINE_PLAYER);
    const ScratchFolder scratch;
    const std::string in = scratch / "scenario.json", out = scratch / "outcome.json";
    std::ofstream(in, std::ios::binary) << to_json_text(with_files_inside(json, scenario));
    const int code = run_apart([&] { return become({runner, player, "Z:" + in, "Z:" + out}); });
    return collect_outcome(code, out, scenario, source);
}

} // namespace ornavel::rehearsal
