#include <cstddef>
#include <cstdlib>
#include <new>

#include "memory.h"

// Plain new of the whole program, the standard library's too, runs out of memory like all else.

static void* taken(std::size_t size) {
    if (void* const block = std::malloc(size ? size : 1)) return block; // counted there
    throw std::bad_alloc();
}

void* operator new(std::size_t size) { return taken(size); }
void* operator new[](std::size_t size) { return taken(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return std::malloc(size ? size : 1); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size ? size : 1);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
