#include "rehearsal/native/apart.h"

#include "rehearsal/outcome.h"

#include <array>
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace ornavel::rehearsal {

namespace fs = std::filesystem;

namespace {

volatile std::sig_atomic_t interruption = 0; ///< the signal that came, 0 before
volatile pid_t player = 0;                   ///< the process that an interruption ends, 0 where none runs

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

void note_interruption(int signal) {
    interruption = signal;
    if (player) kill(player, SIGTERM);
}

void on_interruption(void (*handler)(int)) {
    for (const int signal : interruptions) std::signal(signal, handler);
}

/// Interruptions wait for as long as this is kept.
class Undisturbed {
public:
    Undisturbed() {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int signal : interruptions) sigaddset(&signals, signal);
        sigprocmask(SIG_BLOCK, &signals, &before_);
    }
    ~Undisturbed() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    Undisturbed(const Undisturbed&) = delete;
    Undisturbed& operator=(const Undisturbed&) = delete;

private:
    sigset_t before_;
};

void stop_when_interrupted() {
    if (interruption) throw Unusable("interrupted");
}

/// A process whose interruptions are those of any program, and which an interruption of this one ends.
pid_t start_player() {
    const Undisturbed so_far;
    stop_when_interrupted();
    const pid_t child = fork();
    if (child == 0) on_interruption(SIG_DFL);
    if (child > 0) player = child;
    return child;
}

/// With the scenario's name in front, unless the reason has it.
[[noreturn]] void refuse(const std::string& source, const std::string& reason) {
    throw Unusable(reason.starts_with(source + ":") ? reason : source + ": " + reason);
}

} // namespace

ScratchFolder::ScratchFolder() {
    on_interruption(note_interruption);
    std::string pattern = fs::temp_directory_path() / "rehearse-XXXXXX";
    if (!mkdtemp(pattern.data())) throw Unusable(pattern + ": can't be made");
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    on_interruption(SIG_DFL);
    if (interruption) std::raise(interruption);
}

int run_apart(const std::function<int()>& body) {
    const pid_t child = start_player();
    if (child < 0) throw Unusable("no process can be started");
    if (child == 0) _exit(body());
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
    }
    player = 0;
    stop_when_interrupted();
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

Json collect_outcome(int code, const std::string& file, const Scenario& scenario, const std::string& source) {
    constexpr int unusable = 2;
    const bool left_something = fs::exists(file) && fs::file_size(file) > 0;
    if (code == unusable) refuse(source, left_something ? load_file(file) : "can't be played");
    if (left_something && code >= 0) return parse_json(load_file(file), source + " (outcome)");
    const std::string how =
        code < 0 ? "signal " + std::to_string(-code) : "exit code " + std::to_string(code);
    return crash_outcome(scenario.name, "the add-in crashed (" + how + ")");
}

} // namespace ornavel::rehearsal
