#include "rehearsal/model/word.h"

#include "base/encoding.h"
#include "rehearsal/model/mail_client.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

WordDocument document_of(const PartOfItem& part) { return part.item->word.value_or(WordDocument{}); }

/// The pictures go into a folder beside the file.
Value save_as(const Call& call) {
    const auto& document = call.as<DocumentNode>();
    const Text path = call.text(0), folder = path.substr(0, path.find_last_of(u'.')) + u"_files";
    call.client.open_document(*document.item, path, to_utf8(document_of(document).html));
    call.client.machine().files().create_folder(folder);
    call.client.machine().files().write(folder + u"\\filelist.xml", "<xml/>\r\n");
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
