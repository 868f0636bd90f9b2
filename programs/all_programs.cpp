#include "programs/all_programs.h"

#include "programs/mass_mailer/mass_mailer.h"
#include "programs/options_assistant/options_assistant.h"
#include "programs/site_assistant/site_assistant.h"

namespace ornavel::programs {
namespace {

constexpr const Program* all[] = {&site_assistant, &options_assistant, &mass_mailer};

} // namespace

const Program* find_program(TextView file) {
    for (const Program* program : all)
        if (same_name(program->file, file) || same_name(program->file, Text(file) + u".exe")) return program;
    return nullptr;
}

} // namespace ornavel::programs
