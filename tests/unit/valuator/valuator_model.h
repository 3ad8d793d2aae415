#ifndef TESTS_VALUATOR_MODEL_H
#define TESTS_VALUATOR_MODEL_H

#include <string>

#include <brask/valuators.h>

// What one Select must answer and leave behind, by the fields and the event alone.
struct Told {
    int answer;
    int look; // painted: 0 normal, 1 selected, -1 nothing
    std::string tag;
    int select, held;
};

inline Told told(const Valuators& bar, int mode, bool inside) {
    const int event = mode & 15;
    const bool hidden = bar.Flag & OUTIL_INVISIBLE, outlined = bar.Flag & GRAPH_OUTLINE;
    const bool faceless = hidden || outlined || bar.Flag & OUTIL_EMPTY, capture = bar.Flag & OUTIL_CAPTURE;
    if (event == 4) return {inside, -1, inside ? "KEY_QUERY:1" : "KEY_QUERY:0", bar.select, bar.Held};
    int held = event == 0 ? 0 : bar.Held;
    if (outlined || (hidden && bar.Flag & OUTIL_DISABLE))
        return {0, -1, "OUTIL_EMPTY|OUTIL_INVISIBLE:0", bar.select, held};
    if (bar.Flag & OUTIL_DISABLE) return {0, 0, "OUTIL_DISABLE:0", bar.select, held};
    if (!inside && !(capture && held)) {
        if (faceless) return {0, -1, "OUTIL_EMPTY|OUTIL_INVISIBLE:0", bar.select, held};
        if (bar.select == 2) return {0, -1, "select == 2", 2, held};
        return {0, 0, "0", 2, held};
    }
    if (capture && event == 2) held = 1;
    const int answer = capture ? held : event == 1 || event == 2;
    if (faceless) return {answer, -1, "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE", bar.select, held};
    if (bar.select == 1) return {answer, -1, "select == 1", 1, held};
    return {answer, 1, std::to_string(answer), 1, held};
}

#endif
