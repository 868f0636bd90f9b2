#include "base/encoding.h"
#include "tests/win32/add_in_dll.h"
#include "win32/registry.h"

#include <algorithm>
#include <iterator>
#include <olectl.h>

namespace ornavel::win32 {
namespace {

/// Every key and value below a key, one line each, in the registry's order.
std::vector<std::string> lines_below(HKEY key, const std::wstring& above = L"") {
    std::vector<std::string> lines;
    wchar_t name[256];
    DWORD length = ARRAYSIZE(name);
    for (DWORD i = 0; RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == 0; ++i) {
        const std::wstring path = above + L"\\" + name;
        lines.push_back(to_utf8(text_of(path)));
        HKEY child = nullptr;
        RegOpenKeyExW(key, name, 0, KEY_READ, &child);
        std::ranges::copy(lines_below(child, path), std::back_inserter(lines));
        RegCloseKey(child);
        length = ARRAYSIZE(name);
    }
    BYTE bytes[1024];
    for (DWORD i = 0;; ++i) {
        DWORD type = REG_NONE;
        DWORD size = sizeof bytes;
        length = ARRAYSIZE(name);
        if (RegEnumValueW(key, i, name, &length, nullptr, &type, bytes, &size) != 0) break;
        const std::wstring text(reinterpret_cast<const wchar_t*>(bytes), size / sizeof(wchar_t));
        const Text value = type == REG_DWORD ? u"#" + to_text(bytes[0]) : text_of(text.c_str());
        lines.push_back(to_utf8(text_of(above) + u" @" + text_of(name) + u"=" + value));
    }
    std::ranges::sort(lines);
    return lines;
}

/// Stands in, for this process, for one of the registry's roots, so that a test sees everything that is
/// written below it, and writes nothing else. It also does away with the link between a Wine prefix's
/// classes.
class ScratchRoot {
public:
    ScratchRoot(HKEY root, TextView name) : root_(root), path_(u"Software\\Ornavel Tests\\" + Text(name)) {
        remove_key(path_);
        RegCreateKeyExW(HKEY_CURRENT_USER, wide(path_).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_,
                        nullptr);
    }
    ~ScratchRoot() {
        RegOverridePredefKey(root_, nullptr);
        RegCloseKey(key_);
        remove_key(path_);
        remove_empty_key(u"Software\\Ornavel Tests");
    }
    ScratchRoot(const ScratchRoot&) = delete;
    ScratchRoot& operator=(const ScratchRoot&) = delete;

    void begin() { ASSERT_EQ(RegOverridePredefKey(root_, key_), ERROR_SUCCESS); }
    std::vector<std::string> lines() const { return lines_below(key_); }

private:
    HKEY root_;
    Text path_;
    HKEY key_ = nullptr;
};

class Registration : public testing::Test {
protected:
    void SetUp() override {
        classes.begin();
        machine.begin();
        user.begin();
    }

