#include "memory.h"

#include <cstddef>
#include <new>

namespace memory {

static int countdown = 0; // calls left until the failing one; 0: not armed
static bool go_on = false, failed = false;

static bool fails() {
    if (failed && go_on) return true;
    if (countdown == 0 || --countdown > 0) return false;
    return failed = true;
}

Failing::Failing(int nth, bool from_then_on) {
    countdown = nth;
    go_on = from_then_on;
    failed = false;
}
Failing::~Failing() {
    countdown = 0;
    go_on = failed = false;
}
bool Failing::happened() const { return failed; }

#ifdef _WIN32
// The runtime is linked into the program there, so blocks of the test itself would fail as well.
bool can_fail() { return false; }
#else
bool can_fail() { return true; }
#endif

} // namespace memory

// A machine that overcommits would grant a face of 16 gigabytes and die of painting it.
static constexpr std::size_t kMost = std::size_t{256} << 20;

extern "C" {
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);

void* __wrap_malloc(std::size_t size) {
    return memory::fails() || size > kMost ? nullptr : __real_malloc(size);
}
void* __wrap_calloc(std::size_t count, std::size_t size) {
    return memory::fails() || (size && count > kMost / size) ? nullptr : __real_calloc(count, size);
}
void* __wrap_realloc(void* block, std::size_t size) {
    return memory::fails() || size > kMost ? nullptr : __real_realloc(block, size);
}

#ifndef _WIN32
void* __real__ZnwmRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag);
void* __real__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag);

void* __wrap__ZnwmRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag) {
    return memory::fails() || size > kMost ? nullptr : __real__ZnwmRKSt9nothrow_t(size, tag);
}
void* __wrap__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag) {
    return memory::fails() || size > kMost ? nullptr : __real__ZnamRKSt9nothrow_t(size, tag);
}
#endif
}
