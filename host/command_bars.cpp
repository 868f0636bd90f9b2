#include "host/command_bars.h"

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

} // namespace

void CommandBarButton::show_caption() const { put({u"Style"}, style_caption); }

void CommandBarButton::show_face_and_caption(int face) const {
    put({u"FaceId"}, static_cast<std::int32_t>(face));
    put({u"Style"}, style_face_and_caption);
}

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

} // namespace ornavel::host
