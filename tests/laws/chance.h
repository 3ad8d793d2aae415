#ifndef LAWS_CHANCE_H
#define LAWS_CHANCE_H

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <random>

// Chance with a seed. Each run takes a new one and prints it; LAWS_SEED repeats a run, LAWS_ROUNDS makes it
// longer or shorter.
class Chance {
  public:
    explicit Chance(unsigned seed) : engine_(seed) {}
    unsigned below(unsigned n) { return engine_() % n; }
    int between(int low, int high) {
        return low + static_cast<int>(below(static_cast<unsigned>(high - low + 1)));
    }
    bool one_in(unsigned n) { return below(n) == 0; }
    template <typename T>
    T of(std::initializer_list<T> values) {
        return std::data(values)[below(values.size())];
    }
    unsigned word() { return engine_(); }

  private:
    std::mt19937 engine_;
};

inline unsigned from_environment(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::strtoul(value, nullptr, 0)) : otherwise;
}
inline unsigned law_seed() {
    static const unsigned seed = from_environment("LAWS_SEED", std::random_device{}());
    static const int printed = std::printf("LAWS_SEED=%u\n", seed);
    static_cast<void>(printed);
    return seed;
}
inline int law_rounds(int usual) { return static_cast<int>(from_environment("LAWS_ROUNDS", usual)); }

#endif
