#include "bench/ratios.h"

#include <cstring>
#include <memory>

namespace ornavel::bench {
namespace {

/// The body as the composer hands it on: with some room at its end.
Text with_room(const Text& body) {
    Text text;
    text.reserve(body.size() + body.size() / 64 + 4096);
    text.append(body);
    return text;
}

Run copying(const Text& body) {
    auto from = std::make_shared<Text>(body), to = std::make_shared<Text>(body);
    return [from, to] {
        return seconds([&] { std::memcpy(to->data(), from->data(), from->size() * sizeof(char16_t)); });
    };
}

/// The work on ten bodies in turn. As they take the memory of one of ten times the size, the caches don't
/// flatter the smaller one when growth is measured.
Run working_on_ten(const Text& body, const Work& work) {
    return [&body, work] {
        std::vector<Text> texts;
        for (int i = 0; i < 10; ++i) texts.push_back(with_room(body));
        return seconds([&] {
            for (Text& text : texts) work(text);
        });
    };
}

} // namespace

Run working(const Text& body, const Work& work) {
    return [&body, work] {
        Text text = with_room(body);
        return seconds([&] { work(text); });
    };
}

double growth(const Text& small, const Text& large, const Work& work, int rounds) {
    const KeptMemory kept;
    const Run runs[] = {working_on_ten(small, work), working(large, work)};
    const auto times = fastest(runs, rounds);
    return 10 * times[1] / times[0];
}

double cost(const Text& body, const Work& work, int rounds) {
    const Run runs[] = {copying(body), working(body, work)};
    const auto times = medians(runs, rounds);
    return times[1] / times[0];
}

void print_costs(const std::string& what, const std::function<Text(std::size_t)>& make, const Work& work,
                 double most_copies, int rounds) {
    const Text small = make(megabyte), large = make(10 * megabyte);
    print_row((what + ", 10 MB").c_str(), cost(large, work, rounds), "x memcpy", most_copies);
    print_row((what + ", 1 -> 10 MB").c_str(), growth(small, large, work, rounds), "x time", 13);
}

} // namespace ornavel::bench
