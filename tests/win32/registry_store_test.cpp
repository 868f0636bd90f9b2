#include "tests/settings/store_contract.h"
#include "win32/registry.h"
#include "win32/registry_store.h"
#include "win32/wide.h"

namespace ornavel::win32 {

constexpr TextView contract_key = u"Software\\VB and VBA Program Settings\\Ornavel\\Contract";

class InRegistry {
public:
    InRegistry() { remove_key(contract_key); }
    ~InRegistry() { remove_key(contract_key); }
    settings::Store& store() { return store_; }

private:
    RegistryStore store_;
};

} // namespace ornavel::win32

namespace ornavel::settings {
INSTANTIATE_TYPED_TEST_SUITE_P(RegistryStore, StoreContract, win32::InRegistry);
} // namespace ornavel::settings

namespace ornavel::win32 {

class RegistryValues : public testing::Test {
protected:
    /// Stores bytes as another program might have done.
    void plant(DWORD type, std::wstring_view units) { plant(contract_key, L"Planted", type, units); }
    void plant(TextView path, const wchar_t* name, DWORD type, std::wstring_view units) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, wide(path).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                  &key, nullptr),
                  0);
        const auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t));
        EXPECT_EQ(RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(units.data()), size), 0);
        RegCloseKey(key);
    }
    std::optional<Text> planted() { return registry_.store().find(u"Contract", u"Planted"); }

    InRegistry registry_;
};

TEST_F(RegistryValues, APathKeepsItsVariablesAndReadsAsWhatTheyStandFor) {
    SetEnvironmentVariableW(L"ORNAVEL_TEST_PLACE", L"C:\\there");
    const auto& key = settings::admin::HTMFilesPath;
    settings::Store& store = registry_.store();
    const auto before = store.find_stored(key.section, key.name);
    EXPECT_TRUE(store.save_with_variables(key.section, key.name, u"%ORNAVEL_TEST_PLACE%\\t"));
    EXPECT_EQ(store.find(key.section, key.name), u"C:\\there\\t");
    const auto stored = store.find_stored(key.section, key.name);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->text, u"%ORNAVEL_TEST_PLACE%\\t");
    EXPECT_TRUE(stored->has_variables);
    EXPECT_TRUE(before ? store.save(key.section, key.name, before->text)
                       : store.remove(key.section, key.name));
}

TEST_F(RegistryValues, AStringStoredWithoutItsNulIsWhole) {
    plant(REG_SZ, L"True");
    EXPECT_EQ(planted(), u"True");
}

TEST_F(RegistryValues, NulsTooManyAreNoPartOfTheValue) {
    plant(REG_SZ, {L"True\0\0\0", 7});
    EXPECT_EQ(planted(), u"True");
}

TEST_F(RegistryValues, ATextEndsAtItsFirstNul) {
    plant(REG_SZ, {L"True\0what was here before", 24});
    EXPECT_EQ(planted(), u"True");
    plant(REG_SZ, {L"\0", 1});
    EXPECT_EQ(planted(), u"");
}

TEST_F(RegistryValues, AnExpandableTextIsExpandedForASettingThatIsAPath) {
    constexpr TextView admin = u"Software\\VB and VBA Program Settings\\Ornavel\\Admin Settings";
    SetEnvironmentVariableW(L"ORNAVEL_TEST", L"C:\\Stationery");
    plant(admin, L"HTM Files Path", REG_EXPAND_SZ, L"%ORNAVEL_TEST%\\Templates\\%ORNAVEL_NONE%");
    plant(admin, L"SigFullname", REG_EXPAND_SZ, L"%ORNAVEL_TEST%");
    EXPECT_EQ(registry_.store().find(u"Admin Settings", u"HTM Files Path"),
              u"C:\\Stationery\\Templates\\%ORNAVEL_NONE%");
    EXPECT_EQ(registry_.store().find(u"Admin Settings", u"SigFullname"), std::nullopt);
    SetEnvironmentVariableW(L"ORNAVEL_TEST", nullptr);
    remove_key(admin);
}

TEST_F(RegistryValues, OtherTypesReadAsAbsent) {
    for (const DWORD type : {REG_EXPAND_SZ, REG_MULTI_SZ, REG_BINARY}) {
        plant(type, {L"True", 5});
        EXPECT_EQ(planted(), std::nullopt) << type;
    }
    plant(REG_DWORD, {L"\1\0", 2});
    EXPECT_EQ(planted(), std::nullopt);
}

TEST_F(RegistryValues, ASaveReplacesAValueOfAnotherType) {
    plant(REG_DWORD, {L"\1\0", 2});
    registry_.store().save(u"Contract", u"Planted", u"True");
    EXPECT_EQ(planted(), u"True");
}

