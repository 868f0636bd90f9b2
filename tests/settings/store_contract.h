#pragma once

#include "settings/store.h"

#include <gtest/gtest.h>

namespace ornavel::settings {

/// What every store of settings keeps to. A maker has a member `store()`, empty at first in the section
/// "Contract" and what lies below it.
template <class Maker>
class StoreContract : public testing::Test {
protected:
    Store& store() { return maker_.store(); }
    std::optional<Text> stored(TextView key) { return store().find(u"Contract", key); }
    void save(TextView key, TextView value) { store().save(u"Contract", key, value); }

private:
    Maker maker_;
};

TYPED_TEST_SUITE_P(StoreContract);

TYPED_TEST_P(StoreContract, AKeyThatWasNeverSavedIsAbsent) {
    EXPECT_EQ(this->stored(u"Template"), std::nullopt);
    this->save(u"Signature", u"x");
    EXPECT_EQ(this->stored(u"Template"), std::nullopt);
}

TYPED_TEST_P(StoreContract, AnEmptyValueIsPresent) {
    this->save(u"Template", u"");
    EXPECT_EQ(this->stored(u"Template"), u"");
}

TYPED_TEST_P(StoreContract, TheLastValueSavedIsTheOneRead) {
    this->save(u"Template", u"a long first value");
    this->save(u"Template", u"short");
    EXPECT_EQ(this->stored(u"Template"), u"short");
}

TYPED_TEST_P(StoreContract, NamesOfKeysCompareWithoutCase) {
    this->save(u"template", u"first");
    EXPECT_EQ(this->stored(u"Template"), u"first");
    this->save(u"TEMPLATE", u"second");
    EXPECT_EQ(this->stored(u"template"), u"second");
}

TYPED_TEST_P(StoreContract, NamesOfSectionsCompareWithoutCase) {
    this->store().save(u"CONTRACT", u"Template", u"x");
    EXPECT_EQ(this->stored(u"Template"), u"x");
}

TYPED_TEST_P(StoreContract, SectionsKeepTheirKeysApart) {
    this->store().save(u"Contract\\Other", u"Template", u"other");
    EXPECT_EQ(this->stored(u"Template"), std::nullopt);
    EXPECT_EQ(this->store().find(u"Contract\\Other", u"Template"), u"other");
}

TYPED_TEST_P(StoreContract, EveryUnitOfAValueSurvives) {
    const Text value = u" Grüße, 10 €, 日本, \xD83D\xDE00, \xD800 alone,\r\n\ttab \\ %PATH% ";
    this->save(u"Signature", value);
    EXPECT_EQ(this->stored(u"Signature"), value);
}

TYPED_TEST_P(StoreContract, AKeyMayHaveLettersBeyondASCII) {
    this->save(u"Größe", u"12");
    EXPECT_EQ(this->stored(u"Größe"), u"12");
}

TYPED_TEST_P(StoreContract, LongValuesAreWhole) {
    for (const std::size_t length : {127U, 128U, 255U, 256U, 257U, 4096U, 100'000U}) {
        const Text value(length, u'ä');
        this->save(u"SigDisclaimer", value);
        EXPECT_EQ(this->stored(u"SigDisclaimer"), value) << length;
    }
}

TYPED_TEST_P(StoreContract, ARemovedValueIsAbsentAndTheOthersStay) {
    this->save(u"Template", u"x");
    this->save(u"Signature", u"y");
    EXPECT_TRUE(this->store().remove(u"CONTRACT", u"template"));
    EXPECT_EQ(this->stored(u"Template"), std::nullopt);
    EXPECT_EQ(this->stored(u"Signature"), u"y");
}

TYPED_TEST_P(StoreContract, WhatIsAbsentIsRemovedAlready) {
    EXPECT_TRUE(this->store().remove(u"Contract", u"Template"));
    this->save(u"Signature", u"y");
    EXPECT_TRUE(this->store().remove(u"Contract", u"Template"));
}

REGISTER_TYPED_TEST_SUITE_P(StoreContract, AKeyThatWasNeverSavedIsAbsent, AnEmptyValueIsPresent,
                            TheLastValueSavedIsTheOneRead, NamesOfKeysCompareWithoutCase,
                            NamesOfSectionsCompareWithoutCase, SectionsKeepTheirKeysApart,
                            EveryUnitOfAValueSurvives, AKeyMayHaveLettersBeyondASCII, LongValuesAreWhole,
                            ARemovedValueIsAbsentAndTheOthersStay, WhatIsAbsentIsRemovedAlready);

} // namespace ornavel::settings
