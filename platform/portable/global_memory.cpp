#include "global_memory.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>

#include "text/guarded.h"

namespace platform {

struct Block {
    SIZE_T size = 0;
    bool fixed = false;
    int locks = 0;
};

// The live blocks by their handle, which is the address.
struct Blocks {
    std::mutex mutex;
    std::map<HGLOBAL, Block> live;
};

static Blocks& blocks() {
    static auto& all = *new Blocks;
    return all;
}

// Does that to the live block of the handle; without one the answer is `otherwise`.
template <class Result, class Action>
static Result with_block(HGLOBAL handle, Result otherwise, Action action) {
    std::lock_guard<std::mutex> guard(blocks().mutex);
    const auto found = blocks().live.find(handle);
    return found == blocks().live.end() ? otherwise : action(found);
}

} // namespace platform

using namespace platform;

extern "C" {

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size) {
    std::unique_ptr<void, void (*)(void*)> memory(std::calloc(std::max<SIZE_T>(size, 1), 1), std::free);
    if (!memory) return nullptr;
    std::lock_guard<std::mutex> guard(blocks().mutex);
    return text::guarded<HGLOBAL>(nullptr, [&] {
        blocks().live[memory.get()] = {size, !(flags & GMEM_MOVEABLE), 0};
        return memory.release();
    });
}

LPVOID GlobalLock(HGLOBAL handle) {
    return with_block<LPVOID>(handle, nullptr, [](auto block) {
        block->second.locks++;
        return block->first;
    });
}

BOOL GlobalUnlock(HGLOBAL handle) {
    return with_block<BOOL>(handle, FALSE, [](auto block) -> BOOL {
        if (block->second.fixed) return TRUE; // holding such a one changes nothing
        if (block->second.locks == 0) return FALSE;
        return --block->second.locks > 0;
    });
}

SIZE_T GlobalSize(HGLOBAL handle) {
    return with_block<SIZE_T>(handle, 0, [](auto block) { return block->second.size; });
}

HGLOBAL GlobalFree(HGLOBAL handle) {
    return with_block<HGLOBAL>(handle, handle, [](auto block) -> HGLOBAL {
        std::free(block->first);
        blocks().live.erase(block);
        return nullptr;
    });
}
}
