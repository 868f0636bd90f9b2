#include "rehearsal/player.h"

#include "rehearsal/model/versions.h"

#include <chrono>

namespace ornavel::rehearsal {
namespace {

double milliseconds_since(std::chrono::steady_clock::time_point start) {
    const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
    return passed.count();
}

} // namespace

Player::Player(const Scenario& scenario, std::string source, MailClient& client, Machine& machine,
               AddIn& addin)
    : scenario_(scenario), source_(std::move(source)), client_(client), machine_(machine), addin_(addin) {}

void Player::play() {
    for (const Act& act : scenario_.acts) {
        client_.begin_act(acts_.size());
        Json record{{"act", act.given}};
        const auto start = std::chrono::steady_clock::now();
        try {
            play_act(act, record);
            client_.ribbons().draw();
        } catch (const Unusable&) {
            throw;
        } catch (...) {
            error_ = to_json(current_description());
        }
        record["milliseconds"] = milliseconds_since(start);
        acts_.push_back(std::move(record));
        if (const auto complaint = machine_.complaint()) throw Unusable(*complaint);
        if (!error_.is_null()) return;
    }
}

void Player::play_act(const Act& act, Json& record) {
    using Kind = Act::Kind;
    switch (act.kind) {
    case Kind::connect:
        return connect(act.number);
    case Kind::start:
        return addin_.start();
    case Kind::update:
        return addin_.update();
    case Kind::shutdown:
        client_.close_documents();
        return addin_.shutdown();
    case Kind::disconnect:
        return disconnect(act.number);
    case Kind::send:
        return send(act.number, record);
    case Kind::click:
        return click(act);
    case Kind::options:
        client_.ask_for_pages();
        return;
    case Kind::page:
        return page(act);
    case Kind::new_explorer:
        return client_.add_explorers(act.number);
    case Kind::close_explorer:
        return client_.close_explorer(act.number);
    case Kind::set:
        return machine_.change_settings(act.settings);
    case Kind::clock:
        return machine_.set_clock(act.time);
    case Kind::dress:
        return dress(act, record);
    case Kind::tray:
    case Kind::tray_entry:
    case Kind::tray_message:
        if (!machine_.tray(act)) refuse(act, "no tray icon is shown");
        return;
    case Kind::run:
        return run(act, record);
    case Kind::prompt:
        const auto answer = machine_.prompt(act.text);
        if (!answer) refuse(act, "there is no prompt form");
        record["answer"] = to_json(*answer);
        return;
    }
}

/// The documentation leaves open whether the ribbon comes first: here it does so in Outlook 2010 alone.
void Player::connect(int mode) {
    constexpr int comes_first = 14;
    Ribbons& ribbons = client_.ribbons();
    addin_.make();
    ribbons.serve(addin_);
    if (major_version(client_.host()) == comes_first) ribbons.load_explorers();
    connected_ = true;
    addin_.connect(client_.application(), mode);
    ribbons.load_explorers();
}

void Player::disconnect(int remove_mode) {
    client_.close_documents();
    addin_.disconnect(remove_mode);
    client_.ribbons().let_go(remove_mode != 0);
    connected_ = false;
}

void Player::send(int item, Json& record) {
    auto& node = *client_.items[static_cast<std::size_t>(item)];
    if (!connected_) {
        client_.send_silently(node);
        record["cancel"] = false;
        return;
    }
    record["cancel"] = client_.send(node);
}

/// The form's answer shows in what the add-in asks of the item: to be sent, or nothing.
void Player::dress(const Act& act, Json& record) {
    const auto& item = client_.items[static_cast<std::size_t>(act.number)];
    const InspectorNode& window = client_.open_window(item);
    const int before = item->send_requests;
    if (!client_.ribbons().click(u"SendOptions", &window)) {
        const auto button = item->inspector_bar->find(u"SendOptions");
        if (!button) refuse(act, "the add-in offers no form for this item");
        client_.click(*button);
    }
    record["answer"] = item->send_requests > before;
}

void Player::run(const Act& act, Json& record) {
    client_.program_runs = true;
    const auto code = machine_.run(act.text, act.arguments, client_);
    client_.program_runs = false;
    if (!code) refuse(act, "there is no such program");
    record["exit code"] = *code;
}

void Player::click(const Act& act) {
    if (client_.ribbons().click(act.text)) return;
    const auto button = client_.standard_bar->find(act.text);
    if (!button) refuse(act, "no such button");
    client_.click(*button);
}

void Player::page(const Act& act) {
    const host::ObjectPtr page = client_.ask_for_pages();
    if (!page) refuse(act, "the add-in offers no page");
    addin_.show_page(page, act);
}

void Player::refuse(const Act& act, const std::string& reason) const {
    throw Unusable(source_ + ": " + act.path + ": " + reason);
}

} // namespace ornavel::rehearsal
