#include "forms/screen_place.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace ornavel::forms {
namespace {

constexpr Bounds first{0, 0, 19200, 14400};
constexpr Bounds left{-15360, 0, 15360, 11520};

Bounds back(const Bounds& window, std::vector<Bounds> screens = {first, left}) {
    return reachable(window, screens);
}

TEST(ScreenPlace, APlaceOnAScreenStaysAsItIs) {
    for (const Bounds& place : {Bounds{0, 0, 10170, 6000}, Bounds{2595, 990, 10170, 6000}, first})
        EXPECT_EQ(back(place), place);
}

TEST(ScreenPlace, NegativeCoordinatesAreAPlaceOnTheScreenAtTheLeft) {
    const Bounds place{-12000, 300, 10170, 6000};
    EXPECT_EQ(back(place), place);
    EXPECT_EQ(back(place, {first}), (Bounds{0, 300, 10170, 6000}));
}

TEST(ScreenPlace, AWindowAcrossTwoScreensStays) {
    const Bounds place{-5000, 1000, 10170, 6000};
    EXPECT_EQ(back(place), place);
}

TEST(ScreenPlace, AWindowOutsideEveryScreenComesBackToTheNearest) {
    EXPECT_EQ(back({30000, 20000, 10170, 6000}), (Bounds{19200 - 10170, 14400 - 6000, 10170, 6000}));
    EXPECT_EQ(back({-40000, -9000, 10170, 6000}), (Bounds{-15360, 0, 10170, 6000}));
}

TEST(ScreenPlace, AWindowThatIsPartlyOutsideIsBroughtInWhole) {
    EXPECT_EQ(back({15000, 1000, 10170, 6000}), (Bounds{19200 - 10170, 1000, 10170, 6000}));
    EXPECT_EQ(back({1000, -300, 10170, 6000}), (Bounds{1000, 0, 10170, 6000}));
    EXPECT_EQ(back({-14000, 9000, 10170, 6000}), (Bounds{-14000, 11520 - 6000, 10170, 6000}));
}

TEST(ScreenPlace, OneTwipOutsideIsOutside) {
    EXPECT_EQ(back({9031, 0, 10170, 6000}, {first}), (Bounds{9030, 0, 10170, 6000}));
    EXPECT_EQ(back({0, 8401, 10170, 6000}, {first}), (Bounds{0, 8400, 10170, 6000}));
    EXPECT_EQ(back({-1, -1, 10170, 6000}, {first}), (Bounds{0, 0, 10170, 6000}));
}

TEST(ScreenPlace, TheNearestOfTwoScreensIsTheOneWithTheShortestWay) {
    EXPECT_EQ(back({-1000, -7000, 10170, 6000}), (Bounds{0, 0, 10170, 6000}));
    EXPECT_EQ(back({1500, 1500, 100, 100}, {{0, 0, 1000, 1000}, {2200, 1000, 1000, 1000}}),
              (Bounds{2200, 1500, 100, 100}));
}

TEST(ScreenPlace, OnlyTheWayInADirectionInWhichTheyAreApartCounts) {
    EXPECT_EQ(back({0, 0, 10, 10}, {{13, -1003, 1000, 1000}, {0, 15, 1000, 1000}}), (Bounds{0, 15, 10, 10}));
    EXPECT_EQ(back({0, 0, 10, 10}, {{-1003, 13, 1000, 1000}, {15, 0, 1000, 1000}}), (Bounds{15, 0, 10, 10}));
}

TEST(ScreenPlace, AWindowComesBackToTheScreenThatShowsMostOfIt) {
    EXPECT_EQ(back({0, 0, 100, 100}, {{0, 90, 1000, 1000}, {50, -950, 1000, 1000}}),
              (Bounds{50, -50, 100, 100}));
}

TEST(ScreenPlace, AFormIsCentredOnTheMainScreenOrBroughtBackFromWhereItWasLeft) {
    const std::vector<Bounds> screens{first, left};
    Form form({.name = u"frmOrder", .place = {30000, 100, 3000, 2000}}, {});
    place_on_screen(form, left, screens);
    EXPECT_EQ(form.properties.place, (Bounds{-15360 + 6180, 4755, 3000, 2000}));
    int resized = 0;
    form.on_resize = [&] { ++resized; };
    form.centred = false;
    place_on_screen(form, first, screens);
    EXPECT_EQ(resized, 0);
    form.properties.place.left = 30000;
    place_on_screen(form, first, screens);
    EXPECT_EQ(form.properties.place, (Bounds{16200, 4755, 3000, 2000}));
    EXPECT_EQ(resized, 1);
}

TEST(ScreenPlace, AWindowThatIsLargerThanItsScreenIsMadeToFit) {
    EXPECT_EQ(back({1000, 1000, 30000, 20000}, {first}), first);
}

TEST(ScreenPlace, TheScreenThatShowsMostOfItIsTheNearest) {
    EXPECT_EQ(back({-9000, 10000, 10170, 6000}), (Bounds{-10170, 5520, 10170, 6000}));
}

TEST(ScreenPlace, AnyStoredNumberIsAPlace) {
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    EXPECT_EQ(back({most, most, most, most}, {first}), first);
    EXPECT_EQ(back({least, least, 1500, 1500}, {first}), (Bounds{0, 0, 1500, 1500}));
    EXPECT_EQ(back({least, least, 0, 0}, {first}), (Bounds{0, 0, 0, 0}));
}

TEST(ScreenPlace, WithoutAScreenThePlaceStays) {
    EXPECT_EQ(back({-500, 0, 10, 10}, {}), (Bounds{-500, 0, 10, 10}));
}

} // namespace
} // namespace ornavel::forms
