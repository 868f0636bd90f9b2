#include "host/application.h"

namespace ornavel::host {
namespace {

constexpr std::int32_t control_button = 1;
constexpr std::int32_t style_caption = 2;
constexpr std::int32_t style_face_and_caption = 3;

class Collection : public ViewOf<u"Collection"> {
public:
    using ViewOf::ViewOf;
    ObjectPtr add_temporary(std::int32_t type) const {
        return as_object(call({u"Add"}, {type, Omitted{}, Omitted{}, Omitted{}, true}));
    }
};

void pass_item_send(const ApplicationEvents& events, std::span<Value> arguments) {
    bool cancel = as_flag(arguments[1]);
    events.item_send(MailItem(as_object(arguments[0])), cancel);
    arguments[1] = cancel;
}

} // namespace

void CommandBarButton::show_caption() const { put({u"Style"}, style_caption); }

void CommandBarButton::show_face_and_caption(int face) const {
    put({u"FaceId"}, static_cast<std::int32_t>(face));
    put({u"Style"}, style_face_and_caption);
}

ObjectPtr create_options_page(Objects& objects) { return objects.create(u"BrevantPage.PropPage"); }

Subscription CommandBarButton::on_click(std::function<void()> handler) const {
    return advise(EventSource::button, [handler = std::move(handler)](TextView event, std::span<Value>) {
        if (event == u"Click") handler();
    });
}

CommandBarButton CommandBar::add_temporary_button() const {
    return CommandBarButton(Collection(as_object(get({u"Controls"}))).add_temporary(control_button));
}

CommandBarButton CommandBar::find_button(TextView tag) const {
    return CommandBarButton(
        as_object_or_nothing(call({u"FindControl"}, {control_button, Omitted{}, Text(tag)})));
}

Subscription Explorers::on_new(std::function<void(Explorer explorer)> handler) const {
    return advise(EventSource::explorers,
                  [handler = std::move(handler)](TextView event, std::span<Value> arguments) {
                      attempt([&] {
                          if (event == u"NewExplorer") handler(Explorer(as_object(arguments[0])));
                      });
                  });
}

Subscription Explorer::on_close(std::function<void()> handler) const {
    return advise(EventSource::explorer, [handler = std::move(handler)](TextView event, std::span<Value>) {
        if (event == u"Close") handler();
    });
}

MailItem Application::create_mail() const {
    constexpr std::int32_t ol_mail_item = 0;
    return MailItem(as_object(call({u"CreateItem"}, {ol_mail_item})));
}

Namespace Application::mapi() const { return Namespace(as_object(call({u"GetNamespace"}, {Text(u"MAPI")}))); }

Subscription Application::on_events(ApplicationEvents events) const {
    return advise(EventSource::application,
                  [events = std::move(events)](TextView event, std::span<Value> arguments) {
                      attempt([&] {
                          if (event == u"ItemSend") pass_item_send(events, arguments);
                          if (event == u"OptionsPagesAdd")
                              events.options_pages_add(PropertyPages(as_object(arguments[0])));
                      });
                  });
}

} // namespace ornavel::host
