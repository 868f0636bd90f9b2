#pragma once

#include "rehearsal/failures.h"
#include "rehearsal/journal.h"
#include "rehearsal/machine.h"
#include "rehearsal/model/items.h"
#include "rehearsal/model/ribbon.h"
#include "rehearsal/model/toolbars.h"
#include "rehearsal/references.h"

namespace ornavel::rehearsal {

struct ApplicationNode;
struct ExplorersNode;
struct InspectorsNode;
struct ExplorerNode;
struct ConnectionNode;

/// The stand-in mail client: its items, windows and toolbars, and whatever else can be created by name. The
/// rehearsal works on its nodes; the add-in gets counted handles.
class MailClient final : public host::Objects {
public:
    MailClient(const Scenario& scenario, Machine& machine, Failures& failures, Journal& journal);

    host::ObjectPtr create(TextView prog_id) override;
    host::ObjectPtr get(TextView moniker) override;

    /// A new handle, to be given to the add-in.
    host::ObjectPtr hand_out(NodePtr node);
    host::ObjectPtr application();

    /// Raises ItemSend for the item and lets it go unless it is cancelled; its window closes then. Returns
    /// whether it was.
    bool send(MailItemNode& item);
    /// Sends without telling anyone.
    void send_silently(MailItemNode& item);
    void click(ButtonNode& button);
    /// The Options dialog asks for pages. Gives the one that was added; nothing where there is none.
    host::ObjectPtr ask_for_pages();
    void take_page(host::ObjectPtr page, Text title);
    /// Each tells the explorers' listeners.
    void add_explorers(int count);
    /// Raises Close while the window still counts among the explorers and, when it was the active one, still
    /// is; then it is gone.
    void close_explorer(int number);

    /// Opens the item's window and tells the windows' listeners, then brings it to the front; one that is
    /// open only comes to the front.
    InspectorNode& open_window(const std::shared_ptr<MailItemNode>& item);
    /// Null where the item has no window.
    std::shared_ptr<InspectorNode> window_of(const MailItemNode& item) const;
    const std::vector<std::shared_ptr<InspectorNode>>& open_windows() const { return windows_; }
    const std::shared_ptr<InspectorsNode>& inspectors() const { return inspectors_node_; }

    std::vector<std::shared_ptr<ExplorerNode>> open_explorers() const;
    std::shared_ptr<ExplorerNode> active_explorer() const;
    const std::shared_ptr<ExplorersNode>& explorers() const { return explorers_node_; }

    /// What happens from now on belongs to the act with this index.
    void begin_act(std::size_t act) {
        journal_.begin_act(act);
        failures_.begin_act(act);
    }
    void count_use(TextView member) { failures_.use(Failing::Kind::member, member); }
    /// What the add-in gets of a member that was just used: its value, unless a planted fault changes it.
    host::Value given(host::Value value);
    Journal& journal() { return journal_; }
    Machine& machine() { return machine_; }

    /// The item's editor saves its document under a name, and keeps that file open until the item is sent or
    /// the documents are closed. Only one document at a time can have a name.
    void open_document(const MailItemNode& item, const Text& path, const std::string& text);
    void close_documents();
    const Host& host() const { return scenario_.host; }
    Ribbons& ribbons() { return ribbons_; }
    const std::shared_ptr<References>& references() { return references_; }

    std::vector<std::shared_ptr<MailItemNode>> items;
    std::shared_ptr<BarNode> standard_bar; ///< one for all explorer windows
    bool program_runs = false;             ///< what is made now one of the add-in's programs makes
    std::vector<std::shared_ptr<MailItemNode>> sent_mails; ///< that the add-in or a program made itself
    std::vector<Text> pages, statements;
    std::vector<std::shared_ptr<ConnectionNode>> connections;
    Json browser = Json::array();

private:
    void close_window(const std::shared_ptr<InspectorNode>& window);

    const Scenario& scenario_;
    Machine& machine_;
    const MailItemNode* open_document_ = nullptr; ///< the item whose document has a file open
    Failures& failures_;
    Journal& journal_;
    std::shared_ptr<References> references_ = std::make_shared<References>();
    std::shared_ptr<ApplicationNode> application_;
    std::shared_ptr<ExplorersNode> explorers_node_;
    std::vector<std::shared_ptr<ExplorerNode>> explorers_;
    std::shared_ptr<InspectorsNode> inspectors_node_;
    std::vector<std::shared_ptr<InspectorNode>>
        windows_; ///< of items, in the order in which they were opened
    std::size_t active_ = 0;
    Ribbons ribbons_{*this};
    host::ObjectPtr page_; ///< while the Options dialog asks
};

} // namespace ornavel::rehearsal
