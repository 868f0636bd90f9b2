#include "bench/composing.h"

#include "bench/bodies.h"

#include <cstdlib>

namespace ornavel::bench {

using namespace settings;

ReplyComposer::ReplyComposer() : item_(std::make_shared<RecordingObject>(journal_)) {
    fill_signature(store_);
    for (const Key& filter :
         {admin::WipeoutHTML, admin::WipeOutFontControl, user::WipeoutDivTag, admin::WipeoutHardRule,
          admin::RemoveReplyTags, admin::WipeoutReplyFontSmall, user::InsertDate})
        save(store_, filter, u"True");
    save(store_, admin::WipeoutHTMLBeginTag, u"<!--");
    save(store_, admin::WipeoutHTMLTagsGroup, u"<script,<object");
    save(store_, user::Signature, u"jo.htm");
    files_.contents[u"C:\\temp\\jo.htm"] = to_utf8(signature());
    files_.contents[u"C:\\temp\\letter.htm"] =
        "<HTML><BODY bgColor=[#SigBGColor#]>[#Input your message here#]</BODY></HTML>";
    item_->values[u"HTMLBody"] = Text(u"<p>");
}

void ReplyComposer::compose(Text body) {
    const host::MailItem item(item_);
    result_ =
        compose::CreateHTMLBody({store_, files_, clock_, boxes_, objects_, reports_, application_, start_up_},
                                {.item = item,
                                 .source = std::move(body),
                                 .template_path = u"C:\\temp\\letter.htm",
                                 .reply = {.found = true, .marker = u"-----Original"}})
            .html;
    if (!reports_.entries.empty()) std::abort();
}

} // namespace ornavel::bench
