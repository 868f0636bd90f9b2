#include "base/errors.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace ornavel {
namespace {

class Recorder final : public ErrorSink {
public:
    void take(TextView description, TrapName trap) noexcept override {
        line = Text(trap.sub_function) + u"/" + Text(trap.section) + u"/" + Text(description);
    }
    Text line;
};

TEST(Trap, HandsWhatItCatchesToTheSinkWithItsPlace) {
    Recorder errors;
    EXPECT_FALSE(trap(errors, {u"routine", u"step"}, [] { throw Failure(u"disk full"); }));
    EXPECT_EQ(errors.line, u"routine/step/disk full");
}

TEST(Trap, NamesForeignExceptionsAsWellAsItCan) {
    Recorder errors;
    trap(errors, {u"r", u"s"}, [] { throw std::runtime_error("caf\xC3\xA9"); });
    EXPECT_EQ(errors.line, u"r/s/caf\u00E9");
    trap(errors, {u"r", u"s"}, [] { throw 7; });
    EXPECT_EQ(errors.line, u"r/s/Unknown error");
    trap(errors, {u"r", u"s"}, [] { throw std::bad_alloc(); });
    EXPECT_EQ(errors.line, u"r/s/Out of memory");
}

TEST(Trap, SaysNothingWhenTheBodyGetsThrough) {
    Recorder errors;
    EXPECT_TRUE(trap(errors, {u"r", u"s"}, [] {}));
    EXPECT_TRUE(errors.line.empty());
}

TEST(Attempt, LetsNothingOut) {
    EXPECT_TRUE(attempt([] {}));
    EXPECT_FALSE(attempt([] { throw Failure(u"x"); }));
    EXPECT_FALSE(attempt([] { throw 7; }));
}

} // namespace
} // namespace ornavel
