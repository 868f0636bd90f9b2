#include "tests/win32/fake_dispatch.h"
#include "win32/event_sink.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

constexpr IID application_events{0x0006304E, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr IID explorer_events{0x0006304F, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr IID button_events{0x000C0351, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

class Events : public testing::Test {
protected:
    void listen(host::EventSource source, const IID& events, host::EventHandler handler) {
        subscription.reset();
        host->event_interface = events;
        subscription = advise(static_cast<IDispatch*>(host.get()), source, std::move(handler));
    }
    static VARIANT item() {
        VARIANT made{};
        made.vt = VT_DISPATCH;
        return made;
    }
    static VARIANT by_reference(VARIANT_BOOL& flag) {
        VARIANT made{};
        made.vt = VT_BYREF | VT_BOOL;
        made.pboolVal = &flag;
        return made;
    }

    ComPtr<FakeDispatch> host = make_fake();
    host::Subscription subscription;
};

TEST_F(Events, ArriveUnderTheirNamesWithTheirArgumentsInOrder) {
    std::vector<Text> heard;
    const auto note = [&](TextView event, std::span<host::Value> arguments) {
        heard.push_back(Text(event) + u" " + to_text(static_cast<long long>(arguments.size())));
    };
    VARIANT_BOOL flag = VARIANT_FALSE;
    listen(host::EventSource::application, application_events, note);
    host->raise(0xF002, {item(), by_reference(flag)});
    host->raise(0xF005, {item()});
    listen(host::EventSource::explorer, explorer_events, note);
    host->raise(0xF008, {});
    listen(host::EventSource::button, button_events, note);
    host->raise(1, {item(), by_reference(flag)});
    EXPECT_EQ(heard, (std::vector<Text>{u"ItemSend 2", u"OptionsPagesAdd 1", u"Close 0", u"Click 2"}));
}

TEST_F(Events, OfOtherNumbersAreNotPassedOn) {
    int heard = 0;
    listen(host::EventSource::application, application_events,
           [&](TextView, std::span<host::Value>) { ++heard; });
    for (const DISPID id : {0xF001, 0xF003, 1, 0, -1}) EXPECT_EQ(host->raise(id, {}), S_OK);
    EXPECT_EQ(heard, 0);
}

TEST_F(Events, AFlagThatTheHandlerChangesGoesBackToTheHost) {
    listen(host::EventSource::application, application_events,
           [](TextView, std::span<host::Value> arguments) {
               EXPECT_EQ(arguments[1], host::Value(false));
               arguments[1] = true;
           });
    VARIANT_BOOL cancel = VARIANT_FALSE;
    EXPECT_EQ(host->raise(0xF002, {item(), by_reference(cancel)}), S_OK);
    EXPECT_EQ(cancel, VARIANT_TRUE);
}

TEST_F(Events, AFlagInsideAVariantGoesBackToo) {
    listen(host::EventSource::application, application_events,
           [](TextView, std::span<host::Value> arguments) { arguments[1] = false; });
    VARIANT inner{};
    inner.vt = VT_BOOL;
    inner.boolVal = VARIANT_TRUE;
    VARIANT outer{};
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = &inner;
    host->raise(0xF002, {item(), outer});
    EXPECT_EQ(inner.boolVal, VARIANT_FALSE);
}

TEST_F(Events, NoExceptionReachesTheHost) {
    listen(host::EventSource::application, application_events,
           [](TextView, std::span<host::Value>) { throw host::Error(u"inside"); });
    VARIANT_BOOL cancel = VARIANT_FALSE;
    EXPECT_EQ(host->raise(0xF002, {item(), by_reference(cancel)}), S_OK);
    EXPECT_EQ(cancel, VARIANT_FALSE);
}

TEST_F(Events, ACallWithoutParametersIsHarmless) {
    listen(host::EventSource::explorer, explorer_events, [](TextView, std::span<host::Value>) {});
    EXPECT_EQ(host->sink->Invoke(0xF008, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              S_OK);
}

TEST_F(Events, ADroppedSubscriptionLeavesNoReference) {
    listen(host::EventSource::application, application_events, [](TextView, std::span<host::Value>) {});
    EXPECT_GT(host->others(), 0U);
    subscription.reset();
    EXPECT_EQ(host->others(), 0U);
    EXPECT_FALSE(host->sink);
}

TEST_F(Events, TheHandlerMayDropItsOwnSubscription) {
    int heard = 0;
    listen(host::EventSource::explorer, explorer_events, [&](TextView, std::span<host::Value>) {
        subscription.reset();
        ++heard;
    });
    EXPECT_EQ(host->raise(0xF008, {}), S_OK);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(host->others(), 0U);
}

TEST_F(Events, AHostThatKeepsTheSinkIsNotHeardAnyMore) {
    int heard = 0;
    listen(host::EventSource::explorer, explorer_events, [&](TextView, std::span<host::Value>) { ++heard; });
    const ComPtr<IDispatch> kept = host->sink;
    subscription.reset();
    EXPECT_EQ(kept->Invoke(0xF008, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(heard, 0);
}

TEST_F(Events, AnObjectWithoutThemIsAnError) {
    const auto ignore = [](TextView, std::span<host::Value>) {};
    EXPECT_THROW(advise(static_cast<IDispatch*>(host.get()), host::EventSource::button, ignore), host::Error);
    host->event_interface = explorer_events;
    EXPECT_THROW(advise(static_cast<IDispatch*>(host.get()), host::EventSource::button, ignore), host::Error);
    EXPECT_EQ(host->others(), 0U);
}

} // namespace
} // namespace ornavel::win32
