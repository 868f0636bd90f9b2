#include "base/files.h"

#include "base/errors.h"

#include <algorithm>

namespace ornavel {

Text read_text(const Files& files, TextView path) { return decode(files.read(path), files.ansi()); }

Text read_lines(const Files& files, TextView path, TextView after_each_line) {
    const Text whole = read_text(files, path);
    Text result;
    result.reserve(whole.size() + after_each_line.size());
    for (const Text& line : lines_of(whole)) result.append(line).append(after_each_line);
    return result;
}

void write_whole(Files& files, TextView path, std::string_view bytes) {
    const Text unfinished = Text(path) + u".new";
    try {
        files.write(unfinished, bytes);
        files.move(unfinished, path);
    } catch (...) {
        attempt([&] {
            if (files.file_exists(unfinished)) files.remove(unfinished);
        });
        throw;
    }
}

std::optional<Text> first_html_file(const Files& files, TextView folder) {
    const auto names = files.list(folder);
    const auto found = std::ranges::find_if(names, [](const Text& name) {
        const Text lower = lower_case(name);
        return lower.ends_with(u".htm") || lower.ends_with(u".html");
    });
    if (found == names.end()) return {};
    return *found;
}

} // namespace ornavel
