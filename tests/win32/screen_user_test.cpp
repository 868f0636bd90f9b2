#include "rehearsal/windows/screen_user.h"

#include "forms/screen_place.h"
#include "rehearsal/form_record.h"
#include "win32/form_window.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <gtest/gtest.h>

#include <set>

namespace ornavel::rehearsal {
namespace {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::Form;

/// A form with something of every kind that has a window, and code that the steps run.
class Order {
public:
    Order()
        : form({.name = u"frmOrder", .place = {0, 0, 6000, 4500}, .caption = u"Order"},
               {
                   {.kind = ControlKind::text_box, .name = u"txtNote", .place = {120, 120, 2400, 300}},
                   {.kind = ControlKind::text_box,
                    .name = u"txtSum",
                    .place = {120, 480, 2400, 300},
                    .locked = true},
                   {.kind = ControlKind::combo_box, .name = u"cboSize", .place = {120, 840, 2400, 300}},
                   {.kind = ControlKind::check_box,
                    .name = u"chkGift",
                    .place = {120, 1200, 2400, 300},
                    .caption = u"&Gift",
                    .tool_tip = u"Wrapped in paper",
                    .ticked = true},
                   {.kind = ControlKind::frame,
                    .name = u"fraMore",
                    .place = {120, 1560, 2400, 900},
                    .visible = false},
                   {.kind = ControlKind::label,
                    .name = u"lblMore",
                    .place = {60, 240, 1200, 300},
                    .caption = u"More",
                    .frame = u"fraMore"},
                   {.kind = ControlKind::label,
                    .name = u"lblTip",
                    .place = {2640, 120, 2400, 300},
                    .caption = u"Tip"},
                   {.kind = ControlKind::image, .name = u"imgLogo", .place = {2640, 480, 600, 600}},
                   {.kind = ControlKind::command_button,
                    .name = u"cmdOrder",
                    .place = {2640, 1200, 1200, 375},
                    .caption = u"Order",
                    .enabled = false},
               }) {
        form.on(u"cboSize", Event::drop_down, [this] { form[u"cboSize"].items = {u"small", u"large"}; });
        form.on(u"cboSize", Event::click,
                [this] { form[u"txtSum"].text += u"(" + form[u"cboSize"].text + u")"; });
        form.on(u"cboSize", Event::change,
                [this] { form[u"txtSum"].text += u"[" + form[u"cboSize"].text + u"]"; });
        form.on(u"txtNote", Event::change,
                [this] { form[u"cmdOrder"].enabled = !form[u"txtNote"].text.empty(); });
        form.on(u"chkGift", Event::click, [this] { form[u"fraMore"].visible = true; });
        form.on(u"txtNote", Event::double_click, [this] { form[u"lblTip"].caption = u"Another tip"; });
        form.on(u"lblTip", Event::double_click, [this] { form[u"lblTip"].tool_tip = u"Double"; });
        form.on(u"cmdOrder", Event::click, [this] {
            form[u"txtNote"].text = u"ordered";
            form.unload();
        });
    }
    Form form;
};

Step step(Step::Kind kind, Text control, Text text = {}, int first = 0, int second = 0) {
    return {.kind = kind,
            .control = std::move(control),
            .text = std::move(text),
            .first = first,
            .second = second};
}

/// The record of a form that nobody shows.
Json record_of_model(const std::vector<Step>& steps) {
    Order order;
    order.form.load();
    order.form.properties.place = forms::centred(order.form.properties.place, {0, 0, 1280 * 15, 1024 * 15});
    Json record = form_record(order.form);
    for (const Step& each : steps) take_step(each, forms::FormUser(order.form));
    order.form.unload();
    record["at close"] = changed_controls(record, order.form);
    return record;
}

struct Seen {
    Json windows;
    std::optional<std::string> complaint;
};

Seen see(const std::vector<UserEntry>& entries) {
    Order order;
    ScriptedUser user(entries, "x");
    const ScreenUser screen(user);
    order.form.load();
    win32::show_form_modally(order.form);
    return {screen.windows(), user.complaint()};
}

UserEntry working(std::vector<Step> steps) {
    UserEntry entry;
    entry.at = u"frmOrder";
    entry.steps = std::move(steps);
    entry.path = "user[0]";
    return entry;
}

TEST(ScreenUser, StepsInAFormsWindowLeaveTheRecordThatTheyLeaveInItsModel) {
    using K = Step::Kind;
    Step gift = step(K::tick, u"chkGift");
    gift.ticked = false;
    const std::vector<std::vector<Step>> plays = {
        {},
        {step(K::set, u"txtNote", u"two of them"), step(K::click, u"cmdOrder")},
        {step(K::set, u"txtNote", u"x"), step(K::set, u"txtNote", u"")},
        {step(K::select, u"cboSize", {}, 1), step(K::set, u"cboSize", u"small")},
        {step(K::set, u"cboSize", u"huge")},
        {gift, step(K::click, u"chkGift")},
        {step(K::click, u"lblMore"), step(K::double_click, u"lblTip")},
        {step(K::double_click, u"txtNote"), step(K::click, u"lblTip")},
        {step(K::move, {}, {}, 300, 450), step(K::resize, {}, {}, 7500, 6000), step(K::close, {})},
    };
    for (const auto& steps : plays) {
        const Seen seen = see({working(steps)});
        EXPECT_FALSE(seen.complaint) << *seen.complaint;
        ASSERT_EQ(seen.windows.size(), 1u);
        EXPECT_EQ(nlohmann::json(seen.windows[0]), nlohmann::json(record_of_model(steps)));
    }
}

TEST(ScreenUser, KeepsAPictureOfEachFormWhereItIsAskedTo) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const Text path = win32::text_of(folder) + u"ornavel-order", file = path + u"0.bmp";
    win32::WindowsFiles files;
    attempt([&] { files.remove(file); });
    Order order;
    const std::vector<UserEntry> entries{working({step(Step::Kind::click, u"cmdOrder")})};
    ScriptedUser user(entries, "x");
    ScreenUser screen(user);
    screen.keep_pictures(path);
    order.form.load();
    win32::show_form_modally(order.form);
    const std::string picture = files.read(file);
    EXPECT_TRUE(picture.starts_with("BM"));
    std::set<std::string> colours;
    for (std::size_t pixel = 54; pixel + 4 <= picture.size(); pixel += 4)
        colours.insert(picture.substr(pixel, 4));
    EXPECT_GT(colours.size(), 2u); // the form was drawn
    files.remove(file);
}

TEST(ScreenUser, AStepThatNoUserCouldTakeIsComplainedOfAndTheFormIsClosed) {
    using K = Step::Kind;
    Step gift = step(K::tick, u"chkGift");
    gift.ticked = true;
    const std::pair<Step, const char*> cases[] = {
        {step(K::click, u"cmdOrder"), "x: user[0]: cmdOrder is disabled"},
        {step(K::click, u"fraMore"), "x: user[0]: fraMore is hidden"},
        {step(K::click, u"cmdNone"), "x: user[0]: frmOrder has no control cmdNone"},
        {step(K::set, u"txtSum", u"1"), "x: user[0]: txtSum can't be changed"},
        {step(K::select, u"cboSize", {}, 2), "x: user[0]: cboSize has no entry 2"},
        {gift, "x: user[0]: chkGift is ticked already"},
    };
    for (const auto& [refused, words] : cases) EXPECT_EQ(see({working({refused})}).complaint, words);
}

TEST(ScreenUser, AFormThatNobodyExpectsIsClosedByItsFrame) {
    const Seen seen = see({});
    ASSERT_EQ(seen.windows.size(), 1u);
    EXPECT_EQ(seen.windows[0].at("unexpected"), true);
}

} // namespace
} // namespace ornavel::rehearsal
