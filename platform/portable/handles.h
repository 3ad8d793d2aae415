#ifndef PLATFORM_PORTABLE_HANDLES_H
#define PLATFORM_PORTABLE_HANDLES_H

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

// Handles are numbers that look like pointers: kind in the low 4 bits, then 16 bits of slot, then the slot's
// generation. A value is never given twice, so a stale or invented handle is told from a live one.
namespace platform {

enum class HandleKind : std::uintptr_t { window = 1, font, pen, brush, context, cursor, icon };

template <class T>
class HandleTable {
  public:
    explicit HandleTable(HandleKind kind) : kind(kind) {}

    // 0 when the table is full.
    std::uintptr_t add(std::unique_ptr<T> object) {
        std::lock_guard<std::mutex> lock(mutex);
        std::size_t index = 0;
        if (!free_slots.empty()) {
            index = free_slots.back();
            free_slots.pop_back();
        } else if (slots.size() < kMost) {
            make_room();
            index = slots.size();
            slots.emplace_back();
        } else {
            return 0;
        }
        slots[index].object = std::move(object);
        return value_of(index);
    }

    T* find(const void* handle) const {
        std::lock_guard<std::mutex> lock(mutex);
        const Slot* slot = slot_of(handle);
        return slot ? slot->object.get() : nullptr;
    }

    bool remove(const void* handle) {
        std::unique_ptr<T> last; // dies outside the lock
        std::lock_guard<std::mutex> lock(mutex);
        Slot* slot = const_cast<Slot*>(slot_of(handle));
        if (!slot) return false;
        last = std::move(slot->object);
        slot->generation++;
        free_slots.push_back(static_cast<std::size_t>(slot - slots.data()));
        return true;
    }

    // The live handles, oldest slot first: the one behind a handle, the first one behind null, and null
    // behind the last one. Meanwhile any object may come or go.
    template <class H>
    H next(H handle) const {
        std::lock_guard<std::mutex> lock(mutex);
        std::size_t i = handle ? index_of(handle) + 1 : 0;
        while (i < slots.size() && !slots[i].object)
            i++;
        return i < slots.size() ? reinterpret_cast<H>(value_of(i)) : nullptr;
    }

  private:
    static constexpr std::size_t kMost = 0x10000;
    struct Slot {
        std::unique_ptr<T> object;
        std::uintptr_t generation = 1;
    };

    std::uintptr_t value_of(std::size_t index) const {
        return slots[index].generation << 20 | index << 4 | static_cast<std::uintptr_t>(kind);
    }
    static std::size_t index_of(const void* handle) {
        return reinterpret_cast<std::uintptr_t>(handle) >> 4 & 0xFFFF;
    }
    // For another slot, and for its number when it is given back: that takes no memory then.
    void make_room() {
        if (slots.size() < slots.capacity()) return;
        const std::size_t room = 2 * slots.size() + 16;
        free_slots.reserve(room);
        slots.reserve(room);
    }
    const Slot* slot_of(const void* handle) const {
        const auto value = reinterpret_cast<std::uintptr_t>(handle);
        const std::size_t index = index_of(handle);
        if (index >= slots.size() || !slots[index].object || value_of(index) != value) return nullptr;
        return &slots[index];
    }

    const HandleKind kind;
    mutable std::mutex mutex;
    std::vector<Slot> slots;
    std::vector<std::size_t> free_slots;
};

} // namespace platform

#endif
