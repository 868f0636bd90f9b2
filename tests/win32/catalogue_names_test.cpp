#include <windows.h>

#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ornavel::settings {

// TEXT, for one, is a macro of Windows.
TEST(CatalogueNames, LeaveThoseOfWindowsAlone) { EXPECT_EQ(std::wstring_view(TEXT("letter")), L"letter"); }

} // namespace ornavel::settings
