#include "connect/reasons.h"

#include "tests/as_written.h"

namespace ornavel::connect {
namespace {

TEST(Reasons, StandInTheGatesOrderInWordsForPeople) {
    std::string lines;
    for (const Reason& reason : reasons())
        lines +=
            to_utf8(reason.gate) + " | " + to_utf8(reason.words) + " | " + to_utf8(reason.without) + "\n";
    expect_as_written(lines, "connect/reasons.txt");
}

TEST(Reasons, HaveAPlaceForAValueWhereTheyShowOne) {
    for (const Reason& reason : reasons())
        EXPECT_EQ(reason.words.find(u"{}") != TextView::npos, reason.shows != Reason::Shows::nothing)
            << to_utf8(reason.words);
}

TEST(Reasons, ThatShowNoValueReadAlikeWithoutOne) {
    for (const Reason& reason : reasons()) {
        if (reason.shows != Reason::Shows::nothing) continue;
        EXPECT_TRUE(reason.without.starts_with(reason.words)) << to_utf8(reason.words);
    }
}

} // namespace
} // namespace ornavel::connect
