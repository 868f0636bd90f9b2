#include "forms/option_words.h"

#include <gtest/gtest.h>

#include <array>

namespace ornavel::forms {
namespace {

struct Pair {
    Text word;
    std::optional<int> number;
};

TEST(OptionWords, ImportanceIsReadInEnglishAndFrench) {
    const Pair pairs[] = {{u"Low", 0},   {u"Faible", 0}, {u"Normal", 1}, {u"Normale", 1},   {u"High", 2},
                          {u"Haute", 2}, {u"", {}},      {u"Bas", {}},   {u"Haut", {}},     {u"normal", {}},
                          {u"HIGH", {}}, {u" High", {}}, {u"2", {}},     {u"Personal", {}}, {u"Low ", {}}};
    for (const auto& [word, number] : pairs) EXPECT_EQ(importance_from_text(word), number);
}

TEST(OptionWords, SensitivityIsReadInEnglishAndFrench) {
    const Pair pairs[] = {{u"Normal", 0},    {u"Normale", 0},    {u"Personal", 1},     {u"Personnel", 1},
                          {u"Private", 2},   {u"Priv\u00e9", 2}, {u"Confidential", 3}, {u"Confidentiel", 3},
                          {u"Personel", {}}, {u"Prive", {}},     {u"private", {}},     {u"", {}},
                          {u"Low", {}}};
    for (const auto& [word, number] : pairs) EXPECT_EQ(sensitivity_from_text(word), number);
}

TEST(OptionWords, NumbersAreShownInEnglish) {
    const std::array importance{u"Low", u"Normal", u"High"};
    for (int number = 0; number < 3; ++number)
        EXPECT_EQ(importance_to_text(number, u"English"), importance[static_cast<std::size_t>(number)]);
    const std::array sensitivity{u"Normal", u"Personal", u"Private", u"Confidential"};
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(sensitivity_to_text(number, u"English"), sensitivity[static_cast<std::size_t>(number)]);
}

TEST(OptionWords, EveryOtherLanguageIsFrench) {
    for (const TextView language : {u"French", u"", u"english", u"ENGLISH"}) {
        EXPECT_EQ(importance_to_text(0, language), u"Bas");
        EXPECT_EQ(importance_to_text(1, language), u"Normale");
        EXPECT_EQ(importance_to_text(2, language), u"Haut");
        EXPECT_EQ(sensitivity_to_text(0, language), u"Normale");
        EXPECT_EQ(sensitivity_to_text(1, language), u"Personel");
        EXPECT_EQ(sensitivity_to_text(2, language), u"Private");
        EXPECT_EQ(sensitivity_to_text(3, language), u"Confidentiel");
    }
}

TEST(OptionWords, ANumberThatTheMailClientLacksHasNoWord) {
    for (const int number : {-1, 3, 32767}) EXPECT_EQ(importance_to_text(number, u"English"), std::nullopt);
    for (const int number : {-1, 4, 32767}) EXPECT_EQ(sensitivity_to_text(number, u"French"), std::nullopt);
}

TEST(OptionWords, OfTheFrenchWordsSomeAreNotReadBack) {
    EXPECT_EQ(importance_from_text(*importance_to_text(2, u"French")), std::nullopt);
    EXPECT_EQ(importance_from_text(*importance_to_text(0, u"French")), std::nullopt);
    EXPECT_EQ(importance_from_text(*importance_to_text(1, u"French")), 1);
    EXPECT_EQ(sensitivity_from_text(*sensitivity_to_text(1, u"French")), std::nullopt);
    EXPECT_EQ(sensitivity_from_text(*sensitivity_to_text(2, u"French")), 2);
    EXPECT_EQ(sensitivity_from_text(*sensitivity_to_text(3, u"French")), 3);
}

} // namespace
} // namespace ornavel::forms
