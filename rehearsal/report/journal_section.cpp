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
    std::vector<std::pair<Deed, const char*>> deeds;
    bool once; ///< a line that repeats is listed once
};

const Listing listings[] = {
    {"setting read", {{Deed::read_setting, ""}}, true},
    {"setting written", {{Deed::save_setting, ""}}, false},
    {"call to the mail client", {{Deed::get, "get"}, {Deed::put, "put"}, {Deed::call, "call"}}, false},
    {"event from the mail client", {{Deed::event, ""}}, false},
    {"file used",
     {{Deed::read_file, "read"}, {Deed::write_file, "write"}, {Deed::delete_file, "delete"}},
     false},
    {"program started", {{Deed::launch, ""}}, false},
};

/// "2 calls to the mail client": the first word takes the plural.
std::string plural(std::size_t number, std::string_view noun) {
    const auto first = noun.find(' ');
    return counted(number, noun.substr(0, first)) + std::string(noun.substr(std::min(first, noun.size())));
}

std::string line(const JournalEntry& entry, const char* word) {
    return element("tr", "",
                   (*word ? text_element("td", "verb", word) : "") +
                       text_element("td", "what", to_utf8(entry.what)) +
                       text_element("td", "value", to_utf8(entry.value)));
}

std::string fold_out_of(const Listing& listing, const std::vector<JournalEntry>& journal) {
    std::string lines;
    std::set<std::string> listed;
    std::size_t count = 0;
    for (const auto& entry : journal) {
        const auto deed = std::ranges::find(listing.deeds, entry.deed, &std::pair<Deed, const char*>::first);
        if (deed == listing.deeds.end()) continue;
        const std::string next = line(entry, deed->second);
        if (listing.once && !listed.insert(next).second) continue;
        lines += next;
        ++count;
    }
    if (count == 0) return {};
    return fold_out(plural(count, listing.noun), element("table", "journal", lines));
}

} // namespace

std::string journal_section(const Story& story) {
    std::string folds;
    for (const auto& listing : listings) folds += fold_out_of(listing, story.journal);
    return element("div", "folds", folds);
}

} // namespace ornavel::rehearsal::report
