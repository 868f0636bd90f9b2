#include "programs/mass_mailer/people.h"

#include "programs/mass_mailer/addresses.h"

#include <gtest/gtest.h>

namespace ornavel::mass_mailer {
namespace {

Table table_of(std::string_view bytes) { return read_table(bytes, windows_1252()); }

std::vector<Text> addresses(const People& people) {
    std::vector<Text> found;
    for (const Person& person : people.people) found.push_back(person.address);
    return found;
}

std::vector<Text> rejections(const People& people) {
    std::vector<Text> found;
    for (const Rejected& row : people.rejected)
        found.push_back(to_text(static_cast<long long>(row.line)) + u": " + row.address + u": " + row.reason);
    return found;
}

using Texts = std::vector<Text>;

TEST(Addresses, QuotesUmlautsAndSignsAreParts) {
    for (const TextView address :
         {u"ann@example.com", u"o'brien@example.com", u"a+b=c@ex-ample.co.uk", u"\"john doe\"@example.com",
          u"jörg@müller.de", u"\"a@b\"@example.com", u"x@localhost", u"a@a-az.AZ", u"a@0x9"})
        EXPECT_EQ(why_no_address(address), u"") << to_utf8(address);
}

TEST(Addresses, WhatTheMailClientWouldTakeForAnotherIsNone) {
    for (const TextView address :
         {u"", u"ann", u"@example.com", u"ann@", u"a b@example.com", u"ann@exa mple.com", u"a@b@example.com",
          u"ann@example.com;bob@example.com", u"ann@example.com,bob@example.com", u"ann@.example.com",
          u"ann@example..com", u".ann@example.com", u"ann@example.com\r\nBcc", u"<ann@example.com",
          u"/o=House/cn=ann", u"ann@-example.com", u"\"\"@example.com", u"ann@exam_ple.com"})
        EXPECT_NE(why_no_address(address), u"") << to_utf8(address);
    EXPECT_NE(why_no_address(Text(300, u'a') + u"@example.com"), u"");
}

TEST(Addresses, WhyOneIsNoneIsSaidInASentence) {
    EXPECT_EQ(why_no_address(u""), u"There is no address");
    EXPECT_EQ(why_no_address(Text(250, u'a') + u"@b.c"), u"");
    EXPECT_EQ(why_no_address(Text(251, u'a') + u"@b.c"), u"No address is as long as this");
    EXPECT_EQ(why_no_address(u"a\x7f@b.c"), u"An address has no such character");
    EXPECT_EQ(why_no_address(u"a@b.c,d@e.f"), u"There is more than one address");
    EXPECT_EQ(why_no_address(u"ann"), u"An address has an \"@\"");
    EXPECT_EQ(why_no_address(u"ann@"), u"This is no address");
}

TEST(Addresses, ANameMayStandInFront) {
    EXPECT_EQ(address_in(u" Ann Lee <ann@example.com> "), u"ann@example.com");
    EXPECT_EQ(address_in(u"\"Lee, Ann\" < ann@example.com >"), u"ann@example.com");
    EXPECT_EQ(address_in(u"ann@example.com"), u"ann@example.com");
}

TEST(Addresses, AreComparedWithoutCaseAndBlanks) {
    EXPECT_EQ(address_key(u"Ann@Example.COM"), address_key(u" ann@example.com"));
    EXPECT_EQ(address_key(u"JÖRG@EXAMPLE.COM"), address_key(u"jörg@example.com"));
    EXPECT_NE(address_key(u"ann@example.com"), address_key(u"anne@example.com"));
    EXPECT_EQ(address_key(u"AZ\u00C0\u00DE"), u"az\u00E0\u00FE");
    EXPECT_EQ(address_key(u"@[\u00BF\u00D7\u00DF"), u"@[\u00BF\u00D7\u00DF") << "these are no capitals";
}

TEST(MailingLists, TheFirstLineNamesTheColumnsAndOneWithMailInItIsTheAddress) {
    const Table table = table_of("Name;E-Mail\nAnn;ann@example.com\nBob;bob@example.com\n");
    EXPECT_EQ(table.columns, (Texts{u"Name", u"E-Mail"}));
    EXPECT_EQ(likely_address_column(table), 1u);
    EXPECT_EQ(addresses(people_of(table, 1)), (Texts{u"ann@example.com", u"bob@example.com"}));
}

TEST(MailingLists, OfTwoColumnsWithMailTheOneThatHoldsAddressesIsProposed) {
    EXPECT_EQ(likely_address_column(table_of("Mailing street,E-mail\nHigh St 1,ann@example.com\n")), 1u);
    EXPECT_EQ(likely_address_column(table_of("Name,Write to\nAnn,ann@example.com\n")), 1u);
    EXPECT_EQ(likely_address_column(table_of("Name,Town\nAnn,Paris\n")), 0u);
    EXPECT_EQ(likely_address_column(table_of("Name,Mail\n")), 1u);
}

TEST(MailingLists, WhatCantBeSentToIsListedWithItsLineAndTheReason) {
    const People people = people_of(
        table_of("Mail,Name\nann@example.com,\"two\r\nlines\"\nnobody,Bob\n,Carol\nANN @example.com,Ann\n"
                 " Ann@Example.com,Ann\na@example.com,A,B\n"),
        0);
    EXPECT_EQ(addresses(people), Texts{u"ann@example.com"});
    EXPECT_EQ(rejections(people),
              (Texts{u"4: nobody: An address has an \"@\"", u"5: : There is no address",
                     u"6: ANN @example.com: This is no address",
                     u"7: Ann@Example.com: The same address as in line 2",
                     u"8: a@example.com: The line has more cells than the first one has names"}));
}

TEST(MailingLists, AnAddressInPlaceOfTheNamesIsNotForgotten) {
    EXPECT_THROW(table_of("ann@example.com\nbob@example.com\n"), FileError);
    EXPECT_THROW(table_of("Ann,ann@example.com\n"), FileError);
}

TEST(MailingLists, AListWithoutAnythingOrWithAnOpenQuoteIsNotReadInPart) {
    EXPECT_THROW(table_of(""), FileError);
    EXPECT_THROW(table_of("\r\n\r\n"), FileError);
    try {
        table_of("Mail\nann@example.com\n\"bob@example.com\ncarol@example.com\n");
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.at().line, 3u);
    }
}

TEST(MailingLists, ANulInALineRejectsThatLineAlone) {
    using namespace std::string_view_literals;
    const People people = people_of(table_of("Mail,Name\na@example.com,x\0y\nb@example.com,B\n"sv), 0);
    EXPECT_EQ(addresses(people), Texts{u"b@example.com"});
    EXPECT_EQ(people.rejected.size(), 1u);
}

TEST(MailingLists, FormulasAreTexts) {
    const Table table = table_of("Mail,Name\n=cmd@example.com,=1+1\n");
    EXPECT_EQ(addresses(people_of(table, 0)), Texts{u"=cmd@example.com"});
    EXPECT_EQ(table.rows[0].cells[1], u"=1+1");
}

TEST(MailingLists, AnyColumnMayBeTheAddress) {
    const Table table = table_of("Mail,Private\na@example.com,b@example.org\n");
    EXPECT_EQ(addresses(people_of(table, 1)), Texts{u"b@example.org"});
    EXPECT_TRUE(people_of(table, 7).people.empty());
    EXPECT_EQ(people_of(table, 7).rejected.size(), 1u);
}

TEST(PastedLists, AddressesStandOneOrSeveralALine) {
    const Table table = read_pasted(u"\r\nann@example.com; \"Lee; Bob\" <bob@example.com>\r\n"
                                    u"carol@example.com, dave@example.com,\tnobody\r\n");
    const People people = people_of(table, likely_address_column(table));
    EXPECT_EQ(addresses(people),
              (Texts{u"ann@example.com", u"bob@example.com", u"carol@example.com", u"dave@example.com"}));
    EXPECT_EQ(rejections(people), Texts{u"3: nobody: An address has an \"@\""});
}

TEST(PastedLists, ASeparatorInQuotesOrBracketsSeparatesNothing) {
    const Table table = read_pasted(u"Ann <ann,lee@b.c>; \"Lee, <Bob\" <bob@b.c>, cy@b.c");
    ASSERT_EQ(table.rows.size(), 3u);
    EXPECT_EQ(trim(table.rows[0].cells[0]), u"Ann <ann,lee@b.c>");
    EXPECT_EQ(trim(table.rows[1].cells[0]), u"\"Lee, <Bob\" <bob@b.c>");
    EXPECT_EQ(trim(table.rows[2].cells[0]), u"cy@b.c");
}

TEST(PastedLists, ASignOfAnAddressInTheFirstLineTellsThatThereAreNoNames) {
    EXPECT_EQ(read_pasted(u"ann@b.c").rows.size(), 1u);
    EXPECT_EQ(read_pasted(u"Fax;E-mail\r\n1;ann@b.c").columns, (Texts{u"Fax", u"E-mail"}));
}

TEST(PastedLists, ATableIsPastedWithItsNames) {
    const Table table = read_pasted(u"Name\tE-mail\r\nJörg\tjoerg@example.com\r\n");
    EXPECT_EQ(table.columns, (Texts{u"Name", u"E-mail"}));
    EXPECT_EQ(table.rows[0].cells[0], u"Jörg");
}

TEST(MailingLists, AHundredThousandLinesAndACellOfAMillionCharactersAreRead) {
    std::string bytes = "Mail,Text\nfirst@example.com," + std::string(1'000'000, 'x') + "\n";
    for (int i = 0; i < 100'000; ++i) bytes += "p" + std::to_string(i) + "@example.com,y\n";
    bytes += "last@example.com"; // without a line end
    const Table table = table_of(bytes);
    EXPECT_EQ(people_of(table, 0).people.size(), 100'002u);
    EXPECT_EQ(table.rows[0].cells[1].size(), 1'000'000u);
}

TEST(MailingLists, ALongWordInPlaceOfAnAddressIsRejected) {
    const People people = people_of(table_of("Mail\n" + std::string(1'000'000, 'x') + "@example.com\n"), 0);
    EXPECT_TRUE(people.people.empty());
}

} // namespace
} // namespace ornavel::mass_mailer
