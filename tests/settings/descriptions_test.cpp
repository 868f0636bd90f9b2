#include "base/encoding.h"
#include "settings/descriptions.h"
#include "settings/modes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

namespace ornavel::settings {
namespace {

// The parts of the add-in, as a reader of a reference knows them.
const std::set<Text> parts = {
    u"start-up", u"shutdown",  u"mode button",  u"options page", u"send",
    u"composer", u"preview",   u"send options", u"Send to Many", u"signature files",
    u"tray",     u"error log", u"error report",
};

std::vector<Text> listed(TextView words) { return words.empty() ? std::vector<Text>() : split(words, u", "); }

std::vector<Text> allowed_by(const Description& description) { return split(description.allowed, u"|"); }

void expect_parts(TextView words) {
    std::set<Text> seen;
    for (const Text& word : listed(words)) {
        EXPECT_TRUE(parts.contains(word)) << to_utf8(word);
        EXPECT_TRUE(seen.insert(word).second) << to_utf8(word) << " twice";
    }
}

const Description& about(const Key& key) {
    const auto found = std::ranges::find_if(descriptions(), [&](const Description& description) {
        return description.key.section == key.section && description.key.name == key.name;
    });
    return *found;
}

TEST(Descriptions, EachKeyOfTheCatalogueHasOneInItsOrder) {
    ASSERT_EQ(descriptions().size(), catalogue().size());
    for (std::size_t i = 0; i < catalogue().size(); ++i) {
        EXPECT_EQ(descriptions()[i].key.section, catalogue()[i].section);
        EXPECT_EQ(descriptions()[i].key.name, catalogue()[i].name);
    }
}

TEST(Descriptions, AMeaningIsOneSentence) {
    for (const Description& description : descriptions()) {
        const TextView meaning = description.meaning;
        SCOPED_TRACE(to_utf8(description.key.name));
        ASSERT_FALSE(meaning.empty());
        EXPECT_TRUE(meaning.front() >= u'A' && meaning.front() <= u'Z');
        EXPECT_TRUE(meaning.ends_with(u"."));
        EXPECT_FALSE(contains(meaning, u". ")) << "a second sentence";
        EXPECT_FALSE(contains(meaning, u"  ")) << "two blanks";
    }
}

TEST(Descriptions, NoTwoSettingsMeanTheSame) {
    std::set<TextView> meanings;
    for (const Description& description : descriptions())
        EXPECT_TRUE(meanings.insert(description.meaning).second) << to_utf8(description.key.name);
}

TEST(Descriptions, AFieldsMeaningNamesItsOwnField) {
    for (const Description& description : descriptions()) {
        if (description.group != Group::signature_fields || description.key.name == admin::Sigfax.name)
            continue;
        EXPECT_TRUE(contains(description.meaning, u"[#" + Text(description.key.name) + u"#]"))
            << to_utf8(description.key.name);
    }
}

/// Words such as "AutoPreview": a small letter with a capital behind it.
std::vector<Text> compound_words(TextView text) {
    std::vector<Text> words;
    const auto is_letter = [](char16_t unit) { return unit < 128 && std::isalnum(unit); };
    for (auto at = text.begin(); at != text.end();) {
        const auto first = std::find_if(at, text.end(), is_letter);
        at = std::find_if_not(first, text.end(), is_letter);
        const auto joint = std::adjacent_find(first, at, [](char16_t left, char16_t right) {
            return std::islower(left) && std::isupper(right);
        });
        if (joint != at) words.emplace_back(first, at);
    }
    return words;
}

TEST(Descriptions, SettingsThatAMeaningNamesAreInTheCatalogue) {
    std::set<Text> known = {u"myTestHtmlFile", u"DisclaimerText", u"SupportLog",
                            u"MassMailer",     u"SafeMailItem",   u"DateString",
                            u"StringDate",     u"vCards",         u"SigQuote"};
    for (const Key& key : catalogue()) known.emplace(key.name);
    for (const Description& description : descriptions())
        for (const Text& word : compound_words(description.meaning))
            EXPECT_TRUE(known.contains(word)) << to_utf8(description.key.name) << " names " << to_utf8(word);
}

TEST(Descriptions, AllowedValuesContainTheDefault) {
    for (const Description& description : descriptions()) {
        if (description.allowed.empty()) continue;
        const auto allowed = allowed_by(description);
        EXPECT_NE(std::ranges::find(allowed, description.key.default_value), allowed.end())
            << to_utf8(description.key.name);
        EXPECT_EQ(std::set(allowed.begin(), allowed.end()).size(), allowed.size());
    }
}

TEST(Descriptions, SwitchesAndTicksAllowTheirTwoValues) {
    for (const Description& description : descriptions()) {
        const SettingKind kind = description.key.kind;
        EXPECT_EQ(kind == SettingKind::switch_, description.allowed == u"True|False")
            << to_utf8(description.key.name);
        EXPECT_EQ(kind == SettingKind::tick, description.allowed == u"0|1") << to_utf8(description.key.name);
    }
}

TEST(Descriptions, ChoicesListTheirWords) {
    EXPECT_EQ(allowed_by(about(user::SettingButtonBar)),
              (std::vector<Text>{Text(modes::automatic), Text(modes::on), Text(modes::off),
                                 Text(modes::signature)}));
    EXPECT_EQ(about(user::InsertDateFormat).allowed, u"|Long");
    EXPECT_EQ(about(user::InsertOrder).allowed, u"|DateString|StringDate");
    EXPECT_EQ(about(user::Importance).allowed, u"|Normal|Low|High|Normale|Faible|Haute");
    EXPECT_EQ(about(user::Sensitivity).allowed,
              u"|Normal|Private|Personal|Confidential|Normale|Privé|Personnel|Confidentiel");
    EXPECT_EQ(about(user::Template).allowed, u"");
}

TEST(Descriptions, ReadersAndWritersArePartsOfTheAddIn) {
    for (const Description& description : descriptions()) {
        SCOPED_TRACE(to_utf8(description.key.name));
        expect_parts(description.readers.parts);
        expect_parts(description.writers);
    }
}

TEST(Descriptions, ASettingThatNothingReadsSaysThatItHasNoEffect) {
    for (const Description& description : descriptions()) {
        if (!description.readers.parts.empty()) continue;
        EXPECT_FALSE(description.readers.not_yet) << to_utf8(description.key.name);
        EXPECT_TRUE(description.meaning.starts_with(u"Has no effect")) << to_utf8(description.key.name);
    }
}

// What the add-in saves, written down a second time.
const std::set<Text> saved_by_the_add_in = {
    u"AutoPreview",
    u"Current Signature",
    u"ErrorFileLocation",
    u"PreviewOptionsShow",
    u"SendToManySubject",
    u"SigAddress",
    u"SigAddress2",
    u"SigAddress3",
    u"SigAddress4",
    u"SigAddressFR",
    u"SigAddress2FR",
    u"SigAddress3FR",
    u"SigAddress4FR",
    u"SigBGColor",
    u"SigCell",
    u"SigEmail",
    u"SigFax",
    u"SigFullname",
    u"SigFullnameFR",
    u"SigOrganizationName",
    u"SigOrganizationNameFR",
    u"SigPosition",
    u"SigPositionFR",
    u"SigTelephone",
    u"SigWebsite",
    u"SigWebsiteFR",
    u"SigWebsiteDisplayName",
    u"SigWebsiteDisplayNameFR",
    u"SkipInternal",
    u"StartupSetupWiz",
    u"SysTray",
    u"WipeOutFileCompare",
    u"WipeOutFontControl",
    u"WipeoutHTML",
    u"WipeoutRemoveConvertedBR",
    u"WipeoutTemplateAttachments",
    u"BrowserTop",
    u"BrowserLeft",
    u"BrowserHeight",
    u"BrowserWidth",
    u"Categories",
    u"CategoryVal",
    u"Default",
    u"Delivery",
    u"FollowUp",
    u"FollowUpVal",
    u"Importance",
    u"Receipt",
    u"Sensitivity",
    u"ShowMessageBox",
    u"Reply as is",
    u"SendAsIs",
    u"SendQuoteString",
    u"SendvCard",
    u"SettingButtonBar",
    u"Signature",
    u"Template",
    u"vCardSelected",
    u"vCardPathSelected",
    u"LastTipNumber",
    u"MainFormHeight",
    u"SystemCheck",
};

TEST(Descriptions, WritersStandWhereTheAddInSavesAValue) {
    std::set<Text> saved;
    for (const Description& description : descriptions())
        if (!description.writers.empty()) saved.insert(Text(description.key.name));
    EXPECT_EQ(saved, saved_by_the_add_in);
}

TEST(Descriptions, WhatTheAddInRemembersIsWrittenByIt) {
    for (const Description& description : descriptions()) {
        if (description.owner != Owner::state) continue;
        EXPECT_FALSE(description.writers.empty()) << to_utf8(description.key.name);
    }
}

TEST(Descriptions, EveryGroupAndOwnerHasSettingsAndAName) {
    std::set<TextView> groups, owners;
    for (const Description& description : descriptions()) {
        groups.insert(name_of(description.group));
        owners.insert(name_of(description.owner));
    }
    EXPECT_EQ(groups, (std::set<TextView>{u"lifecycle", u"sending", u"composing", u"clean-up",
                                          u"signature fields", u"signature rules", u"dialogs and preview",
                                          u"errors and logs", u"usage log", u"environment"}));
    EXPECT_EQ(owners, (std::set<TextView>{u"administrator", u"user", u"state"}));
}

TEST(Descriptions, GroupsFollowWhatASettingIsAbout) {
    EXPECT_EQ(about(admin::SysTray).group, Group::lifecycle);
    EXPECT_EQ(about(admin::SkipInternal).group, Group::sending);
    EXPECT_EQ(about(admin::HTMFilesPath).group, Group::composing);
    EXPECT_EQ(about(user::WipeoutDivTag).group, Group::clean_up);
    EXPECT_EQ(about(admin::SigFax).group, Group::signature_fields);
    EXPECT_EQ(about(templates::UserCode1).group, Group::signature_rules);
    EXPECT_EQ(about(user::BrowserTop).group, Group::dialogs);
    EXPECT_EQ(about(system::SystemCheck).group, Group::errors);
    EXPECT_EQ(about(admin::Marketing).group, Group::usage_log);
    EXPECT_EQ(about(admin::WipeoutSetSpellCheckOn).group, Group::environment);
}

} // namespace
} // namespace ornavel::settings
