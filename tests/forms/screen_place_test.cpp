#include "forms/screen_place.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace ornavel::forms {
namespace {

constexpr Place first{0, 0, 19200, 14400};
constexpr Place left{-15360, 0, 15360, 11520};

Place back(const Place& window, std::vector<Place> screens = {first, left}) {
    return reachable(window, screens);
}

TEST(ScreenPlace, APlaceOnAScreenStaysAsItIs) {
    for (const Place& place : {Place{0, 0, 10170, 6000}, Place{2595, 990, 10170, 6000}, first})
        EXPECT_EQ(back(place), place);
}

TEST(ScreenPlace, NegativeCoordinatesAreAPlaceOnTheScreenAtTheLeft) {
    const Place place{-12000, 300, 10170, 6000};
    EXPECT_EQ(back(place), place);
    EXPECT_EQ(back(place, {first}), (Place{0, 300, 10170, 6000}));
}

TEST(ScreenPlace, AWindowAcrossTwoScreensStays) {
    const Place place{-5000, 1000, 10170, 6000};
    EXPECT_EQ(back(place), place);
}

TEST(ScreenPlace, AWindowOutsideEveryScreenComesBackToTheNearest) {
    EXPECT_EQ(back({30000, 20000, 10170, 6000}), (Place{19200 - 10170, 14400 - 6000, 10170, 6000}));
    EXPECT_EQ(back({-40000, -9000, 10170, 6000}), (Place{-15360, 0, 10170, 6000}));
}

TEST(ScreenPlace, AWindowThatIsPartlyOutsideIsBroughtInWhole) {
    EXPECT_EQ(back({15000, 1000, 10170, 6000}), (Place{19200 - 10170, 1000, 10170, 6000}));
    EXPECT_EQ(back({1000, -300, 10170, 6000}), (Place{1000, 0, 10170, 6000}));
    EXPECT_EQ(back({-14000, 9000, 10170, 6000}), (Place{-14000, 11520 - 6000, 10170, 6000}));
}

TEST(ScreenPlace, AWindowThatIsLargerThanItsScreenIsMadeToFit) {
    EXPECT_EQ(back({1000, 1000, 30000, 20000}, {first}), first);
}

TEST(ScreenPlace, TheScreenThatShowsMostOfItIsTheNearest) {
    EXPECT_EQ(back({-9000, 10000, 10170, 6000}), (Place{-10170, 5520, 10170, 6000}));
}

TEST(ScreenPlace, AnyStoredNumberIsAPlace) {
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    EXPECT_EQ(back({most, most, most, most}, {first}), first);
    EXPECT_EQ(back({least, least, 1500, 1500}, {first}), (Place{0, 0, 1500, 1500}));
    EXPECT_EQ(back({least, least, 0, 0}, {first}), (Place{0, 0, 0, 0}));
}

TEST(ScreenPlace, WithoutAScreenThePlaceStays) {
    EXPECT_EQ(back({-500, 0, 10, 10}, {}), (Place{-500, 0, 10, 10}));
}

} // namespace
} // namespace ornavel::forms
