#include "rehearsal/model/mail_client.h"

#include "rehearsal/model/application.h"
#include "rehearsal/model/browser.h"
#include "rehearsal/model/file_system.h"
#include "rehearsal/model/handle.h"
#include "rehearsal/model/registry_provider.h"
#include "rehearsal/turn.h"

#include <algorithm>
#include <utility>

namespace ornavel::rehearsal {
namespace {

using host::Value;

struct Creatable {
    TextView prog_id;
    NodePtr (*make)();
};

template <class Kind>
NodePtr make() {
    return std::make_shared<Kind>();
}

constexpr Creatable creatables[] = {
    {u"Redemption.SafeMailItem", make<SafeMailItemNode>},
    {u"BrevantPage.PropPage", make<OptionsPageNode>},
    {u"ADODB.Connection", make<ConnectionNode>},
    {u"InternetExplorer.Application", make<BrowserNode>},
    {u"Scripting.FileSystemObject", make<FileSystemNode>},
};

} // namespace

bool Call::given(std::size_t index) const {
    return index < arguments.size() && !std::holds_alternative<host::Omitted>(arguments[index]);
}

MailClient::MailClient(const Scenario& scenario, Machine& machine, Failures& failures, Journal& journal)
    : standard_bar(std::make_shared<BarNode>()), scenario_(scenario), machine_(machine), failures_(failures),
      journal_(journal), application_(std::make_shared<ApplicationNode>()),
      explorers_node_(std::make_shared<ExplorersNode>()),
      inspectors_node_(std::make_shared<InspectorsNode>()) {
    for (const auto& item : scenario.items) items.push_back(std::make_shared<MailItemNode>(item));
    add_explorers(scenario.host.explorers);
}

host::ObjectPtr MailClient::create(TextView prog_id) {
    const MachinesTurn turn;
    return journal_.note_use(Deed::call, u"CreateObject", prog_id, [&] {
        failures_.use(Failing::Kind::creation, prog_id);
        const auto entry =
            std::find_if(std::begin(creatables), std::end(creatables),
                         [&](const Creatable& candidate) { return same_name(candidate.prog_id, prog_id); });
        const bool is_itself = same_name(prog_id, u"Outlook.Application");
        if ((entry == std::end(creatables) && !is_itself) || !can_be_created(host(), prog_id))
            throw host::Error(u"ActiveX component can't create object");
        return hand_out(is_itself ? application_ : entry->make());
    });
}

host::ObjectPtr MailClient::get(TextView moniker) {
    const MachinesTurn turn;
    return journal_.note_use(Deed::call, u"GetObject", moniker, [&] {
        failures_.use(Failing::Kind::creation, moniker);
        const bool provider =
            moniker.starts_with(u"winmgmts:") && moniker.ends_with(u"\\root\\default:StdRegProv");
        if (!provider || !can_be_created(host(), u"winmgmts"))
            throw host::Error(u"ActiveX component can't create object");
        return hand_out(std::make_shared<RegistryProviderNode>());
    });
}

Value MailClient::given(Value value) {
    return failures_.given(std::move(value), [&] { return Value(hand_out(application_)); });
}

host::ObjectPtr MailClient::hand_out(NodePtr node) {
    return std::make_shared<Handle>(*this, std::move(node));
}

host::ObjectPtr MailClient::application() { return hand_out(application_); }

bool MailClient::send(MailItemNode& item) {
    Value arguments[] = {hand_out(item.shared_from_this()), false};
    raise_event(*this, *application_, u"ItemSend", arguments);
    item.cancelled = host::as_flag(arguments[1]);
    item.sent = !item.cancelled;
    if (item.sent && open_document_ == &item) close_documents(); // the message's window goes with its editor
    if (const auto window = item.sent ? window_of(item) : nullptr) close_window(window);
    return item.cancelled;
}

void MailClient::open_document(const MailItemNode& item, const Text& path, const std::string& text) {
    if (open_document_ && open_document_ != &item)
        throw host::Error(u"Word cannot give a document the same name as an open document");
    machine_.let_go();
    machine_.files().write(path, text);
    machine_.hold(path);
    open_document_ = &item;
}

void MailClient::close_documents() {
    machine_.let_go();
    open_document_ = nullptr;
}

void MailClient::send_silently(MailItemNode& item) {
    item.cancelled = false;
    item.sent = true;
}

void MailClient::click(ButtonNode& button) {
    Value arguments[] = {hand_out(button.shared_from_this()), false};
    raise_event(*this, button, u"Click", arguments);
}

InspectorNode& MailClient::open_window(const std::shared_ptr<MailItemNode>& item) {
    auto window = window_of(*item);
    if (!window) {
        window = windows_.emplace_back(std::make_shared<InspectorNode>(item));
        Value arguments[] = {hand_out(window)};
        raise_event(*this, *inspectors_node_, u"NewInspector", arguments);
        ribbons_.open(window);
    }
    window->activated = true;
    raise_event(*this, *window, u"Activate");
    return *window;
}

std::shared_ptr<InspectorNode> MailClient::window_of(const MailItemNode& item) const {
    const auto found =
        std::ranges::find_if(windows_, [&](const auto& window) { return window->item.get() == &item; });
    return found == windows_.end() ? nullptr : *found;
}

/// It counts until its Close event has ended, as an explorer does.
void MailClient::close_window(const std::shared_ptr<InspectorNode>& window) {
    raise_event(*this, *window, u"Close");
    window->gone = true;
    ribbons_.close(*window);
    std::erase(windows_, window);
}

host::ObjectPtr MailClient::ask_for_pages() {
    Value arguments[] = {hand_out(std::make_shared<PropertyPagesNode>())};
    raise_event(*this, *application_, u"OptionsPagesAdd", arguments);
    return std::exchange(page_, nullptr);
}

void MailClient::take_page(host::ObjectPtr page, Text title) {
    page_ = std::move(page);
    pages.push_back(std::move(title));
}

void MailClient::add_explorers(int count) {
    for (int made = 0; made < count; ++made) {
        if (open_explorers().empty()) active_ = explorers_.size();
        const auto& explorer = explorers_.emplace_back(std::make_shared<ExplorerNode>());
        Value arguments[] = {hand_out(explorer)};
        raise_event(*this, *explorers_node_, u"NewExplorer", arguments);
        ribbons_.load_explorers();
    }
}

void MailClient::close_explorer(int number) {
    const auto index = static_cast<std::size_t>(number);
    const auto closing = explorers_.at(index);
    raise_event(*this, *closing, u"Close");
    closing->gone = true;
    if (index != active_) return;
    const auto next = std::ranges::find_if(explorers_, [](const auto& explorer) { return !explorer->gone; });
    active_ = static_cast<std::size_t>(next - explorers_.begin());
}

std::vector<std::shared_ptr<ExplorerNode>> MailClient::open_explorers() const {
    std::vector<std::shared_ptr<ExplorerNode>> open;
    for (const auto& explorer : explorers_)
        if (!explorer->gone) open.push_back(explorer);
    return open;
}

std::shared_ptr<ExplorerNode> MailClient::active_explorer() const {
    if (active_ >= explorers_.size() || explorers_[active_]->gone) return nullptr;
    return explorers_[active_];
}

} // namespace ornavel::rehearsal
