#include <brask/colors.h>

#include "foundation/pixels.h"

using namespace brask;

namespace {

constexpr short low_byte(unsigned long word) { return static_cast<short>(word & 255); }
constexpr short wrap(int v) { return static_cast<short>(v); }

// What is shown of a channel.
constexpr unsigned shown(short channel) {
    if (channel <= 0) return 0;
    return channel > 255 ? 255u : static_cast<unsigned>(channel);
}

constexpr unsigned pack(short high, short third, short second, short low) {
    return shown(high) << 24 | shown(third) << 16 | shown(second) << 8 | shown(low);
}

} // namespace

Colors::Colors() : R(0), G(0), B(0), A(0) {}
Colors::Colors(const Colors& other) = default;
Colors::Colors(unsigned char v) : Colors(static_cast<short>(v)) {}
Colors::Colors(short v) : R(v), G(v), B(v), A(0) {}
Colors::Colors(unsigned char r, unsigned char g, unsigned char b) : R(r), G(g), B(b), A(0) {}
Colors::Colors(unsigned char r, unsigned char g, unsigned char b, unsigned char a) : R(r), G(g), B(b), A(a) {}
Colors::Colors(int r, int g, int b) : Colors(r, g, b, 0) {}
Colors::Colors(int r, int g, int b, int a) : R(wrap(r)), G(wrap(g)), B(wrap(b)), A(wrap(a)) {}
Colors::Colors(unsigned int word) : Colors(static_cast<unsigned long>(word)) {}
Colors::Colors(unsigned long word)
    : R(low_byte(word)), G(low_byte(word >> 8)), B(low_byte(word >> 16)), A(low_byte(word >> 24)) {}
Colors::Colors(const unsigned char* rgb) : Colors() { set(rgb); }
Colors::Colors(const int* rgb) : Colors() { set(rgb); }

Colors& Colors::operator=(const Colors& other) = default;

Colors& Colors::operator=(unsigned char v) {
    set(v);
    return *this;
}

Colors& Colors::operator=(short v) {
    set(v);
    return *this;
}

Colors& Colors::operator=(unsigned int word) {
    set(word);
    return *this;
}

Colors& Colors::operator=(unsigned long word) {
    set(word);
    return *this;
}

void Colors::set(const Colors& other) {
    R = other.R;
    G = other.G;
    B = other.B;
}

void Colors::set(unsigned char v) { set(static_cast<short>(v)); }
void Colors::set(short v) { R = G = B = v; }

void Colors::set(unsigned char r, unsigned char g, unsigned char b, unsigned char a) {
    *this = Colors(r, g, b, a);
}

void Colors::set(int r, int g, int b, int a) { *this = Colors(r, g, b, a); }
void Colors::set(unsigned int word) { set(Colors(word)); }
void Colors::set(unsigned long word) { set(Colors(word)); }

void Colors::set(const unsigned char* rgb) {
    if (rgb)
        set(Colors(rgb[0], rgb[1], rgb[2]));
    else
        set(short(0));
}

void Colors::set(const int* rgb) {
    if (rgb)
        set(Colors(rgb[0], rgb[1], rgb[2]));
    else
        set(short(0));
}

Colors& Colors::operator+=(const short& d) { return *this += Colors(d); }
Colors& Colors::operator+=(const unsigned int& word) { return *this += Colors(word); }
Colors& Colors::operator+=(const unsigned long& word) { return *this += Colors(word); }

Colors& Colors::operator+=(const float& f) { return *this += Colors(wrap(cut(f * 255.0f))); }

Colors& Colors::operator+=(const Colors& c) {
    R = wrap(R + c.R);
    G = wrap(G + c.G);
    B = wrap(B + c.B);
    return *this;
}

Colors& Colors::operator-=(const Colors& c) {
    R = wrap(R - c.R);
    G = wrap(G - c.G);
    B = wrap(B - c.B);
    return *this;
}

Colors& Colors::operator*=(const float& f) {
    R = wrap(cut(static_cast<float>(R) * f));
    G = wrap(cut(static_cast<float>(G) * f));
    B = wrap(cut(static_cast<float>(B) * f));
    return *this;
}

Colors Colors::operator-() const { return Colors(-R, -G, -B); }

int Colors::operator==(const Colors& other) const { return R == other.R && G == other.G && B == other.B; }

unsigned char Colors::operator[](int i) const {
    switch (i) {
    case 0: return static_cast<unsigned char>(shown(R));
    case 1: return static_cast<unsigned char>(shown(G));
    case 2: return static_cast<unsigned char>(shown(B));
    case 3: return static_cast<unsigned char>(shown(A));
    default: return 0;
    }
}

unsigned long Colors::get() const { return pack(A, B, G, R); }
unsigned long Colors::get_invert() const { return pack(A, R, G, B); }