TEST_F(RegistryValues, AValueIsStoredWithItsNulWhereOtherProgramsLook) {
    registry_.store().save(u"Contract", u"Template", u"a.htm");
    wchar_t value[16];
    DWORD size = sizeof value;
    DWORD type = REG_NONE;
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Ornavel\\Contract", 0,
                            KEY_READ, &key),
              0);
    EXPECT_EQ(RegQueryValueExW(key, L"Template", nullptr, &type, reinterpret_cast<BYTE*>(value), &size), 0);
    RegCloseKey(key);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ((std::wstring_view{value, size / sizeof(wchar_t)}), (std::wstring_view{L"a.htm\0", 6}));
}

TEST_F(RegistryValues, NamesThatTheRegistryRefusesChangeNothing) {
    const Text too_long(300, u'x');
    EXPECT_FALSE(registry_.store().save(u"Contract\\" + too_long, u"Template", u"x"));
    EXPECT_EQ(registry_.store().find(u"Contract\\" + too_long, u"Template"), std::nullopt);
}

/// Waits until the system's clock has gone on: so long a reader may miss that a key was made or renamed.
void wait_for_tick() {
    const DWORD now = GetTickCount();
    while (GetTickCount() == now) Sleep(1);
}

/// Renames a key, as no function of the registry's own does before Windows XP.
void rename_key(TextView path, std::wstring name) {
    struct {
        USHORT length, size;
        wchar_t* text;
    } wanted{static_cast<USHORT>(name.size() * 2), static_cast<USHORT>(name.size() * 2), name.data()};
    using Rename = LONG(WINAPI*)(HKEY, void*);
    const auto rename = reinterpret_cast<Rename>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtRenameKey")));
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, wide(path).c_str(), 0, KEY_ALL_ACCESS, &key), 0);
    EXPECT_EQ(rename(key, &wanted), 0);
    RegCloseKey(key);
}

TEST_F(RegistryValues, AKeyThatIsRemovedOrMadeBetweenReadingsIsNoticedAtOnce) {
    plant(REG_SZ, L"first");
    EXPECT_EQ(planted(), u"first");
    remove_key(contract_key);
    EXPECT_EQ(planted(), std::nullopt);
    plant(REG_SZ, L"second");
    EXPECT_EQ(planted(), u"second");
}

TEST_F(RegistryValues, AKeyThatIsRemovedAndMadeAnewBetweenReadingsIsReadAnewAtOnce) {
    plant(REG_SZ, L"first");
    EXPECT_EQ(planted(), u"first");
    remove_key(contract_key);
    plant(REG_SZ, L"second");
    EXPECT_EQ(planted(), u"second");
}

TEST_F(RegistryValues, AKeyThatIsRenamedBetweenReadingsIsNoLongerTheSections) {
    constexpr TextView renamed = u"Software\\VB and VBA Program Settings\\Ornavel\\Contract away";
    plant(REG_SZ, L"first");
    wait_for_tick();
    EXPECT_EQ(planted(), u"first");
    rename_key(contract_key, L"Contract away");
    wait_for_tick();
    EXPECT_EQ(planted(), std::nullopt);
    rename_key(renamed, L"Contract");
    wait_for_tick();
    EXPECT_EQ(planted(), u"first");
}

TEST_F(RegistryValues, AKeyThatAnotherTakesThePlaceOfIsNoLongerRead) {
    constexpr TextView away = u"Software\\VB and VBA Program Settings\\Ornavel\\Contract away";
    plant(REG_SZ, L"first");
    wait_for_tick();
    EXPECT_EQ(planted(), u"first");
    rename_key(contract_key, L"Contract away");
    plant(REG_SZ, L"second");
    wait_for_tick();
    EXPECT_EQ(planted(), u"second");
    remove_key(away);
}

TEST_F(RegistryValues, TheKeyOfAllSettingsMayBeReplacedToo) {
    plant(REG_SZ, L"first");
    wait_for_tick();
    EXPECT_EQ(planted(), u"first");
    rename_key(u"Software\\VB and VBA Program Settings\\Ornavel", L"Ornavel away");
    wait_for_tick();
    EXPECT_EQ(planted(), std::nullopt);
    plant(REG_SZ, L"second");
    wait_for_tick();
    EXPECT_EQ(planted(), u"second");
    remove_key(u"Software\\VB and VBA Program Settings\\Ornavel");
    rename_key(u"Software\\VB and VBA Program Settings\\Ornavel away", L"Ornavel");
}

TEST_F(RegistryValues, WhatWasJustSavedIsReadNextWhateverHappenedToTheKey) {
    plant(REG_SZ, L"first");
    EXPECT_EQ(planted(), u"first");
    rename_key(contract_key, L"Contract away");
    registry_.store().save(u"Contract", u"Planted", u"second");
    EXPECT_EQ(planted(), u"second");
    remove_key(u"Software\\VB and VBA Program Settings\\Ornavel\\Contract away");
}

} // namespace ornavel::win32
