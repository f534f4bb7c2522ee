#include "bench/Allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

unsigned long count = 0;

}  // namespace

unsigned long allocations() { return count; }

// The library's allocations come here too.
void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
