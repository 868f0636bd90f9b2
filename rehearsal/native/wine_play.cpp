#include "rehearsal/native/wine_play.h"

#include "rehearsal/native/apart.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace ornavel::rehearsal {

namespace fs = std::filesystem;

namespace {

/// The checkout in whose build folder this program lies: it may have been moved since it was built.
fs::path checkout() {
    const fs::path program = fs::read_symlink("/proc/self/exe");
    for (fs::path folder = program.parent_path(); folder.has_relative_path(); folder = folder.parent_path())
        if (fs::exists(folder / "tools/wine/run")) return folder;
    throw Unusable(program.string() + ": is not in a checkout; the wine binding needs its tools");
}

/// A part of the checkout, unless the environment names another.
std::string part_of_checkout(const char* name, const char* variable) {
    const char* const given = std::getenv(variable);
    const fs::path path = given ? fs::path(given) : checkout() / name;
    if (!fs::exists(path)) throw Unusable(path.string() + ": is not there; the wine binding needs it");
    return path;
}

/// The Windows side, of 64 bits where the environment asks for such worlds of Wine.
const char* built_player() {
    const char* const bits = std::getenv("WINE_BITS");
    const bool is_64_bit = bits && std::string_view(bits) == "64";
    return is_64_bit ? "build/windows64/rehearsal/rehearse.exe" : "build/windows/rehearsal/rehearse.exe";
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

/// A command line of Windows ends at 32,767 characters.
constexpr std::size_t most_at_once = 200;

/// The Windows side of several rehearsals, each with a file for the scenario and one for the outcome.
class Windows {
public:
    explicit Windows(const std::vector<Loaded>& scenarios)
        : scenarios_(scenarios), runner_(part_of_checkout("tools/wine/run", "ORNAVEL_WINE_RUN")),
          player_(part_of_checkout(built_player(), "ORNAVEL_WINE_REHEARSE")) {
        for (std::size_t i = 0; i < scenarios.size(); ++i)
            std::ofstream(in(i), std::ios::binary)
                << to_json_text(with_files_inside(scenarios[i].json, scenarios[i].scenario));
    }

    std::vector<Json> play() const {
        std::vector<Json> outcomes;
        while (outcomes.size() < scenarios_.size()) play_on(outcomes);
        return outcomes;
    }

    WindowPictures pictures(std::size_t i, const Json& outcome) const {
        WindowPictures found;
        for (std::size_t window = 0; window < outcome.value("windows", Json::array()).size(); ++window) {
            const std::string file = out(i) + ".window" + std::to_string(window) + ".bmp";
            if (fs::exists(file)) found[window] = load_file(file);
        }
        return found;
    }

private:
    /// Starts a process for the scenarios that have no outcome yet, and adds those it leaves: one at least.
    void play_on(std::vector<Json>& outcomes) const {
        const int code = run_apart([&] { return become(command(outcomes.size())); });
        for (bool last = false; !last;) {
            const std::size_t i = outcomes.size();
            last = i + 1 == scenarios_.size() || !fs::exists(out(i + 1));
            // The process's exit code is about the last scenario that it came to.
            outcomes.push_back(collect(i, last ? code : 0));
        }
    }

    Json collect(std::size_t i, int code) const {
        const Loaded& loaded = scenarios_[i];
        const std::string copy = "Z:" + in(i);
        try {
            return collect_outcome(code, out(i), loaded.scenario, copy);
        } catch (const Unusable& error) {
            throw Unusable(loaded.source + std::string(error.what()).substr(copy.size()));
        }
    }

    std::string in(std::size_t i) const { return scratch_ / ("scenario" + std::to_string(i) + ".json"); }
    std::string out(std::size_t i) const { return scratch_ / ("outcome" + std::to_string(i) + ".json"); }

    std::vector<std::string> command(std::size_t first) const {
        std::vector<std::string> words{runner_, "--alone", player_};
        const std::size_t end = std::min(scenarios_.size(), first + most_at_once);
        for (std::size_t i = first; i < end; ++i) {
            words.push_back("Z:" + in(i));
            words.push_back("Z:" + out(i));
        }
        return words;
    }

    const std::vector<Loaded>& scenarios_;
    ScratchFolder scratch_;
    std::string runner_, player_;
};

} // namespace

std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios) {
    const Windows windows(scenarios);
    return windows.play();
}

std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios,
                                  std::vector<WindowPictures>& pictures) {
    const Windows windows(scenarios);
    setenv("ORNAVEL_PICTURES", "yes", 1);
    const auto outcomes = windows.play();
    unsetenv("ORNAVEL_PICTURES");
    for (std::size_t i = 0; i < outcomes.size(); ++i) pictures.push_back(windows.pictures(i, outcomes[i]));
    return outcomes;
}

} // namespace ornavel::rehearsal