    AddInDll dll;
    ScratchRoot classes{HKEY_CLASSES_ROOT, u"classes"};
    ScratchRoot machine{HKEY_LOCAL_MACHINE, u"machine"};
    ScratchRoot user{HKEY_CURRENT_USER, u"user"};
};

using Lines = std::vector<std::string>;

TEST_F(Registration, WritesEveryValueForTheCurrentUserAndNothingElse) {
    EXPECT_EQ(dll.call("DllRegisterServer"), S_OK);
    const std::string class_key = "\\Software\\Classes\\CLSID\\{01F2687D-003D-4805-8744-2B3921019DBC}";
    const std::string page_key = "\\Software\\Classes\\CLSID\\{7B4C9A52-6E1D-4F0B-9D37-5A28C1E6F493}";
    const std::string host_key = "\\Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect";
    Lines expected{
        "\\Software",
        "\\Software\\Classes",
        "\\Software\\Classes\\CLSID",
        class_key,
        class_key + " @=Ornavel",
        class_key + "\\InprocServer32",
        class_key + "\\InprocServer32 @=" + to_utf8(AddInDll::path()),
        class_key + "\\InprocServer32 @ThreadingModel=Apartment",
        class_key + "\\ProgID",
        class_key + "\\ProgID @=Ornavel.Connect",
        page_key,
        page_key + " @=Ornavel options page",
        page_key + "\\Control",
        page_key + "\\Control @=",
        page_key + "\\InprocServer32",
        page_key + "\\InprocServer32 @=" + to_utf8(AddInDll::path()),
        page_key + "\\InprocServer32 @ThreadingModel=Apartment",
        page_key + "\\MiscStatus",
        page_key + "\\MiscStatus @=0",
        page_key + "\\MiscStatus\\1",
        page_key + "\\MiscStatus\\1 @=131473",
        page_key + "\\ProgID",
        page_key + "\\ProgID @=BrevantPage.PropPage",
        "\\Software\\Classes\\BrevantPage.PropPage",
        "\\Software\\Classes\\BrevantPage.PropPage @=Ornavel options page",
        "\\Software\\Classes\\BrevantPage.PropPage\\CLSID",
        "\\Software\\Classes\\BrevantPage.PropPage\\CLSID @={7B4C9A52-6E1D-4F0B-9D37-5A28C1E6F493}",
        "\\Software\\Classes\\Ornavel.Connect",
        "\\Software\\Classes\\Ornavel.Connect @=Ornavel",
        "\\Software\\Classes\\Ornavel.Connect\\CLSID",
        "\\Software\\Classes\\Ornavel.Connect\\CLSID @={01F2687D-003D-4805-8744-2B3921019DBC}",
        "\\Software\\Microsoft",
        "\\Software\\Microsoft\\Office",
        "\\Software\\Microsoft\\Office\\Outlook",
        "\\Software\\Microsoft\\Office\\Outlook\\Addins",
        host_key,
        host_key + " @CommandLineSafe=#0",
        host_key + " @Description=Dresses outgoing messages in your stationery",
        host_key + " @FriendlyName=Ornavel",
        host_key + " @LoadBehavior=#3",
    };
    std::ranges::sort(expected);
    EXPECT_EQ(user.lines(), expected);
    EXPECT_EQ(machine.lines(), Lines{});
    EXPECT_EQ(classes.lines(), Lines{});
}

TEST_F(Registration, TwiceIsAsGoodAsOnce) {
    EXPECT_EQ(dll.call("DllRegisterServer"), S_OK);
    const Lines once = user.lines();
    EXPECT_EQ(dll.call("DllRegisterServer"), S_OK);
    EXPECT_EQ(user.lines(), once);
}

TEST_F(Registration, UnregisteringLeavesNothingOfItsOwn) {
    RegistryKey::create(u"Software\\Classes");
    RegistryKey::create(u"Software\\Microsoft");
    const Lines before = user.lines();
    dll.call("DllRegisterServer");
    EXPECT_EQ(dll.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(user.lines(), before);
}

TEST_F(Registration, UnregisteringLeavesWhatBelongsToOthers) {
    RegistryKey::create(u"Software\\Classes\\CLSID\\{other}");
    RegistryKey::create(u"Software\\Microsoft\\Office\\Outlook\\Addins\\Other.Connect");
    RegistryKey::create(u"Software\\Microsoft\\Office").set(u"Kept", u"x");
    const Lines before = user.lines();
    dll.call("DllRegisterServer");
    EXPECT_EQ(dll.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(user.lines(), before);
}

TEST_F(Registration, UnregisteringWithNothingThereSucceeds) {
    EXPECT_EQ(dll.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(user.lines(), Lines{});
}

TEST_F(Registration, APartThatCannotBeWrittenLeavesNothing) {
    RegistryKey::create(u"Software\\Classes");
    RegistryKey::create(u"Software\\Microsoft");
    const Lines before = user.lines();
    // Below a key that goes with the session, no lasting key can be made.
    HKEY fleeting = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Classes\\Ornavel.Connect", 0, nullptr,
                              REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &fleeting, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(fleeting);
    EXPECT_EQ(dll.call("DllRegisterServer"), SELFREG_E_CLASS);
    EXPECT_EQ(user.lines(), before);
}

} // namespace
} // namespace ornavel::win32
