#include "connect/reasons.h"
#include "connect/send_pipeline.h"
#include "workbench/log_reader.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

using connect::GateRecords;

/// Which gates leave a record although they are switched off, or none although they are passed.
bool may_be_silent(const GateRecords& gate) {
    return gate.passed.front().empty() || gate.gate == u"personal stationery" || gate.gate == u"quote";
}

TextView began(TextView gate) {
    if (gate == u"composition") return connect::composition_began;
    if (gate == u"other modes") return connect::other_mode_began;
    return gate == u"internal mail" ? connect::reply_was_tested : TextView();
}

/// Walks the gates along the records.
class Walk {
public:
    explicit Walk(const LoggedSend& send) : send_(send) {}

    Way run() {
        const auto gates = connect::gate_records();
        const auto first = std::ranges::find(gates, connect::pipeline_began,
                                             [](const GateRecords& gate) { return gate.passed.front(); });
        std::size_t last = static_cast<std::size_t>(first - gates.begin());
        for (std::size_t at = last; at < gates.size() && next_ < send_.records.size(); ++at)
            if (take(gates[at])) last = at;
        if (send_.marker_loaded) last = std::max(last, index_of(gates, u"reply marker"));
        leave(gates, last);
        return std::move(way_);
    }

private:
    static std::size_t index_of(const std::vector<GateRecords>& gates, TextView name) {
        return static_cast<std::size_t>(std::ranges::find(gates, name, &GateRecords::gate) - gates.begin());
    }

    bool is_next(TextView label) const {
        return next_ < send_.records.size() && send_.records[next_] == label;
    }

    /// Whether the gate was passed, or reached so that it must have decided.
    bool take(const GateRecords& gate) {
        if (const TextView label = began(gate.gate); !label.empty() && is_next(label)) {
            ++next_;
            reached_ = gate.gate;
            while (gate.gate == u"other modes" && next_ < send_.records.size()) ++next_;
        }
        if (gate.passed.front().empty() || !is_next(gate.passed.front())) return false;
        for (const TextView label : gate.passed)
            if (!label.empty() && is_next(label)) ++next_;
        reached_ = {};
        way_.passed.emplace_back(gate.gate);
        return true;
    }

    void leave(const std::vector<GateRecords>& gates, std::size_t last) {
        if (send_.error_gate) {
            way_.remark = u"an error at “" + *send_.error_gate + u"” ended Ornavel's part: " + send_.error;
            return;
        }
        if (gates[last].gate == u"composition") {
            way_.dressed = true;
            return;
        }
        if (gates[last].gate == u"auto preview" && reached_.empty()) {
            way_.remark = u"the user chose Send Plain in the preview, so it left undressed";
            return;
        }
        if (!reached_.empty()) return add(reached_);
        for (std::size_t at = last + 1; at < gates.size(); ++at) {
            add(gates[at].gate);
            if (!may_be_silent(gates[at])) break;
        }
    }

    void add(TextView gate) {
        for (const connect::Reason& reason : connect::reasons())
            if (reason.gate == gate)
                way_.left.push_back({Text(gate), Text(reason.without),
                                     reason.setting
                                         ? Text(reason.setting->section) + u" / " + Text(reason.setting->name)
                                         : Text()});
    }

    const LoggedSend& send_;
    std::size_t next_ = 0;
    TextView reached_;
    Way way_;
};

} // namespace

Way way_of(const LoggedSend& send) {
    if (send.resend_gate.empty()) return Walk(send).run();
    Way way;
    for (const connect::Reason& reason : connect::reasons())
        if (reason.gate == send.resend_gate)
            way.left.push_back({send.resend_gate, Text(reason.without),
                                Text(reason.setting->section) + u" / " + Text(reason.setting->name)});
    if (send.error_gate)
        way.left.clear(), way.remark = u"an error at “" + *send.error_gate + u"”: " + send.error;
    return way;
}

} // namespace ornavel::workbench
