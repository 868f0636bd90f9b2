#include "win32/machine.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

struct WaitCursor : testing::Test {
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW), hourglass = LoadCursorW(nullptr, IDC_WAIT);
    DesktopWindows windows;

    WaitCursor() { SetCursor(arrow); }
};

TEST_F(WaitCursor, IsThereForAsLongAsTheUserWaits) {
    HCURSOR meanwhile = nullptr;
    windows.while_user_waits([&] { meanwhile = GetCursor(); });
    EXPECT_EQ(meanwhile, hourglass);
    EXPECT_EQ(GetCursor(), arrow);
}

TEST_F(WaitCursor, GoesWhenTheWorkFails) {
    EXPECT_THROW(windows.while_user_waits([] { throw Failure(u"no"); }), Failure);
    EXPECT_EQ(GetCursor(), arrow);
}

} // namespace
} // namespace ornavel::win32
