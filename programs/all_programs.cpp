#include "programs/all_programs.h"

#include "programs/options_assistant/options_assistant.h"
#include "programs/site_assistant/site_assistant.h"

namespace ornavel::programs {
namespace {

constexpr const Program* all[] = {&site_assistant, &options_assistant};

} // namespace

const Program* find_program(TextView file) {
    for (const Program* program : all)
        if (same_name(program->file, file) || same_name(program->file, Text(file) + u".exe")) return program;
    return nullptr;
}

} // namespace ornavel::programs
