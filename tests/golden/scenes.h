#ifndef TESTS_GOLDEN_SCENES_H
#define TESTS_GOLDEN_SCENES_H

#include <vector>

#include "stage.h"

// One picture: a name, which is its file's as well, a size, and what is painted.
struct Scene {
    const char* name;
    int width, height;
    void (*paint)(Stage& stage);
};

extern const std::vector<Scene> BOX_SCENES, LABEL_SCENES, BUTTON_SCENES, PART_SCENES;
extern const std::vector<Scene> VALUATOR_SCENES, COLOR_SCENES;
extern const std::vector<Scene> SLIDER_SCENES, LIST_SCENES, ITEM_SCENES;
extern const std::vector<Scene> ICON_SCENES, CONSOLE_SCENES, POPUP_SCENES, TREE_SCENES;

#endif
