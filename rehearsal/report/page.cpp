#include "rehearsal/report/page.h"

#include "base/encoding.h"
#include "rehearsal/report/html.h"
#include "rehearsal/report/reasons.h"
#include "rehearsal/report/words.h"

#include <algorithm>
#include <functional>

namespace ornavel::rehearsal::report {
namespace {

/// The page itself may load nothing either; frames inherit this.
std::string head() {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
           "style-src 'unsafe-inline'; frame-src 'none'; script-src '" +
           std::string(measuring_script_hash) + "'\">\n<title>Ornavel in rehearsal</title>\n";
}

std::size_t references_left(const std::vector<Story>& stories) {
    std::size_t held = 0;
    for (const auto& story : stories) held += held_by(story);
    return held;
}

std::size_t count_of(const std::vector<Story>& stories, Fate fate) {
    std::size_t count = 0;
    for (const auto& story : stories)
        count += static_cast<std::size_t>(std::ranges::count_if(
            story.sends, [&](const Send& send) { return fate_of(story, send) == fate; }));
    return count;
}

double slowest_send(const std::vector<Story>& stories) {
    double slowest = 0;
    for (const auto& story : stories)
        for (const auto& send : story.sends) slowest = std::max(slowest, send.milliseconds);
    return slowest;
}

std::string figure(std::string_view number, std::string_view caption) {
    return element("div", "", text_element("dt", "", caption) + text_element("dd", "", number));
}

std::string figures(const std::vector<Story>& stories) {
    std::string fates;
    for (const Fate fate : all_fates)
        if (const auto count = count_of(stories, fate)) fates += figure(std::to_string(count), name_of(fate));
    const auto astray = std::ranges::count_if(stories, std::not_fn(is_as_expected));
    return element("dl", "figures",
                   fates + (astray == 0 ? "" : figure(std::to_string(astray), "not as expected")) +
                       figure(milliseconds(slowest_send(stories)), "slowest send") +
                       figure(std::to_string(references_left(stories)), "references left"));
}

std::string how_it_was_played(const std::vector<Story>& stories) {
    const bool with_dll = std::ranges::any_of(stories, &Story::with_dll);
    return text_element(
        "p", "lead",
        with_dll
            ? "Each message below was raised as a send event to the real Ornavel.dll, loaded through COM "
              "under Wine by a stand-in for the mail client. What you see before and after, the windows and "
              "the times are that play's. The gates, settings and calls come from a second play of the same "
              "story with the same code built for this machine, and each story says whether both plays "
              "ended alike."
            : "Each message below was sent through the add-in's own code, built for this machine, with a "
              "stand-in for the mail client and everything else in memory. The real DLL took no part.");
}

std::string pill(std::string_view kind, std::string_view words) {
    return text_element("span", "pill " + std::string(kind), words);
}

/// The class of a fate's pill.
std::string_view kind_of(Fate fate) {
    constexpr std::string_view kinds[] = {"dressed", "look", "changed", "alone", "held", "bad"};
    return kinds[static_cast<std::size_t>(fate)];
}

std::string row(const Story& story, std::size_t number, const Send& send) {
    const std::string link =
        "<a href=\"#story-" + std::to_string(number) + "\">" + escape(to_utf8(story.scenario.name)) + "</a>";
    const Fate fate = fate_of(story, send);
    const std::string pills =
        pill(kind_of(fate), name_of(fate)) + (is_as_expected(story) ? "" : pill("bad", "not as expected"));
    return element("tr", "",
                   text_element("td", "number", std::to_string(number)) + element("td", "", link) +
                       element("td", "", pills) + text_element("td", "gate", end_of_the_way(send)) +
                       text_element("td", "number", std::to_string(send.calls)) +
                       text_element("td", "number", milliseconds(send.milliseconds)));
}

std::string overview(const std::vector<Story>& stories) {
    std::string rows;
    for (const char* heading :
         {"Story", "", "What became of it", "The way through the gates", "Calls", "Time"})
        rows += text_element("th", "", heading);
    rows = element("tr", "", rows);
    for (std::size_t i = 0; i < stories.size(); ++i)
        for (const auto& send : stories[i].sends) rows += row(stories[i], i + 1, send);
    return element("table", "overview", rows);
}

std::string line_of(const Origin& origin) {
    return text_element("p", "origin",
                        "Ornavel " + origin.version +
                            (origin.commit.empty() ? "" : ", commit " + origin.commit) + ", " + origin.date);
}

} // namespace

std::string page(const std::vector<Story>& stories, const Origin& origin) {
    std::string sections;
    std::size_t sends = 0;
    for (const auto& story : stories) sends += story.sends.size();
    for (std::size_t i = 0; i < stories.size(); ++i) sections += story_section(stories[i], i + 1);
    const std::string header = text_element("p", "eyebrow", "Ornavel in rehearsal") +
                               text_element("h1", "", counted(sends, "message") + " on the way out") +
                               how_it_was_played(stories) + line_of(origin) + figures(stories) +
                               overview(stories);
    return head() + element("style", "", style_sheet) + "</head>\n<body>\n" + element("header", "", header) +
           element("main", "", sections) + "<script>" + measuring_script + "</script>\n</body>\n</html>\n";
}

} // namespace ornavel::rehearsal::report
