#include "rehearsal/native/wine_play.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

namespace ornavel::rehearsal {
namespace {

namespace fs = std::filesystem;

/// A folder of its own that goes with everything in it.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = fs::temp_directory_path() / "rehearse-XXXXXX";
        if (!mkdtemp(pattern.data())) throw Unusable(pattern + ": can't be made");
        path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    fs::path operator/(const char* name) const { return path_ / name; }

private:
    fs::path path_;
};

std::string runner() {
    const char* given = std::getenv("ORNAVEL_WINE_RUN");
    return given ? given : ORNAVEL_WINE_RUNNER;
}

std::string player() {
    const char* given = std::getenv("ORNAVEL_WINE_REHEARSE");
    return given ? given : ORNAVEL_WINE_PLAYER;
}

/// The exit code of the program, or -1 when a signal ended it or it could not be started.
int run(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        dup2(STDERR_FILENO, STDOUT_FILENO);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) < 0 || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

} // namespace

Json play_under_wine(const Json& scenario, const std::string& source) {
    for (const auto& needed : {runner(), player()})
        if (!fs::exists(needed)) throw Unusable(needed + ": is not there; the wine binding needs it");
    const ScratchFolder scratch;
    const auto in = scratch / "scenario.json", out = scratch / "outcome.json";
    std::ofstream(in, std::ios::binary) << to_json_text(scenario);
    const int code = run({runner(), player(), "Z:" + in.string(), "Z:" + out.string()});
    if (code == 2) throw Unusable(source + ": " + (fs::exists(out) ? load_file(out) : "can't be played"));
    if (!fs::exists(out))
        return {{"name", scenario.value("name", "")},
                {"error", "the add-in crashed (exit code " + std::to_string(code) + ")"}};
    return parse_json(load_file(out), source + " (outcome)");
}

} // namespace ornavel::rehearsal
