// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "calc/run.h"

int main(int argc, char** argv) {
    using namespace idrova;
    const auto parsed = ParseOptions(argc, argv, std::cout, std::cerr);
    if (const int* status = std::get_if<int>(&parsed)) return *status;
    return static_cast<int>(RunProjects(std::get<Options>(parsed), std::cout, std::cerr));
}
