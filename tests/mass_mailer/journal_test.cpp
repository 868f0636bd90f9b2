#include "programs/mass_mailer/journal.h"

#include "tests/fakes/memory_files.h"

#include <gtest/gtest.h>

namespace ornavel::mass_mailer {
namespace {

constexpr LocalTime noon{2003, 11, 20, 12, 0, 0};
const JournalStems stems{u"C:\\lists\\spring.sent", u"C:\\users\\jo\\spring.sent"};
constexpr TextView hash = u"0123456789ABCDEF";
constexpr TextView beside = u"C:\\lists\\spring.sent.csv";

class Journals : public ::testing::Test {
protected:
    Journal journal() { return {files, stems, Text(hash)}; }
    Journal begun() {
        Journal one = journal();
        one.begin();
        return one;
    }
    std::string& bytes() { return files.contents[Text(beside)]; }
    MemoryFiles files;
};

using State = Journal::State;

TEST_F(Journals, AreWrittenBesideTheListLineByLine) {
    Journal one = begun();
    one.note_sending(u"Ann@example.com");
    one.note_sent(u"Ann@example.com", noon);
    one.note_sending(u"jörg@example.com");
    one.note_refused(u"jörg@example.com", noon);
    EXPECT_EQ(bytes(), "list 0123456789ABCDEF\r\nsending Ann@example.com\r\n"
                       "sent Ann@example.com 11-20-2003 12:00:00\r\nsending j\xC3\xB6rg@example.com\r\n"
                       "refused j\xC3\xB6rg@example.com 11-20-2003 12:00:00\r\n");
}

TEST_F(Journals, TellWhatCameOfEachPerson) {
    Journal first = begun();
    for (const TextView address : {u"sent@x", u"unknown@x", u"refused@x", u"\"a b\"@x"})
        first.note_sending(address);
    first.note_sent(u"sent@x", noon);
    first.note_sent(u"\"a b\"@x", noon);
    first.note_refused(u"refused@x", noon);
    const Journal second = journal();
    EXPECT_TRUE(second.is_begun());
    EXPECT_EQ(second.state_of(u"SENT@x"), State::sent);
    EXPECT_EQ(second.state_of(u"\"a b\"@x"), State::sent);
    EXPECT_EQ(second.state_of(u"unknown@x"), State::unknown);
    EXPECT_EQ(second.state_of(u"refused@x"), State::open);
    EXPECT_EQ(second.state_of(u"nobody@x"), State::open);
}

TEST_F(Journals, ARefusalDoesNotAnswerForAnEarlierMessageThatNobodyKnowsOf) {
    Journal one = begun();
    one.note_sending(u"a@x");
    one.note_sending(u"a@x");
    one.note_refused(u"a@x", noon);
    EXPECT_EQ(journal().state_of(u"a@x"), State::unknown);
}

TEST_F(Journals, NothingIsWrittenBeforeTheRunBegins) {
    EXPECT_FALSE(journal().is_begun());
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(Journals, ALineThatWasCutOffCountsForNothingWhereverItEnds) {
    begun().note_sending(u"ann@example.com");
    const std::string whole = bytes();
    const std::size_t header = whole.find('\n') + 1;
    for (std::size_t size = header; size < whole.size(); ++size) {
        bytes() = whole.substr(0, size);
        Journal next = journal();
        EXPECT_TRUE(next.is_begun());
        EXPECT_EQ(next.state_of(u"ann@example.com"), State::open) << size;
        next.note_sending(u"bob@example.com");
        const Journal last = journal();
        EXPECT_EQ(last.state_of(u"bob@example.com"), State::unknown) << size;
        for (const TextView prefix : {u"a", u"ann@e", u"ann@example.co", u"ann@example.com"})
            EXPECT_EQ(last.state_of(prefix), State::open) << size;
    }
}

TEST_F(Journals, AHeaderThatWasCutOffIsNoJournal) {
    for (const char* piece : {"", "l", "list 01234", "list 0123456789ABCDEF", "list 0123456789ABCDEF\r"}) {
        files.contents = {{Text(beside), piece}};
        Journal one = begun();
        one.note_sending(u"a@x");
        EXPECT_EQ(journal().state_of(u"a@x"), State::unknown) << piece;
        EXPECT_TRUE(one.others().empty()) << piece;
    }
}

TEST_F(Journals, AnotherListOrMessageHasAnotherJournalAndSaysSo) {
    Journal spring = begun();
    spring.note_sending(u"ann@x");
    spring.note_sent(u"ann@x", noon);
    Journal changed(files, stems, u"FEDCBA9876543210");
    EXPECT_FALSE(changed.is_begun());
    EXPECT_EQ(changed.state_of(u"ann@x"), State::open);
    EXPECT_EQ(changed.others(), std::vector<Text>{Text(beside)});
    EXPECT_TRUE(changed.is_sent_by_others(u"Ann@x"));
    EXPECT_FALSE(changed.is_sent_by_others(u"bob@x"));
    changed.begin();
    EXPECT_EQ(changed.path(), u"C:\\lists\\spring.sent.2.csv");
    EXPECT_EQ(journal().state_of(u"ann@x"), State::sent);
}

TEST_F(Journals, AreFoundAlsoWhereAnEarlierOneWasRemoved) {
    begun();
    Journal changed(files, stems, u"FEDCBA9876543210");
    changed.begin();
    changed.note_sending(u"ann@x");
    files.contents.erase(Text(beside));
    EXPECT_EQ(Journal(files, stems, u"FEDCBA9876543210").state_of(u"ann@x"), State::unknown);
}

TEST_F(Journals, SomebodyElsesFileIsLeftAlone) {
    bytes() = "Name;Mail\r\n";
    Journal one = begun();
    EXPECT_EQ(one.path(), u"C:\\lists\\spring.sent.2.csv");
    EXPECT_EQ(bytes(), "Name;Mail\r\n");
    EXPECT_TRUE(one.others().empty());
}

TEST_F(Journals, StandAmongTheUsersDataWhereTheListsFolderCantBeWritten) {
    files.refused = {Text(beside)};
    Journal one = begun();
    EXPECT_EQ(one.path(), u"C:\\users\\jo\\spring.sent.csv");
    one.note_sending(u"a@x");
    EXPECT_EQ(journal().state_of(u"a@x"), State::unknown);
}

TEST_F(Journals, WhereNoneCanBeWrittenNothingBegins) {
    files.refused = {Text(beside), u"C:\\users\\jo\\spring.sent.csv"};
    EXPECT_THROW(begun(), Failure);
    EXPECT_THROW(Journal(files, {}, Text(hash)).begin(), Failure);
}

TEST_F(Journals, OneThatCantBeReadIsNotTakenForNone) {
    begun();
    files.refused = {Text(beside)};
    EXPECT_THROW(journal(), Failure);
}

TEST_F(Journals, WhatCameOfAMessageIsWrittenLaterWhereTheDiskWasFull) {
    Journal one = begun();
    one.note_sending(u"a@x");
    files.refused = {Text(beside)};
    EXPECT_THROW(one.note_sent(u"a@x", noon), Failure);
    files.refused.clear();
    EXPECT_EQ(journal().state_of(u"a@x"), State::unknown);
    one.begin();
    EXPECT_EQ(journal().state_of(u"a@x"), State::sent);
    EXPECT_EQ(bytes(), "list 0123456789ABCDEF\r\nsending a@x\r\n ...\r\nsent a@x 11-20-2003 12:00:00\r\n")
        << "a part of the line that failed may stand there";
}

TEST_F(Journals, OfAPastedListStandAmongTheUsersData) {
    EXPECT_EQ(journal_stems({}, u"C:\\users\\jo"), JournalStems{u"C:\\users\\jo\\pasted.sent"});
    EXPECT_EQ(journal_stems(u"C:\\lists\\spring.csv", u"C:\\users\\jo"), stems);
    EXPECT_EQ(journal_stems(u"C:\\a.b\\list", {}), JournalStems{u"C:\\a.b\\list.sent"});
}

TEST(JournalHashes, AnyChangeOfSubjectPageListOrColumnIsAnotherOne) {
    const Text one = hash_of(u"a", u"b", u"c", 0);
    EXPECT_EQ(one.size(), 16u);
    EXPECT_EQ(hash_of(u"a", u"b", u"c", 0), one);
    for (const Text& other :
         {hash_of(u"A", u"b", u"c", 0), hash_of(u"ab", u"", u"c", 0), hash_of(u"a", u"bc", u"", 0),
          hash_of(u"a", u"b", u"c", 1), hash_of(u"a", u"b", u"\u0163", 0)})
        EXPECT_NE(other, one);
}

} // namespace
} // namespace ornavel::mass_mailer
