#ifndef BRASK_COLORS_H
#define BRASK_COLORS_H

#include <brask/export.h>

// The colour value of the library: four signed 16-bit channels. 0 to 255 is what can be shown; values
// outside are legal and kept, so that shading may run past the ends and come back. The range is
// enforced only when the value is turned into a word.
//
// Two words exist:
//   drawing word  0xAABBGGRR, red in the low byte:  get(), Zeb_color, the colour argument of Tools::Text
//   surface word  0xAARRGGBB, blue in the low byte: get_invert(), every pixel surface
// A drawing word of 0 means "the default" where a text colour is asked for, so black is the word 1.
class BRASK_API Colors {
  public:
    short R; // red, 0..255 shown
    short G; // green
    short B; // blue
    short A; // alpha or spare: travels into the top byte of a word and is never given a meaning here

    // Without an alpha argument A is 0. Ints are cut to 16 bits, wider words to 32.
    Colors();
    Colors(const Colors& other);
    Colors(unsigned char v); // all of R, G, B
    Colors(short v);         // all of R, G, B
    Colors(unsigned char r, unsigned char g, unsigned char b);
    Colors(unsigned char r, unsigned char g, unsigned char b, unsigned char a);
    Colors(int r, int g, int b);
    Colors(int r, int g, int b, int a);
    Colors(unsigned int word);        // drawing word, alpha byte included
    Colors(unsigned long word);       // drawing word, alpha byte included
    Colors(const unsigned char* rgb); // three bytes; null reads as black
    Colors(const int* rgb);           // three ints; null reads as black

    // Assignment. Only the copy takes A; a word's alpha byte is deliberately left behind.
    Colors& operator=(const Colors& other);
    Colors& operator=(unsigned char v);
    Colors& operator=(short v);
    Colors& operator=(unsigned int word);
    Colors& operator=(unsigned long word);

    // The named form of assignment. Here even the copy leaves A alone.
    void set(const Colors& other);
    void set(unsigned char v);
    void set(short v);
    void set(unsigned char r, unsigned char g, unsigned char b, unsigned char a);
    void set(int r, int g, int b, int a);
    void set(unsigned int word);
    void set(unsigned long word);
    void set(const unsigned char* rgb);
    void set(const int* rgb);

    // Arithmetic on R, G and B; wraps in 16 bits, never clamps, leaves A alone.
    Colors& operator+=(const short& d);
    Colors& operator+=(const unsigned int& word); // byte by byte, no carry between channels
    Colors& operator+=(const unsigned long& word);
    Colors& operator+=(const float& f); // adds f * 255 cut toward zero
    Colors& operator+=(const Colors& c);
    Colors& operator-=(const Colors& c);
    Colors& operator*=(const float& f); // channel * f cut toward zero
    Colors operator-() const;           // negated channels, A 0

    // 1 when R, G and B are equal; A is not compared.
    int operator==(const Colors& other) const;
    // Channel R, G, B, A for 0, 1, 2, 3, clamped to 0..255; any other index gives 0.
    unsigned char operator[](int i) const;
    unsigned long get() const;        // drawing word
    unsigned long get_invert() const; // surface word
};

#endif
