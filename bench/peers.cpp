#include "bench/peers.h"

#include "base/encoding.h"
#include "bench/harness.h"
#include "tests/compose/plain_passes.h"

#include <cstdio>
#include <cstdlib>

#ifdef ORNAVEL_WITH_ABSEIL
#include <absl/strings/str_replace.h>
#endif

namespace ornavel::bench {
namespace {

struct Process {
    const char* name;
    std::string script;
    const char* command;
};

std::string escaped(TextView text, std::string_view special) {
    std::string result;
    for (const char unit : to_utf8(text)) {
        if (special.find(unit) != std::string_view::npos) result += '\\';
        result += unit;
    }
    return result;
}

std::string perl_script(std::span<const compose::Pass> passes) {
    std::string script = "local $/; $_ = <STDIN>;\n";
    for (const compose::Pass& pass : passes)
        script += "{ my $r = '" + escaped(pass.replacement, "'\\") + "'; s{\\Q" +
                  escaped(pass.search, "@$\\{}") + "\\E}{$r}g; }\n";
    return script + "print;\n";
}

std::string sed_script(std::span<const compose::Pass> passes) {
    std::string script;
    for (const compose::Pass& pass : passes)
        script += "s|" + escaped(pass.search, "[]*.^$\\|") + "|" + escaped(pass.replacement, "&\\|") + "|g\n";
    return script;
}

void write_file(const std::string& path, const std::string& bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) std::abort();
    std::fclose(file);
}

std::string read_file(const std::string& path) {
    std::string bytes;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) std::abort();
    char buffer[65536];
    for (std::size_t size; (size = std::fread(buffer, 1, sizeof buffer, file)) != 0;)
        bytes.append(buffer, size);
    std::fclose(file);
    return bytes;
}

void print_process(const Process& process, const std::string& folder, const std::string& expected,
                   double our_seconds) {
    write_file(folder + "/script", process.script);
    const std::string command = std::string(process.command) + " " + folder + "/script < " + folder +
                                "/body > " + folder + "/" + process.name;
    const Run run = [&] {
        return seconds([&] {
            if (std::system(command.c_str()) != 0) std::abort();
        });
    };
    const double time = medians({&run, 1}, 3)[0];
    if (read_file(folder + "/" + process.name) != expected) std::abort();
    print_row((std::string("  ") + process.name + ", a whole process").c_str(), time / our_seconds,
              "x slower", 0);
}

#ifdef ORNAVEL_WITH_ABSEIL
void print_abseil(const std::string& body, std::span<const compose::Pass> passes, const std::string& expected,
                  double our_seconds) {
    std::string text = body;
    const double time = seconds([&] {
        for (const compose::Pass& pass : passes)
            absl::StrReplaceAll({{to_utf8(pass.search), to_utf8(pass.replacement)}}, &text);
    });
    if (text != expected) std::abort();
    print_row("  Abseil's StrReplaceAll, a call for each pass", time / our_seconds, "x slower", 0);
}
#endif

} // namespace

void print_peers(const Text& body, std::span<const compose::Pass> passes, double our_seconds) {
    char folder[] = "/tmp/ornavel-bench-XXXXXX";
    if (mkdtemp(folder) == nullptr) std::abort();
    const std::string bytes = to_utf8(body), expected = to_utf8(compose::plain_passes(body, passes));
    write_file(std::string(folder) + "/body", bytes);
    print_process({"perl", perl_script(passes), "perl"}, folder, expected, our_seconds);
    print_process({"sed", sed_script(passes), "sed -f"}, folder, expected, our_seconds);
#ifdef ORNAVEL_WITH_ABSEIL
    print_abseil(bytes, passes, expected, our_seconds);
#endif
    for (const char* name : {"/body", "/script", "/perl", "/sed", ""})
        std::remove((folder + std::string(name)).c_str());
}

} // namespace ornavel::bench
