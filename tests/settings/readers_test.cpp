#include "base/encoding.h"
#include "settings/store.h"

#include <gtest/gtest.h>

namespace ornavel::settings {
namespace {

// Each reader takes the keys of its kind, and none of another.
template <class SomeKey>
concept CanBeOn = requires(const Store& store, const SomeKey& key) {
    is_on(store, key);
};
template <class SomeKey>
concept CanBeOff = requires(const Store& store, const SomeKey& key) {
    is_off(store, key);
};
template <class SomeKey>
concept CanBeTicked = requires(const Store& store, const SomeKey& key) {
    is_ticked(store, key);
};
template <class SomeKey>
concept IsNumber = requires(const Store& store, const SomeKey& key) {
    read_number(store, key);
};
template <class SomeKey>
concept IsText = requires(const Store& store, const SomeKey& key) {
    read(store, key);
};
template <class SomeKey>
concept IsTextOr = requires(const Store& store, const SomeKey& key) {
    read(store, key, u"");
};

template <class SomeKey>
constexpr int readers_of = CanBeOn<SomeKey> + CanBeOff<SomeKey> + CanBeTicked<SomeKey> + IsNumber<SomeKey> +
                           IsText<SomeKey> + IsTextOr<SomeKey>;

static_assert(CanBeOn<SwitchKey> && CanBeOff<SwitchKey> && readers_of<SwitchKey> == 2);
static_assert(CanBeTicked<TickKey> && readers_of<TickKey> == 1);
static_assert(IsNumber<NumberKey> && readers_of<NumberKey> == 1);
static_assert(IsText<TextKey> && IsTextOr<TextKey> && readers_of<TextKey> == 2);
static_assert(IsText<PathKey> && IsTextOr<PathKey> && readers_of<PathKey> == 2);
static_assert(readers_of<Key> == 0);

// So these do not compile: is_on(store, user::Template), read(store, admin::SkipInternal).
static_assert(!CanBeOn<decltype(user::Template)> && !IsText<decltype(admin::SkipInternal)>);

struct Value {
    TextView stored;
    bool on, off, ticked;
};

TEST(Readers, ASwitchIsOnAtExactlyTrueAndATickAtExactlyOne) {
    const Value values[] = {
        {u"True", true, false, false},   {u"False", false, true, false},  {u"1", false, false, true},
        {u"0", false, false, false},     {u"true", false, false, false},  {u"TRUE", false, false, false},
        {u"false", false, false, false}, {u"True ", false, false, false}, {u" 1", false, false, false},
        {u"", false, false, false},
    };
    MemoryStore store;
    for (const Value& value : values) {
        save(store, admin::EmailErrorNotify, value.stored);
        save(store, user::ShowMessageBox, value.stored);
        EXPECT_EQ(is_on(store, admin::EmailErrorNotify), value.on) << to_utf8(value.stored);
        EXPECT_EQ(is_off(store, admin::EmailErrorNotify), value.off) << to_utf8(value.stored);
        EXPECT_EQ(is_ticked(store, user::ShowMessageBox), value.ticked) << to_utf8(value.stored);
    }
}

TEST(Readers, AnAbsentSettingIsWhatTheCatalogueSays) {
    const MemoryStore store;
    EXPECT_TRUE(is_on(store, admin::EmailErrorNotify));
    EXPECT_FALSE(is_off(store, admin::EmailErrorNotify));
    EXPECT_TRUE(is_off(store, admin::SysTray));
    EXPECT_TRUE(is_ticked(store, user::ShowMessageBox));
    EXPECT_FALSE(is_ticked(store, admin::SkipInternal));
    EXPECT_EQ(read_number(store, user::BrowserWidth), 10170);
    EXPECT_EQ(read(store, admin::ExclaimerRule), u"Exclaimer");
    EXPECT_EQ(read(store, admin::HTMFilesPath), u"C:\\temp");
}

TEST(Readers, AnotherDefaultStandsForAnAbsentValueOnly) {
    MemoryStore store;
    EXPECT_EQ(read(store, user::Signature, u"none"), u"none");
    EXPECT_EQ(read(store, admin::ApplicationPath, u"C:\\app"), u"C:\\app");
    save(store, user::Signature, u"");
    save(store, admin::ApplicationPath, u"");
    EXPECT_EQ(read(store, user::Signature, u"none"), u"");
    EXPECT_EQ(read(store, admin::ApplicationPath, u"C:\\app"), u"");
}

TEST(Readers, ANumberIsTheDigitsThatItsValueBeginsWith) {
    MemoryStore store;
    for (const auto& [stored, number] :
         {std::pair{u"450", 450}, {u"  12 twips", 12}, {u"high", 0}, {u"-5", 0}, {u"", 0}}) {
        save(store, user::BrowserTop, stored);
        EXPECT_EQ(read_number(store, user::BrowserTop), number);
    }
}

} // namespace
} // namespace ornavel::settings
