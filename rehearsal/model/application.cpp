#include "rehearsal/model/application.h"

#include "rehearsal/model/calendar.h"
#include "rehearsal/model/handle.h"
#include "rehearsal/model/mail_client.h"
#include "rehearsal/model/versions.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

template <class Kind>
Value fresh(const Call& call) {
    return call.client.hand_out(std::make_shared<Kind>());
}

Value active_explorer(const Call& call) {
    const auto explorer = call.client.active_explorer();
    return explorer ? call.client.hand_out(explorer) : host::ObjectPtr();
}

Value create_item(const Call& call) {
    constexpr std::int32_t mail_item = 0;
    if (call.number(0) != mail_item) throw host::Error(u"Could not complete the operation.");
    auto item = std::make_shared<MailItemNode>();
    item->made_by_addin = true;
    item->made_by_program = call.client.program_runs;
    return call.client.hand_out(std::move(item));
}

Value name_space(const Call& call) {
    if (!same_name(call.text(0), u"MAPI")) throw host::Error(u"Could not complete the operation.");
    return fresh<NameSpaceNode>(call);
}

constexpr MemberRow application_members[] = {
    method(u"Name", [](const Call&) -> Value { return Text(u"Outlook"); }),
    method(u"Version", [](const Call& call) -> Value { return call.client.host().version; }),
    method(u"Explorers",
           [](const Call& call) -> Value { return call.client.hand_out(call.client.explorers()); }),
    method(u"Inspectors",
           [](const Call& call) -> Value { return call.client.hand_out(call.client.inspectors()); }),
    method(u"ActiveExplorer", active_explorer),
    method(u"CreateItem", create_item, 1, 1),
    method(u"GetNamespace", name_space, 1, 1),
    method(u"Session", fresh<NameSpaceNode>),
};

constexpr MemberRow explorers_members[] = {
    method(u"Count",
           [](const Call& call) -> Value {
               return static_cast<std::int32_t>(call.client.open_explorers().size());
           }),
    method(
        u"Item",
        [](const Call& call) -> Value {
            auto open = call.client.open_explorers();
            return call.client.hand_out(entry_at(open, call.number(0)));
        },
        1, 1),
};

constexpr MemberRow inspectors_members[] = {
    method(u"Count",
           [](const Call& call) -> Value {
               return static_cast<std::int32_t>(call.client.open_windows().size());
           }),
    method(
        u"Item",
        [](const Call& call) -> Value {
            auto open = call.client.open_windows();
            return call.client.hand_out(entry_at(open, call.number(0)));
        },
        1, 1),
};

constexpr MemberRow explorer_members[] = {
    method(u"CommandBars",
           [](const Call& call) -> Value {
               const bool has_it = !explorers_have_the_ribbon(call.client.host());
               return call.client.hand_out(
                   std::make_shared<BarsNode>(has_it ? call.client.standard_bar : nullptr));
           }),
};

Value current_user(const Call& call) {
    const Host& host = call.client.host();
    RecipientEntry user;
    user.name = host.user_name;
    user.address = host.user_address;
    return call.client.hand_out(std::make_shared<RecipientNode>(std::move(user)));
}

Value default_folder(const Call& call) {
    constexpr std::int32_t calendar = 9;
    if (call.number(0) != calendar) throw host::Error(u"Could not complete the operation.");
    return fresh<CalendarFolderNode>(call);
}

constexpr MemberRow name_space_members[] = {
    method(u"CurrentUser", current_user),
    method(u"GetDefaultFolder", default_folder, 1, 1),
};

Value add_page(const Call& call) {
    call.client.take_page(host::as_object(call.arguments[0]), call.given(1) ? call.text(1) : Text());
    return {};
}

constexpr MemberRow pages_members[] = {
    method(u"Add", add_page, 1, 2),
    method(u"Count",
           [](const Call& call) -> Value { return static_cast<std::int32_t>(call.client.pages.size()); }),
};

Value open_connection(const Call& call) {
    auto& connection = call.as<ConnectionNode>();
    if (connection.is_open) throw host::Error(u"Operation is not allowed when the object is open.");
    connection.opened_with = call.given(0) ? call.text(0) : Text();
    connection.is_open = true;
    connection.closed = false;
    call.client.connections.push_back(
        std::static_pointer_cast<ConnectionNode>(connection.shared_from_this()));
    return {};
}

void must_be_open(const ConnectionNode& connection) {
    if (!connection.is_open) throw host::Error(u"Operation is not allowed when the object is closed.");
}

Value execute(const Call& call) {
    must_be_open(call.as<ConnectionNode>());
    call.client.statements.push_back(call.text(0));
    return host::ObjectPtr();
}

Value close_connection(const Call& call) {
    auto& connection = call.as<ConnectionNode>();
    must_be_open(connection);
    connection.is_open = false;
    connection.closed = true;
    return {};
}

constexpr MemberRow connection_members[] = {
    method(u"Open", open_connection, 0, 4),
    method(u"Execute", execute, 1, 3),
    method(u"Close", close_connection),
};

} // namespace

const Class& ApplicationNode::what() const {
    static constexpr Class table{u"Application", application_members, host::EventSource::application};
    return table;
}
const Class& ExplorersNode::what() const {
    static constexpr Class table{u"Explorers", explorers_members, host::EventSource::explorers};
    return table;
}
const Class& InspectorsNode::what() const {
    static constexpr Class table{u"Inspectors", inspectors_members, host::EventSource::inspectors};
    return table;
}
const Class& ExplorerNode::what() const {
    static constexpr Class table{u"Explorer", explorer_members, host::EventSource::explorer};
    return table;
}
const Class& NameSpaceNode::what() const {
    static constexpr Class table{u"NameSpace", name_space_members};
    return table;
}
const Class& PropertyPagesNode::what() const {
    static constexpr Class table{u"PropertyPages", pages_members};
    return table;
}
const Class& OptionsPageNode::what() const {
    static constexpr Class table{u"PropPage", {}};
    return table;
}
const Class& ConnectionNode::what() const {
    static constexpr Class table{u"Connection", connection_members};
    return table;
}

} // namespace ornavel::rehearsal
