#include "workbench/log_reader.h"

#include <gtest/gtest.h>

namespace ornavel::workbench {
namespace {

Text record(TextView label, int number) {
    return u"System Check: 11-20-2003 14:05:09, " + Text(label) + u", Check " + to_text(number) +
           u", Send Event\r\n";
}

Text trace(TextView text) { return u"System Check: 11-20-2003 14:05:09, " + Text(text) + u", , \r\n"; }

Text records(std::initializer_list<TextView> labels) {
    Text log;
    int number = 0;
    for (const TextView label : labels) log += record(label, ++number);
    return log;
}

std::vector<Text> left_of(const Text& log) {
    const auto sends = sends_in(log);
    std::vector<Text> gates;
    if (sends.size() != 1) return {u"several sends"};
    for (const WayOut& way : way_of(sends[0]).left) gates.push_back(way.gate);
    return gates;
}

using Gates = std::vector<Text>;

TEST(Logs, ASendThatLeavesIsNamedByTheGateThatWouldHaveRecordedNext) {
    const Text begin =
        records({u"Fired OK", u"Message Class - IPM.Note", u"HTML Body check OK", u"Subject OK"});
    EXPECT_EQ(left_of(record(u"Fired OK", 1)), (Gates{u"message class again"}));
    EXPECT_EQ(left_of(begin + trace(u"Just after MyMessItem is called- line 1002") +
                      record(u"Send Internal OK", 5)),
              (Gates{u"send as is"}));
    EXPECT_EQ(
        left_of(begin + trace(u"Just after MyMessItem is called- line 1002") + record(u"Reply check OK", 5)),
        (Gates{u"internal mail", u"internal mail"}));
}

TEST(Logs, WhereTheLogCannotTellBothWaysAreNamed) {
    const Text begin =
        records({u"Fired OK", u"Message Class - IPM.Note", u"HTML Body check OK", u"Subject OK"});
    EXPECT_EQ(left_of(begin), (Gates{u"personal stationery", u"internal mail", u"internal mail"}));
}

TEST(Logs, AnErrorEndsASendInEitherFormOfTheLine) {
    for (const TextView line : {u"Date: 11-20-2003 14:05:09, ol_ItemSend, subject, it broke",
                                u"Date: 11-20-2003 14:05:09, it broke - ol_ItemSend - subject"}) {
        const auto sends = sends_in(record(u"Fired OK", 1) + Text(line));
        ASSERT_EQ(sends.size(), 1U);
        const Way way = way_of(sends[0]);
        EXPECT_TRUE(way.left.empty());
        EXPECT_EQ(way.remark, u"an error at “subject” ended Ornavel's part: it broke");
    }
}

TEST(Logs, ASendInsideAnotherKeepsItsOwnRecords) {
    const auto sends = sends_in(record(u"Fired OK", 1) + record(u"Message Class - IPM.Note", 2) +
                                record(u"Fired OK", 1) + record(u"HTML Body check OK", 3));
    ASSERT_EQ(sends.size(), 2U);
    EXPECT_EQ(sends[0].records.size(), 3U);
    EXPECT_EQ(sends[1].records.size(), 1U);
}

TEST(Logs, AResendLeavesOrGoesOn) {
    const Text resend = trace(u"Resend from the Sent Items, Ol_ItemSend");
    EXPECT_EQ(left_of(resend), (Gates{u"resend from Sent Items"}));
    EXPECT_EQ(left_of(resend + record(u"Fired OK", 1)), (Gates{u"message class again"}));
}

TEST(Logs, LinesOfOthersArePassedOver) {
    EXPECT_TRUE(sends_in(u"").empty());
    EXPECT_TRUE(
        sends_in(u"System Check: \r\nDate: x\r\nSystem Check: 11-20-2003 14:05:09, Fired, , OnConnection")
            .empty());
}

} // namespace
} // namespace ornavel::workbench
