#include "base/encoding.h"
#include "fuzz/input.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "workbench/lint/linter.h"

namespace {

using namespace ornavel;
using namespace ornavel::workbench;

constexpr TextView pieces[] = {u"[#Input your message here#]",
                               u"[#SigFax#]",
                               u"[#",
                               u"#]",
                               u"<br>",
                               u"<!--",
                               u"-->",
                               u"<style>",
                               u"</style>",
                               u"<script>",
                               u"</script>",
                               u"<img src=",
                               u"<table>",
                               u"<p title=\"",
                               u"<meta content=\"charset=utf-8\">",
                               u"<BLOCKQUOTE>",
                               u"Fax: ",
                               u"&nbsp;"};

} // namespace

// Whatever a page is, each finding stands in it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string page = to_utf8(fuzz::Input(bytes, size).text(pieces));
    MemoryFiles disk;
    disk.contents[u"C:\\t.htm"] = page;
    const Drives drives(disk);
    const FixedClock clock;
    settings::MemoryStore store;
    for (const auto* key : {&settings::admin::WipeoutHTML, &settings::admin::WipeOutFontControl,
                            &settings::user::WipeoutDivTag, &settings::admin::WipeoutHardRule})
        settings::save(store, *key, settings::on);
    const Ground ground{nullptr, store, drives, clock};
    const std::size_t lines = lines_of(from_utf8(page)).size() + 1;
    for (const Role role : {Role::letterhead, Role::signature, Role::boilerplate})
        for (const Finding& finding : lint_file(ground, u"C:\\t.htm", page, role))
            fuzz::require(finding.at.line >= 1 && finding.at.line <= lines && finding.at.column >= 1);
    return 0;
}
