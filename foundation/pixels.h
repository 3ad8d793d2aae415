#ifndef FOUNDATION_PIXELS_H
#define FOUNDATION_PIXELS_H

namespace brask {

// A pixel coordinate or length whose arithmetic wraps at 32 bits: hosts write any number into a control's
// fields, and the wildest of them may give a strange picture but never an undefined one.
class Px {
  public:
    constexpr Px(int v) : value(v) {}
    constexpr operator int() const { return value; }

  private:
    int value;
};

constexpr Px wrapped(unsigned v) { return static_cast<int>(v); }
constexpr unsigned bits(int v) { return static_cast<unsigned>(v); }

constexpr Px operator+(Px a, Px b) { return wrapped(bits(a) + bits(b)); }
constexpr Px operator+(Px a, int b) { return a + Px(b); }
constexpr Px operator+(int a, Px b) { return Px(a) + b; }
constexpr Px operator-(Px a, Px b) { return wrapped(bits(a) - bits(b)); }
constexpr Px operator-(Px a, int b) { return a - Px(b); }
constexpr Px operator-(int a, Px b) { return Px(a) - b; }
constexpr Px operator*(Px a, Px b) { return wrapped(bits(a) * bits(b)); }
constexpr Px operator*(Px a, int b) { return a * Px(b); }
constexpr Px operator*(int a, Px b) { return Px(a) * b; }
constexpr Px operator-(Px a) { return wrapped(0u - bits(a)); }

// Four edges in the order in which the painting operations take them.
struct Area {
    int x1, x2; // left, right
    int y1, y2; // bottom, top
};

// A number cut toward zero; what does not fit goes to the nearest end, and what is no number is 0.
constexpr int cut(double v) {
    if (v >= 2147483648.0) return 2147483647;
    if (v <= -2147483649.0) return -2147483647 - 1;
    return v == v ? static_cast<int>(v) : 0;
}

} // namespace brask

#endif
