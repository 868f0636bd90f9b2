#pragma once

#include "rehearsal/model/custom_ui.h"
#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

struct InspectorNode;

/// How the mail client reaches an add-in that customizes the ribbon. What it throws has reached the mail
/// client.
class RibbonAddIn {
public:
    virtual ~RibbonAddIn() = default;
    /// The markup for one kind of window; empty where the add-in has nothing for it.
    virtual Text custom_ui(TextView ribbon_id) = 0;
    /// Runs one of its callbacks by the name that its markup gives, with one argument.
    virtual host::Value run_callback(const Text& name, const host::ObjectPtr& argument) = 0;
};

/// The ribbon of one kind of window, as the add-in gets it.
struct RibbonUINode final : Node {
    const Class& what() const override;
    bool is_invalid = false; ///< what was asked for is to be asked for again
};

/// A control as its callbacks get it, in one window.
struct RibbonControlNode final : Node {
    const Class& what() const override;
    Text id, tag;
    NodePtr window;
};

/// A control as one window shows it.
struct ShownControl {
    Text id, tag, label, picture, on_action;
    bool is_visible = true, is_button = false;
};

/// The ribbons of all windows. The add-in is asked for what they show when a window comes up, and again only
/// after it has invalidated them; then not at once, but when the mail client comes to draw.
class Ribbons {
public:
    explicit Ribbons(MailClient& client) : client_(client) {}

    /// From now on this add-in is asked, until it is let go.
    void serve(RibbonAddIn& addin) { addin_ = &addin; }
    /// The explorers' ribbon is loaded, unless it is already or no explorer is open.
    void load_explorers();
    /// A message's window comes up. The first one of its kind loads their ribbon.
    void open(const std::shared_ptr<InspectorNode>& window);
    void close(const Node& window);
    /// Asks again for what has been invalidated.
    void draw();
    /// The add-in is gone. What the explorers show stays until the mail client ends, but not after a user's
    /// unload.
    void let_go(bool by_the_user);

    /// The buttons that a user can see: those of the explorers, then those of each message window.
    std::vector<ShownControl> shown() const;
    /// Presses a button in one window, or in whatever window shows it first. False where no user can see it.
    bool click(TextView tag, const Node* window = nullptr);

private:
    /// One kind of window.
    struct Ribbon {
        Text id;
        CustomUI ui;
        std::shared_ptr<RibbonUINode> node;
    };
    /// One window; for the explorers there is one that stands for all of them.
    struct Shown {
        Text ribbon_id;
        std::weak_ptr<InspectorNode> window;
        std::vector<ShownControl> controls;
    };

    Ribbon* find(TextView id);
    Ribbon* load(const Text& id);
    void ask(Shown& shown, const Ribbon& ribbon);
    void ask(ShownControl& shown, const CustomControl& control, const NodePtr& window);
    host::Value run(const Text& callback, const NodePtr& argument);
    host::Value run(const Text& callback, const Text& id, const Text& tag, const NodePtr& window);
    NodePtr window_of(const Shown& shown) const;

    MailClient& client_;
    RibbonAddIn* addin_ = nullptr;
    std::vector<Ribbon> ribbons_;
    std::vector<Shown> windows_;
};

} // namespace ornavel::rehearsal
