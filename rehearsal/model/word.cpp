#include "rehearsal/model/word.h"

#include "base/encoding.h"
#include "rehearsal/model/mail_client.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

WordDocument document_of(const PartOfItem& part) { return part.item->word.value_or(WordDocument{}); }

Value save_as(const Call& call) {
    call.client.machine().files().write(call.text(0), to_utf8(document_of(call.as<DocumentNode>()).html));
    return {};
}

Value word(const Call& call) {
    return call.client.hand_out(std::make_shared<WordApplicationNode>(call.as<DocumentNode>().item));
}

constexpr MemberRow document_members[] = {
    method(u"Content",
           [](const Call& call) -> Value { return call.client.hand_out(std::make_shared<RangeNode>()); }),
    method(u"Application", word),
    method(u"SaveAs", save_as, 1, 11),
};

constexpr MemberRow range_members[] = {method(u"Copy", [](const Call&) -> Value { return {}; })};

constexpr MemberRow word_members[] = {
    method(u"Version",
           [](const Call& call) -> Value { return document_of(call.as<WordApplicationNode>()).version; }),
};

} // namespace

const Class& DocumentNode::what() const {
    static constexpr Class table{u"Document", document_members};
    return table;
}
const Class& RangeNode::what() const {
    static constexpr Class table{u"Range", range_members};
    return table;
}
const Class& WordApplicationNode::what() const {
    static constexpr Class table{u"WordApplication", word_members};
    return table;
}

} // namespace ornavel::rehearsal
