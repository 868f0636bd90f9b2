#include "host/application.h"

namespace ornavel::host {
namespace {

void pass_item_send(const ApplicationEvents& events, std::span<Value> arguments) {
    bool cancel = as_flag(arguments[1]);
    events.item_send(MailItem(as_object(arguments[0])), cancel);
    arguments[1] = cancel;
}

} // namespace

Application find_application(Objects& objects) { return Application(objects.create(u"Outlook.Application")); }

ObjectPtr create_options_page(Objects& objects) { return objects.create(u"BrevantPage.PropPage"); }

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
