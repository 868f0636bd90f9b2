#include "compose/composer.h"
#include "fuzz/input.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_boxes.h"

// The whole composer on made-up bodies, templates, signatures and switches; or with ORNAVEL_REPLY_CUT replies
// only, whose two parts must be those of the body. Nothing may get out of it.

namespace {

using namespace ornavel;

constexpr TextView pieces[] = {u"[#Input your message here#]",
                               u"-----Original",
                               u"<body>",
                               u"<style>",
                               u"</style>",
                               u"<img alt=>",
                               u"<img>",
                               u"face=",
                               u"<div>",
                               u"</div>",
                               u"BLOCKQUOTE",
                               u"<hr",
                               u"\r\n",
                               u"\t",
                               u"www.a ",
                               u"[#SigFullname#]",
                               u"[#SigFax#]<BR>",
                               u"</script>",
                               u"a",
                               u"<p>"};

struct World {
    settings::MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    ScriptedBoxes boxes;
    PreparedObjects objects;
    RecordingReports reports;
    std::vector<Text> journal;
    std::shared_ptr<RecordingObject> item = std::make_shared<RecordingObject>(journal);
    host::Application application;
    compose::Shared shared;

    Text compose(Text& body) {
        shared.item = host::MailItem(item);
        shared.signature_from_settings = true;
        Text path = u"C:\\temp\\letter.htm";
        return CreateHTMLBody({store, files, clock, boxes, objects, reports, application}, shared, body,
                              path);
    }
};

[[maybe_unused]] void cut_reply(fuzz::Input& input) {
    World world;
    world.shared.reply = true;
    world.shared.reply_marker = u"-----Original";
    world.shared.reply_search_value = to_text(input.byte() % 8);
    world.shared.reply_insert_value = to_text(input.byte() % 32);
    save(world.store, settings::admin::WipeoutBlockquote, u"False");
    save(world.store, settings::admin::WipeoutReplySeparator, u"\x1");
    world.files.contents[u"C:\\temp\\letter.htm"] = "[#Input your message here#]";
    world.item->values[u"HTMLBody"] = Text(u"x");
    constexpr TextView plain[] = {u"-----Original", u"-----Orig", u"-", u"a", u"www.a", u"\r\n"};
    Text body = input.text(plain);
    const Text before = body, result = world.compose(body);
    const auto middle = result.find(u"\r\n<p>\x1");
    fuzz::require(middle != Text::npos && body == before && before.starts_with(result.substr(0, middle)));
    const Text quoted = result.substr(middle + 6);
    fuzz::require(before.ends_with(quoted));
}

[[maybe_unused]] void compose_anything(fuzz::Input& input) {
    World world;
    unsigned bits = input.byte() | input.byte() << 8;
    for (const settings::Key* key :
         {&settings::admin::WipeoutHTML, &settings::admin::WipeOutFontControl, &settings::user::WipeoutDivTag,
          &settings::admin::WipeoutHardRule, &settings::user::InsertDate, &settings::admin::RemoveReplyTags,
          &settings::admin::WipeoutReplyFontSmall, &settings::admin::WipeOutFileCompare}) {
        if (bits & 1) save(world.store, *key, u"True");
        bits >>= 1;
    }
    world.shared.reply = bits & 1;
    world.shared.reply_marker = u"-----Original";
    world.shared.script_check_suppressed = bits & 2;
    world.shared.usage_log.enabled = bits & 4;
    if (bits & 8) save(world.store, settings::user::Signature, u"jo.htm");
    if (bits & 16) save(world.store, settings::admin::Marketing, u"Enterprise");
    save(world.store, settings::admin::WipeoutHTMLBeginTag, input.text(pieces));
    world.files.contents[u"C:\\temp\\letter.htm"] = to_utf8(input.text(pieces));
    world.files.contents[u"C:\\temp\\jo.htm"] = to_utf8(input.text(pieces));
    world.item->values[u"HTMLBody"] = input.text(pieces);
    Text body = input.text(pieces);
    world.compose(body);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
#ifdef ORNAVEL_REPLY_CUT
    cut_reply(input);
#else
    compose_anything(input);
#endif
    return 0;
}
