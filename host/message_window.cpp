#include "host/message_window.h"

namespace ornavel::host {

Subscription MessageWindow::on_events(MessageWindowEvents events) const {
    return advise(EventSource::inspector, [events = std::move(events)](TextView event, std::span<Value>) {
        if (event == u"Activate") events.activate();
        if (event == u"Close") events.close();
    });
}

Subscription MessageWindows::on_new(std::function<void(MessageWindow window)> handler) const {
    return advise(EventSource::inspectors,
                  [handler = std::move(handler)](TextView event, std::span<Value> arguments) {
                      attempt([&] {
                          if (event == u"NewInspector") handler(MessageWindow(as_object(arguments[0])));
                      });
                  });
}

} // namespace ornavel::host
