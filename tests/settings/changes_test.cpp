#include "settings/changes.h"
#include "tests/fakes/stubborn_store.h"

#include <gtest/gtest.h>

namespace ornavel::settings {
namespace {

struct Changes : testing::Test {
    StubbornStore store;
    const std::vector<Change> changes{{admin::SigFullname, u"Jo"},
                                      {admin::SigFax, std::nullopt},
                                      {admin::SigEmail, u"jo@example.com"},
                                      {user::Template, u"letter.htm"}};

    Changes() {
        save(store, admin::SigFax, u"12");
        save(store, admin::SigEmail, u"old@example.com");
    }
};

TEST_F(Changes, AllOfThemAreWritten) {
    EXPECT_FALSE(write_changes(store, changes));
    EXPECT_EQ(read(store, admin::SigFullname), u"Jo");
    EXPECT_EQ(read(store, admin::SigEmail), u"jo@example.com");
    EXPECT_EQ(read(store, user::Template), u"letter.htm");
    EXPECT_EQ(store.find(admin::SigFax.section, admin::SigFax.name), std::nullopt);
}

TEST_F(Changes, OneThatCantBeWrittenTakesBackThoseBeforeIt) {
    store.refused = u"Template";
    const auto unwritten = write_changes(store, changes);
    ASSERT_TRUE(unwritten);
    EXPECT_EQ(unwritten->refused->name, u"Template");
    EXPECT_TRUE(unwritten->changed.empty());
    EXPECT_EQ(store.find(admin::SigFullname.section, admin::SigFullname.name), std::nullopt);
    EXPECT_EQ(read(store, admin::SigFax), u"12");
    EXPECT_EQ(read(store, admin::SigEmail), u"old@example.com");
}

TEST_F(Changes, OneThatCantBeRemovedTakesBackThoseBeforeItToo) {
    store.refused = u"SigFax";
    EXPECT_EQ(write_changes(store, changes)->refused->name, u"SigFax");
    EXPECT_EQ(store.find(admin::SigFullname.section, admin::SigFullname.name), std::nullopt);
    EXPECT_EQ(read(store, admin::SigFax), u"12");
}

TEST_F(Changes, ThoseThatCantBeTakenBackAreNamed) {
    store.writes_left = 2;
    const auto unwritten = write_changes(store, changes);
    ASSERT_TRUE(unwritten);
    EXPECT_EQ(unwritten->refused->name, u"SigEmail");
    std::vector<TextView> changed;
    for (const Key* key : unwritten->changed) changed.push_back(key->name);
    EXPECT_EQ(changed, (std::vector<TextView>{u"SigFullname", u"SigFax"}));
    EXPECT_EQ(read(store, admin::SigFullname), u"Jo");
}

TEST_F(Changes, OneThatCantBeTakenBackOnceIsTakenBackTheSecondTime) {
    store.refused_turns = {
        5, 6}; // behind the two of the fixture: the third change, and what was there before the first
    const auto unwritten = write_changes(store, changes);
    ASSERT_TRUE(unwritten);
    EXPECT_TRUE(unwritten->changed.empty());
    EXPECT_EQ(store.find(admin::SigFullname.section, admin::SigFullname.name), std::nullopt);
    EXPECT_EQ(read(store, admin::SigFax), u"12");
}

TEST_F(Changes, NoneAtAllAreWrittenAtOnce) { EXPECT_FALSE(write_changes(store, {})); }

} // namespace
} // namespace ornavel::settings
