#ifndef FUZZ_INPUT_H
#define FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// One input of a fuzz target: bytes, read as decisions. Past the end everything is 0, so every prefix of an
// input is an input.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : at(data), end(data + size) {}

    bool empty() const { return at == end; }
    unsigned byte() { return at == end ? 0 : *at++; }
    std::uint32_t word() {
        std::uint32_t word = 0;
        for (int i = 0; i < 4; i++)
            word = word << 8 | byte();
        return word;
    }
    // 0 to count - 1
    unsigned below(unsigned count) { return (count > 256 ? byte() << 8 | byte() : byte()) % count; }
    // False at the end, so that nothing goes on for ever.
    bool one_in(unsigned count) { return !empty() && below(count) == 0; }
    // Mostly a size or a place as controls have it, now and then one that nobody should ask for.
    int number() {
        static constexpr int odd[] = {0,     -1,      1,         2,          -32768,     32767,
                                      65535, 1 << 20, 1 << 30,   -(1 << 30), 2147483647, -2147483647 - 1,
                                      46341, -46341,  100000000, -100000000, 2147483646};
        if (one_in(8)) return odd[below(sizeof odd / sizeof *odd)];
        return static_cast<int>(below(400)) - 40;
    }
    template <typename T, std::size_t count>
    const T& among(const T (&list)[count]) {
        return list[below(count)];
    }

  private:
    const std::uint8_t* at;
    const std::uint8_t* end;
};

// A finding: the driver tells by which input it can be had again.
inline void expect(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

// The target itself, under the name that libFuzzer looks for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#endif
