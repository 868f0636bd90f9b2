#include "base/encoding.h"
#include "diagnostics/about.h"
#include "tests/win32/real_program.h"
#include "win32/wide.h"

#include <gtest/gtest.h>

// What the properties of a file tell: the installer, and whoever asks which version it is, go by that.

namespace ornavel::win32 {
namespace {

/// What Windows reads from a file's version resource.
class VersionOf {
public:
    explicit VersionOf(TextView file) {
        const std::wstring path = wide(built(file));
        DWORD ignored = 0;
        resource_.resize(GetFileVersionInfoSizeW(path.c_str(), &ignored));
        if (resource_.empty() ||
            !GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource_.size()), resource_.data()))
            fail(file, GetLastError());
    }
    std::vector<WORD> numbers() const {
        const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(look(L"\\"));
        return {HIWORD(fixed.dwFileVersionMS), LOWORD(fixed.dwFileVersionMS), HIWORD(fixed.dwFileVersionLS),
                LOWORD(fixed.dwFileVersionLS)};
    }
    Text operator[](const wchar_t* name) const {
        return text_of(
            static_cast<const wchar_t*>(look(L"\\StringFileInfo\\040904B0\\" + std::wstring(name))));
    }

private:
    const void* look(const std::wstring& what) const {
        void* found = nullptr;
        UINT size = 0;
        if (!VerQueryValueW(resource_.data(), what.c_str(), &found, &size))
            fail(text_of(what), GetLastError());
        return found;
    }
    std::vector<std::byte> resource_;
};

TEST(VersionResources, EveryFileOfThePackageTellsItsNameVersionMakerAndCopyright) {
    for (const TextView file :
         {u"shell\\Ornavel.dll", u"programs\\SiteAssistant.exe", u"programs\\OptionsAssistant.exe",
          u"programs\\MassMailer.exe", u"workbench\\ornavel.exe"}) {
        SCOPED_TRACE(to_utf8(file));
        const VersionOf version(file);
        EXPECT_EQ(version.numbers(), (std::vector<WORD>{ORNAVEL_VERSION_NUMBERS}));
        EXPECT_EQ(version[L"FileVersion"], u"" ORNAVEL_VERSION);
        EXPECT_EQ(version[L"OriginalFilename"], file.substr(file.find(u'\\') + 1));
        EXPECT_EQ(version[L"ProductName"], u"Ornavel");
        EXPECT_EQ(version[L"CompanyName"], u"" ORNAVEL_COMPANY);
        EXPECT_EQ(version[L"LegalCopyright"], u"Copyright Brevant");
        EXPECT_TRUE(version[L"FileDescription"].starts_with(u"Ornavel"));
    }
}

} // namespace
} // namespace ornavel::win32
