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
    compose::StartUpValues start_up;
    compose::Reply reply{.marker = u"-----Original"};
    compose::Purpose purpose = compose::Purpose::send;

    /// Forgets what the input before left.
    void clear() {
        journal.clear();
        boxes.shown.clear();
        reports.entries.clear();
        files.contents.clear();
    }

    void set(const settings::Key& key, bool on) { save(store, key, on ? u"True" : u"False"); }

    Text compose(Text body) {
        const host::MailItem mail(item);
        return compose::CreateHTMLBody({store, files, clock, boxes, objects, reports, application, start_up},
                                       {.item = mail,
                                        .source = std::move(body),
                                        .template_path = u"C:\\temp\\letter.htm",
                                        .reply = reply,
                                        .purpose = purpose})
            .html;
    }
};

[[maybe_unused]] void cut_reply(World& world, fuzz::Input& input) {
    world.reply.found = true;
    world.reply.search_offset = input.byte() % 8;
    world.reply.insert_offset = input.byte() % 32;
    save(world.store, settings::admin::WipeoutBlockquote, u"False");
    save(world.store, settings::admin::WipeoutReplySeparator, u"\x1");
    world.files.contents[u"C:\\temp\\letter.htm"] = "[#Input your message here#]";
    world.item->values[u"HTMLBody"] = Text(u"x");
    constexpr TextView plain[] = {u"-----Original", u"-----Orig", u"-", u"a", u"www.a", u"\r\n"};
    const Text before = input.text(plain), result = world.compose(before);
    const auto middle = result.find(u"\r\n<p>\x1");
    fuzz::require(middle != Text::npos && before.starts_with(result.substr(0, middle)));
    const Text quoted = result.substr(middle + 6);
    fuzz::require(before.ends_with(quoted));
}

[[maybe_unused]] void compose_anything(World& world, fuzz::Input& input) {
    unsigned bits = input.byte();
    bits |= input.byte() << 8;
    for (const settings::Key* key :
         {&settings::admin::WipeoutHTML, &settings::admin::WipeOutFontControl, &settings::user::WipeoutDivTag,
          &settings::admin::WipeoutHardRule, &settings::user::InsertDate, &settings::admin::RemoveReplyTags,
          &settings::admin::WipeoutReplyFontSmall, &settings::admin::WipeOutFileCompare}) {
        world.set(*key, bits & 1);
        bits >>= 1;
    }
    world.reply.found = bits & 1;
    world.purpose = bits & 2 ? compose::Purpose::preview : compose::Purpose::send;
    world.start_up.usage_log.enabled = bits & 4;
    save(world.store, settings::user::Signature, bits & 8 ? u"jo.htm" : u"none");
    save(world.store, settings::admin::Marketing, bits & 16 ? u"Enterprise" : u"");
    save(world.store, settings::admin::WipeoutHTMLBeginTag, input.text(pieces));
    world.files.contents[u"C:\\temp\\letter.htm"] = to_utf8(input.text(pieces));
    world.files.contents[u"C:\\temp\\jo.htm"] = to_utf8(input.text(pieces));
    world.item->values[u"HTMLBody"] = input.text(pieces);
    world.compose(input.text(pieces));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static World world;
    world.clear();
    fuzz::Input input(bytes, size);
#ifdef ORNAVEL_REPLY_CUT
    cut_reply(world, input);
#else
    compose_anything(world, input);
#endif
    return 0;
}
