#include "base/errors.h"
#include "workbench/diagnosis.h"

namespace ornavel::workbench {

std::vector<Diagnosis> examine() {
    throw Failure(u"The doctor looks at a Windows machine: run ornavel.exe there");
}

} // namespace ornavel::workbench
