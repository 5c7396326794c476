// SPDX-License-Identifier: GPL-3.0-or-later
// A file of its own: where a compiler sees both these operators and their callers, it warns that
// memory of new is given to free.
#include "hydraulics/allocations.h"

#include <cstdlib>
#include <new>

namespace {
long allocations = 0;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
}  // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc): where the memory of a program comes from
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc)

long idrova::Allocations() {
    return allocations;
}
