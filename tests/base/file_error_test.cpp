#include "base/file_error.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

TEST(PlacesOfAText, CountLinesOfEveryKindAndColumnsFromOne) {
    Places places(u"ab\r\nc\rd\ne");
    EXPECT_EQ(places.of(0), (Place{1, 1}));
    EXPECT_EQ(places.of(1), (Place{1, 2}));
    EXPECT_EQ(places.of(3), (Place{1, 4}));
    EXPECT_EQ(places.of(4), (Place{2, 1}));
    EXPECT_EQ(places.of(6), (Place{3, 1}));
    EXPECT_EQ(places.of(8), (Place{4, 1}));
    EXPECT_EQ(places.of(99), (Place{4, 2}));
    EXPECT_EQ(places.of(1), (Place{1, 2}));
    EXPECT_EQ(Places(u"ab\r").of(3), (Place{2, 1}));
    EXPECT_EQ(Places(u"\r\nab").of(2), (Place{2, 1}));
}

} // namespace
} // namespace ornavel
