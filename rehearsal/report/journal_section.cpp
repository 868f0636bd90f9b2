#include "rehearsal/report/page.h"

#include "base/encoding.h"
#include "rehearsal/report/html.h"
#include "rehearsal/report/words.h"

#include <algorithm>
#include <set>

namespace ornavel::rehearsal::report {
namespace {

/// The kinds of deeds that one fold-out lists, with the word that stands before each line.
struct Listing {
    const char* noun;
    const char* heading; ///< above what was used
    std::vector<std::pair<Deed, const char*>> deeds;
    bool once; ///< a line that repeats is listed once
};

const Listing listings[] = {
    {"setting read", "Setting", {{Deed::read_setting, ""}}, true},
    {"setting written", "Setting", {{Deed::save_setting, ""}}, false},
    {"call to the mail client",
     "Member",
     {{Deed::get, "get"}, {Deed::put, "put"}, {Deed::call, "call"}},
     false},
    {"event from the mail client", "Event", {{Deed::event, ""}}, false},
    {"file used",
     "File",
     {{Deed::read_file, "read"}, {Deed::write_file, "write"}, {Deed::delete_file, "delete"}},
     false},
    {"program started", "Program", {{Deed::launch, ""}}, false},
    {"error caught", "Step", {{Deed::trap, ""}}, false},
};

/// "2 calls to the mail client": the first word takes the plural.
std::string plural(std::size_t number, std::string_view noun) {
    const auto first = noun.find(' ');
    return counted(number, noun.substr(0, first)) + std::string(noun.substr(std::min(first, noun.size())));
}

std::string value_of(const JournalEntry& entry) {
    constexpr std::size_t longest = 80;
    const TextView value = entry.value;
    return to_utf8(value.substr(0, longest)) + (value.size() > longest ? "…" : "");
}

std::string words_of_failure(const JournalEntry& entry) {
    return entry.failure.empty() ? "failed" : "failed: " + to_utf8(entry.failure);
}

std::string line(const JournalEntry& entry, const char* word) {
    return element("tr", entry.failed ? "failed" : "",
                   (*word ? text_element("td", "verb", word) : "") +
                       text_element("td", "what", to_utf8(entry.what)) +
                       text_element("td", "value", entry.failed ? words_of_failure(entry) : value_of(entry)));
}

std::string headings(const Listing& listing) {
    const bool has_verbs = *listing.deeds.front().second != '\0';
    return element("tr", "",
                   (has_verbs ? text_element("th", "verb", "Use") : "") +
                       text_element("th", "what", listing.heading) + text_element("th", "value", "Value"));
}

std::string fold_out_of(const Listing& listing, const std::vector<JournalEntry>& journal) {
    std::string lines;
    std::set<std::string> listed;
    std::size_t count = 0, failures = 0;
    for (const auto& entry : journal) {
        const auto deed = std::ranges::find(listing.deeds, entry.deed, &std::pair<Deed, const char*>::first);
        if (deed == listing.deeds.end()) continue;
        const std::string next = line(entry, deed->second);
        if (listing.once && !listed.insert(next).second) continue;
        lines += next;
        ++count;
        failures += entry.failed;
    }
    if (count == 0) return {};
    const std::string failed = failures == 0 ? "" : ", " + std::to_string(failures) + " failed";
    return fold_out(plural(count, listing.noun) + failed,
                    element("table", "journal", headings(listing) + lines));
}

} // namespace

std::string journal_section(const Story& story) {
    std::string folds;
    for (const auto& listing : listings) folds += fold_out_of(listing, story.journal);
    return element("div", "folds", folds);
}

} // namespace ornavel::rehearsal::report
