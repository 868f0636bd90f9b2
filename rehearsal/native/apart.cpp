#include "rehearsal/native/apart.h"

#include "rehearsal/outcome.h"

#include <sys/wait.h>
#include <unistd.h>

namespace ornavel::rehearsal {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    std::string pattern = fs::temp_directory_path() / "rehearse-XXXXXX";
    if (!mkdtemp(pattern.data())) throw Unusable(pattern + ": can't be made");
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

int run_apart(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child < 0) throw Unusable("no process can be started");
    if (child == 0) _exit(body());
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
    }
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

Json collect_outcome(int code, const std::string& file, const Scenario& scenario, const std::string& source) {
    constexpr int unusable = 2;
    const bool left_something = fs::exists(file) && fs::file_size(file) > 0;
    if (code == unusable) throw Unusable(left_something ? load_file(file) : source + ": can't be played");
    if (left_something && code >= 0) return parse_json(load_file(file), source + " (outcome)");
    const std::string how =
        code < 0 ? "signal " + std::to_string(-code) : "exit code " + std::to_string(code);
    return crash_outcome(scenario.name, "the add-in crashed (" + how + ")");
}

} // namespace ornavel::rehearsal
