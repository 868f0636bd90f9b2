#include "forms/option_words.h"

#include <algorithm>
#include <span>

namespace ornavel::forms {
namespace {

/// A word that is read.
struct Reading {
    TextView word;
    int number;
};

constexpr Reading importance_readings[] = {
    {u"Normal", 1}, {u"Normale", 1}, {u"Low", 0}, {u"Faible", 0}, {u"High", 2}, {u"Haute", 2},
};

constexpr Reading sensitivity_readings[] = {
    {u"Normal", 0},  {u"Normale", 0}, {u"Personal", 1},     {u"Personnel", 1},
    {u"Private", 2}, {u"Privé", 2},   {u"Confidential", 3}, {u"Confidentiel", 3},
};

/// The words that are shown for a number.
struct Showing {
    int number;
    TextView english, french;
};

// "Bas", "Haut" and "Personel" are not read: those who save their choices have such words stored.
constexpr Showing importance_showings[] = {
    {0, u"Low", u"Bas"},
    {1, u"Normal", u"Normale"},
    {2, u"High", u"Haut"},
};

constexpr Showing sensitivity_showings[] = {
    {0, u"Normal", u"Normale"},
    {1, u"Personal", u"Personel"},
    {2, u"Private", u"Private"},
    {3, u"Confidential", u"Confidentiel"},
};

std::optional<int> read_in(std::span<const Reading> readings, TextView word) {
    const auto found = std::ranges::find(readings, word, &Reading::word);
    return found == readings.end() ? std::nullopt : std::optional(found->number);
}

std::optional<Text> shown_in(std::span<const Showing> showings, int number, TextView language) {
    const auto found = std::ranges::find(showings, number, &Showing::number);
    if (found == showings.end()) return {};
    return Text(language == u"English" ? found->english : found->french);
}

} // namespace

std::optional<int> importance_from_text(TextView word) { return read_in(importance_readings, word); }
std::optional<int> sensitivity_from_text(TextView word) { return read_in(sensitivity_readings, word); }

std::optional<Text> importance_to_text(int number, TextView language) {
    return shown_in(importance_showings, number, language);
}
std::optional<Text> sensitivity_to_text(int number, TextView language) {
    return shown_in(sensitivity_showings, number, language);
}

} // namespace ornavel::forms
