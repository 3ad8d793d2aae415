#ifndef GALLERY_BASICS_SAMPLES_H
#define GALLERY_BASICS_SAMPLES_H

#include <brask/buttons.h>

// What the page "Basics" shows, one line for each control. Colours are drawing words; 0 is the default.

struct BoxSample {
    const wchar_t* title;
    DWORD flag;
    int border;
    unsigned int color;
};

struct LabelSample {
    const wchar_t* caption; // written before it
    const wchar_t* text;
    DWORD flag;
    unsigned int color;
    const char* font; // family, weight, slant, size: null and 0 are the defaults
    const char* weight;
    const char* slant;
    int size;
};

// What a click does to a button.
enum class Click { momentary, toggle, lamp };

struct ButtonSample {
    const wchar_t* name;
    Click click;
    DWORD flag;
    unsigned int lamp;
    int border;
    unsigned int color;
    int value;                     // Cur_Value at the start
    int picture;                   // 0 none, 1 a normal picture, 2 a selected one too
    const wchar_t* icon = nullptr; // a file of the icons' folder
};

template <class Sample>
struct Samples {
    const Sample* first;
    int count;
    const Sample& operator[](int i) const { return first[i]; }
};

Samples<BoxSample> box_samples();
Samples<BoxSample> place_samples(); // boxes again: a title at each place
Samples<LabelSample> align_samples();
Samples<LabelSample> stack_samples(); // stacked letters
Samples<LabelSample> line_samples();  // fonts, marks, scripts
Samples<ButtonSample> button_samples();

#endif
