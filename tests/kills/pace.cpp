// How fast the real Send to Many is: the time that it takes over a list of 10,000 people, and the moments at
// which it sends. Prints what it measures, and judges nothing: that is the machine's as much as the
// program's. Usage: pace MASSMAILER.exe [MESSAGES A MINUTE [PEOPLE]]
#include "tests/kills/sender.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <objbase.h>

namespace ornavel::kills {
namespace {

/// In milliseconds, of a clock that is never set.
double moment() {
    LARGE_INTEGER ticks, each_second;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&each_second);
    return 1000.0 * static_cast<double>(ticks.QuadPart) / static_cast<double>(each_second.QuadPart);
}

void measure_list(const Text& program) {
    constexpr int people = 10'000;
    const Sender sender(program, people);
    const ProgramWindow window = sender.window();
    const double began = moment();
    sender.open_list(window, 0);
    std::printf("%d people read, checked and listed in %.0f ms\n", people, moment() - began);
}

void print(int pace, const std::vector<double>& moments) {
    std::vector<double> gaps;
    for (std::size_t i = 1; i < moments.size(); ++i) gaps.push_back(moments[i] - moments[i - 1]);
    std::ranges::sort(gaps);
    const double minutes = (moments.back() - moments.front()) / 60000;
    const double kept = static_cast<double>(gaps.size()) / minutes;
    std::printf("%d messages a minute asked, %.2f kept (%+.2f %%) over %zu messages in %.1f s\n", pace, kept,
                100 * (kept / pace - 1), moments.size(), 60 * minutes);
    std::printf("from one message to the next: %.0f to %.0f ms, half of them below %.0f ms\n", gaps.front(),
                gaps.back(), gaps[gaps.size() / 2]);
}

void measure_pace(const Text& program, int pace, int people) {
    Sender sender(program, people);
    std::vector<double> moments;
    sender.client.at = [&](TextView member) {
        if (member == u"Send") moments.push_back(moment());
    };
    const ProgramWindow window = sender.window();
    sender.open_list(window, pace);
    window.click(u"cmdStart");
    window.answer(IDYES);
    while (window.runs() && window.box().empty()) pump_for(50);
    if (moments.size() != static_cast<std::size_t>(people)) throw Failure(u"Not everybody got a message");
    print(pace, moments);
}

} // namespace
} // namespace ornavel::kills

int main(int count, char** arguments) {
    using namespace ornavel;
    if (count < 2) return 2;
    const auto number = [&](int index, int fallback) {
        return index < count ? std::atoi(arguments[index]) : fallback;
    };
    CoInitialize(nullptr);
    try {
        const Text program = from_utf8(arguments[1]);
        kills::measure_list(program);
        kills::measure_pace(program, number(2, 60), number(3, 91));
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
