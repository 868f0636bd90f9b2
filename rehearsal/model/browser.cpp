#include "rehearsal/model/browser.h"

#include "rehearsal/model/mail_client.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

void record(const Call& call, const char* member, Json value) {
    call.client.browser.push_back(Json{{member, std::move(value)}});
}

Value navigate(const Call& call) {
    record(call, "Navigate", to_json(call.text(0)));
    return {};
}

Value quit(const Call& call) {
    record(call, "Quit", nullptr);
    call.self.gone = true;
    return {};
}

/// There is no window behind it.
Value window_handle(const Call& call) {
    record(call, "hWnd", nullptr);
    return std::int32_t{0};
}

template <auto field, const char* name>
void put_switch(const Call& call, const Value& value) {
    assign(call.as<BrowserNode>().*field, value);
    record(call, name, call.as<BrowserNode>().*field);
}

constexpr char address_bar[] = "AddressBar", full_screen[] = "FullScreen", status_bar[] = "StatusBar",
               theater_mode[] = "TheaterMode", visible[] = "Visible";

template <auto field, const char* name>
constexpr MemberRow browser_switch(TextView shown) {
    return {shown, read_field<BrowserNode, field>, put_switch<field, name>};
}

constexpr MemberRow browser_members[] = {
    method(u"Navigate", navigate, 1, 5),
    method(u"Quit", quit),
    method(u"hWnd", window_handle),
    browser_switch<&BrowserNode::address_bar, address_bar>(u"AddressBar"),
    browser_switch<&BrowserNode::full_screen, full_screen>(u"FullScreen"),
    browser_switch<&BrowserNode::status_bar, status_bar>(u"StatusBar"),
    browser_switch<&BrowserNode::theater_mode, theater_mode>(u"TheaterMode"),
    browser_switch<&BrowserNode::visible, visible>(u"Visible"),
};

} // namespace

const Class& BrowserNode::what() const {
    static constexpr Class table{u"InternetExplorer", browser_members};
    return table;
}

} // namespace ornavel::rehearsal
