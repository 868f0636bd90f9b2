// Ends the real Send to Many at random moments, starts it again, and looks whether anybody got two messages
// or was forgotten. Usage: kills MASSMAILER.exe [ENDS [PEOPLE [SEED]]]
#include "tests/kills/sender.h"

#include <cstdio>
#include <cstdlib>
#include <objbase.h>
#include <random>

namespace ornavel::kills {
namespace {

class Trial {
public:
    Trial(Text program, int people, unsigned seed)
        : sender_(std::move(program), people), people_(people), random_(seed) {}

    /// Starts the program, presses Start, and ends the program at some moment; false when it was done before.
    bool start_and_end() {
        ProgramWindow window = sender_.window();
        sender_.open_list(window, 0);
        const int last_message = sent() + between(0, 5);
        bool is_done = !press_start(window);
        const auto is_over = [&] { return sent() >= last_message || !window.box().empty(); };
        if (!is_done) pump_until(is_over, u"a message");
        // Now and then in the middle of a call that this thread doesn't answer.
        if (between(0, 1) == 0)
            Sleep(static_cast<DWORD>(between(0, 8)));
        else
            pump_for(between(0, 8));
        is_done = is_done || !window.box().empty();
        window.end();
        return !is_done;
    }

    /// Starts the program and lets it come to its end.
    int start_and_finish() {
        ProgramWindow window = sender_.window();
        sender_.open_list(window, 0);
        if (press_start(window)) window.answer(IDOK);
        window.close();
        pump_until([&] { return !window.runs(); }, u"the program's end");
        return window.exit_code();
    }

    int sent() const { return static_cast<int>(sender_.client.sent.size()); }

    /// Prints what came of everybody; whether the promise was kept.
    bool is_kept(int ends) {
        const mass_mailer::Journal journal = sender_.journal();
        const auto counts = sender_.client.messages_by_address();
        int with_one = 0, with_two = 0, unknown = 0, unknown_with_one = 0, forgotten = 0;
        for (int i = 0; i < people_; ++i) {
            const auto found = counts.find(Sender::address(i));
            const int messages = found == counts.end() ? 0 : found->second;
            const bool is_unknown =
                journal.state_of(Sender::address(i)) == mass_mailer::Journal::State::unknown;
            with_one += messages == 1;
            with_two += messages > 1;
            unknown += is_unknown;
            unknown_with_one += is_unknown && messages == 1;
            forgotten += messages == 0 && !is_unknown;
        }
        std::printf(
            "%d people, ended %d times: %d have one message, %d have more, %d are forgotten; %d are unknown, "
            "of whom %d have it\n",
            people_, ends, with_one, with_two, forgotten, unknown, unknown_with_one);
        return journal.is_begun() && with_two == 0 && forgotten == 0 && unknown <= ends;
    }

private:
    int between(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

    /// Agrees to everything but a second message to anybody; false when everybody has theirs.
    static bool press_start(const ProgramWindow& window) {
        window.click(u"cmdStart");
        pump_until([&] { return !window.box().empty(); }, u"a question");
        if (contains(window.box(), u"twice")) {
            window.answer(IDNO);
            // Nothing more is asked where these were the last ones.
            for (int tries = 0; tries < 100 && window.box().empty(); ++tries) pump_for(50);
            if (window.box().empty()) return false;
        }
        const bool asks = contains(window.box(), u"Send ");
        window.answer(asks ? IDYES : IDOK);
        return asks;
    }

    Sender sender_;
    int people_;
    std::mt19937 random_;
};

int run(int count, char** arguments) {
    const auto number = [&](int index, int fallback) {
        return index < count ? std::atoi(arguments[index]) : fallback;
    };
    const int ends = number(2, 50), people = number(3, 200);
    const auto seed = static_cast<unsigned>(number(4, static_cast<int>(GetTickCount())));
    std::printf("seed %u\n", seed);
    Trial trial(from_utf8(arguments[1]), people, seed);
    int ended = 0;
    while (ended < ends && trial.start_and_end()) std::printf("end %d: %d messages\n", ++ended, trial.sent());
    const int code = trial.start_and_finish();
    std::printf("to the end: %d messages, exit code %d\n", trial.sent(), code);
    const bool is_kept = trial.is_kept(ended);
    return is_kept && ended == ends && code == 0 ? 0 : 1;
}

} // namespace
} // namespace ornavel::kills

int main(int count, char** arguments) {
    if (count < 2) return 2;
    CoInitialize(nullptr);
    try {
        return ornavel::kills::run(count, arguments);
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
