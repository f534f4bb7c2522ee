#include "tests/Allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

unsigned long made = 0;
long live = 0;
unsigned int before_failure = 0;  // 0: none fails
bool fails_behind = false;
bool failed = false;

bool fails_now() {
    if (before_failure == 0) return failed && fails_behind;
    if (--before_failure > 0) return false;
    failed = true;
    return true;
}

}  // namespace

unsigned long allocations() { return made; }

long live_allocations() { return live; }

void fail_allocation(unsigned int n, bool all_behind) {
    failed = false;
    before_failure = n;
    fails_behind = all_behind;
}

bool stop_failing() {
    before_failure = 0;
    fails_behind = false;
    return failed;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    void* const memory = fails_now() ? nullptr : std::malloc(size);
    if (memory) {
        ++made;
        ++live;
    }
    return memory;
}

void* operator new(std::size_t size) {
    if (void* const memory = operator new(size, std::nothrow)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    if (memory) --live;
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
