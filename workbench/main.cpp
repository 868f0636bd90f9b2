#include "workbench/machine_files.h"
#include "workbench/program.h"

#include <iostream>

int main(int count, char** words) {
    using namespace ornavel::workbench;
    std::ios::sync_with_stdio(false);
    return run(words_of(count, words), {machine_files(), machine_clock(), std::cout, std::cerr});
}
