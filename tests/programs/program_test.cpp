#include "tests/programs/program_stage.h"

#include <gtest/gtest.h>

namespace ornavel::programs {
namespace {

using namespace settings;

struct Programs : testing::Test {
    ProgramStage stage;
};

int fail(const Platform&) { throw Failure(u"no window is to be had"); }

TEST_F(Programs, WhatAProgramThrowsIsToldInOneSentenceAndGivesAnExitCode) {
    EXPECT_EQ(run({u"Sample.exe", u"Ornavel Sample", fail}, stage.platform), gave_up);
    EXPECT_EQ(stage.windows.boxes,
              std::vector<Text>{u"Ornavel Sample: Ornavel Sample can't go on: no window is to be had."});
}

TEST_F(Programs, ChangesThatCanBeWrittenAreToldToNobody) {
    EXPECT_TRUE(save_or_tell(stage.platform, u"Title", {{admin::SigFax, u"12"}}));
    EXPECT_EQ(stage.stored(admin::SigFax), u"12");
    EXPECT_TRUE(stage.windows.boxes.empty());
}

TEST_F(Programs, ChangesThatCantAllBeWrittenChangeNothingAndSaySo) {
    stage.store.refused = u"SigEmail";
    EXPECT_FALSE(save_or_tell(stage.platform, u"Title", {{admin::SigFax, u"12"}, {admin::SigEmail, u"x"}}));
    EXPECT_EQ(stage.stored(admin::SigFax), std::nullopt);
    EXPECT_EQ(
        stage.windows.boxes,
        std::vector<Text>{u"Title: Nothing was changed, because the setting SigEmail can't be written."});
}

TEST_F(Programs, WhatWasWrittenAndCantBeTakenBackIsNamed) {
    stage.set(admin::SigFax, u"11");
    stage.store.writes_left = 2;
    EXPECT_FALSE(save_or_tell(stage.platform, u"Title",
                              {{admin::SigFax, u"12"}, {admin::SigCell, u"13"}, {admin::SigEmail, u"x"}}));
    EXPECT_EQ(stage.stored(admin::SigFax), u"12");
    EXPECT_EQ(stage.windows.boxes,
              std::vector<Text>{u"Title: The setting SigEmail can't be written, and what was written before "
                                u"it can't be taken back: SigFax, SigCell."});
}

} // namespace
} // namespace ornavel::programs
