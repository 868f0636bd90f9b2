#include "tests/settings/store_contract.h"
#include "win32/registry.h"
#include "win32/registry_store.h"

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
    void plant(DWORD type, std::wstring_view units) {
        HKEY key = nullptr;
        const std::wstring path(contract_key.begin(), contract_key.end());
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key,
                                  nullptr),
                  0);
        const auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t));
        EXPECT_EQ(RegSetValueExW(key, L"Planted", 0, type, reinterpret_cast<const BYTE*>(units.data()), size),
                  0);
        RegCloseKey(key);
    }
    std::optional<Text> planted() { return registry_.store().find(u"Contract", u"Planted"); }

    InRegistry registry_;
};

TEST_F(RegistryValues, AStringStoredWithoutItsNulIsWhole) {
    plant(REG_SZ, L"True");
    EXPECT_EQ(planted(), u"True");
}

TEST_F(RegistryValues, NulsTooManyAreNoPartOfTheValue) {
    plant(REG_SZ, {L"True\0\0\0", 7});
    EXPECT_EQ(planted(), u"True");
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
    registry_.store().save(u"Contract\\" + too_long, u"Template", u"x");
    EXPECT_EQ(registry_.store().find(u"Contract\\" + too_long, u"Template"), std::nullopt);
}

} // namespace ornavel::win32
