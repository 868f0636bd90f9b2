#include "rehearsal/report/report.h"

#include "rehearsal/report/findings.h"
#include "rehearsal/report/gather.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/reasons.h"
#include "rehearsal/report/words.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <ostream>

namespace ornavel::rehearsal::report {
namespace {

/// What came in, what happened, how long it took, what was left, and what to look at.
void print(const Story& story, std::size_t number, std::ostream& lines) {
    for (const auto& send : story.sends) {
        lines << (number < 10 ? " " : "") << number << ". " << capital(what_came_in(story, send)) << ' '
              << what_happened(story, send) << ": " << end_of_the_way(send) << ", "
              << milliseconds(send.milliseconds) << ", " << counted(held_by(story), "reference") << " left\n";
        for (const auto& finding : findings_in(story, send)) lines << "      " << finding << '\n';
    }
    if (!is_as_expected(story)) lines << "    not as expected\n";
}

std::string today() {
    const std::time_t now = std::time(nullptr);
    char text[32];
    const auto length = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::localtime(&now));
    return {text, length};
}

Origin origin() {
    const char* const commit = std::getenv("ORNAVEL_COMMIT");
    return {today(), commit ? commit : "", ORNAVEL_VERSION};
}

/// A reader never sees a page that is half written.
void write(const std::string& file, const std::string& bytes) {
    const std::string unfinished = file + ".new";
    std::ofstream stream(unfinished, std::ios::binary);
    std::error_code failed;
    if (!(stream << bytes).flush()) throw Unusable(file + ": can't be written");
    stream.close();
    std::filesystem::rename(unfinished, file, failed);
    if (failed) throw Unusable(file + ": can't be written");
}

} // namespace

void write_report(const std::string& page_file, const std::vector<Loaded>& all,
                  const std::vector<Json>& with_dll, const std::vector<WindowPictures>& pictures,
                  std::ostream& lines) {
    std::vector<Story> stories;
    for (std::size_t i = 0; i < all.size(); ++i) {
        stories.push_back(gather(all[i].scenario, all[i].source,
                                 with_dll.empty() ? std::nullopt : std::optional(with_dll[i])));
        if (i < pictures.size()) stories.back().pictures = pictures[i];
        print(stories.back(), i + 1, lines);
    }
    write(page_file, page(stories, origin()));
    lines << "The report: " << page_file << '\n';
}

} // namespace ornavel::rehearsal::report
