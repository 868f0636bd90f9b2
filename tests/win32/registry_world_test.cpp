#include "rehearsal/windows/registry_world.h"

#include "base/errors.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace ornavel::rehearsal {
namespace {

constexpr TextView rehearsed = u"HKEY_CLASSES_ROOT\\OrnavelRehearsed";
constexpr TextView component = u"HKEY_CLASSES_ROOT\\OrnavelRehearsed\\Installer\\79AE92CC";

Snapshot snapshot_of(const RegistryWorld& world) {
    Snapshot snapshot;
    world.add_to(snapshot);
    return snapshot;
}

TEST(RegistryWorld, HoldsKeysOfEveryRoot) {
    for (const TextView root : {u"HKEY_CLASSES_ROOT", u"HKEY_CURRENT_USER", u"HKEY_LOCAL_MACHINE"}) {
        RegistryWorld world;
        const Text key = Text(root) + u"\\Software\\OrnavelRehearsed";
        world.set(key, u"number", std::uint32_t{7});
        world.set(key, u"text", ExpandText{u"%TEMP%"});
        EXPECT_EQ(world.find(key, u"number"), RegistryValue(std::uint32_t{7}));
        EXPECT_EQ(snapshot_of(world).registry.at(key).at(u"text"), RegistryValue(ExpandText{u"%TEMP%"}));
    }
}

TEST(RegistryWorld, LeavesNothingOfARehearsalBehindInAnyRoot) {
    {
        RegistryWorld world;
        world.set(component, u"name", Text(u"value"));
        ASSERT_TRUE(world.find(component, u"name"));
    }
    HKEY left = nullptr;
    EXPECT_NE(RegOpenKeyW(HKEY_CLASSES_ROOT, L"OrnavelRehearsed", &left), ERROR_SUCCESS)
        << "nor what lies above";
}

TEST(RegistryWorld, PutsBackWhatARehearsalChangedOrRemoved) {
    RegistryWorld outer;
    outer.set(component, u"name", Text(u"before"));
    outer.set(rehearsed, u"name", Text(u"before"));
    {
        RegistryWorld world;
        world.set(rehearsed, u"name", Text(u"after"));
        world.set(rehearsed, u"other", Text(u"after"));
        ASSERT_TRUE(world.remove_key(component));
        EXPECT_FALSE(snapshot_of(world).registry.contains(component));
    }
    EXPECT_EQ(outer.find(component, u"name"), RegistryValue(Text(u"before")));
    EXPECT_EQ(outer.find(rehearsed, u"name"), RegistryValue(Text(u"before")));
    EXPECT_FALSE(outer.find(rehearsed, u"other"));
}

TEST(RegistryWorld, ShowsEachChangeOfAKeyThatWasReadOften) {
    const Text old = u"HKEY_CURRENT_USER\\Environment"; // as old as the user
    RegistryWorld world;
    snapshot_of(world);
    for (const TextView value : {u"a", u"b", u"c"}) {
        const Text text(value);
        world.set(old, u"OrnavelRehearsed", text);
        EXPECT_EQ(snapshot_of(world).registry.at(old).at(u"OrnavelRehearsed"), RegistryValue(text));
    }
    const Text below = old + u"\\OrnavelRehearsed";
    world.set(below, u"", Text(u"new"));
    EXPECT_TRUE(snapshot_of(world).registry.contains(below));
    EXPECT_TRUE(world.remove_key(below));
    EXPECT_FALSE(snapshot_of(world).registry.contains(below));
    world.put_back();
    EXPECT_FALSE(snapshot_of(world).registry.at(old).contains(u"OrnavelRehearsed"));
}

TEST(RegistryWorld, AKeyWithoutARootIsNone) {
    RegistryWorld world;
    EXPECT_THROW(world.set(u"Software\\Ornavel", u"name", Text(u"value")), Unusable);
}

} // namespace
} // namespace ornavel::rehearsal
