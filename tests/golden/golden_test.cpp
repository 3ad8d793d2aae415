#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "compare.h"
#include "scenes.h"

namespace {

std::vector<Scene> all_scenes() {
    std::vector<Scene> all;
    for (const auto* scenes : {&BOX_SCENES, &LABEL_SCENES, &BUTTON_SCENES, &PART_SCENES, &VALUATOR_SCENES,
                               &COLOR_SCENES, &SLIDER_SCENES, &LIST_SCENES, &ITEM_SCENES, &ICON_SCENES,
                               &CONSOLE_SCENES, &POPUP_SCENES, &TREE_SCENES})
        all.insert(all.end(), scenes->begin(), scenes->end());
    return all;
}

class Golden : public testing::TestWithParam<Scene> {};

} // namespace

TEST_P(Golden, Picture) {
    const Scene& scene = GetParam();
    Stage stage(scene.width, scene.height);
    scene.paint(stage);
    if (std::getenv("GOLDEN_UPDATE")) {
        ASSERT_TRUE(update(stage.window(), scene.name));
        FAIL() << "written anew; look at it before it is kept";
    }
    EXPECT_EQ(compare(stage.window(), scene.name), "");
}

INSTANTIATE_TEST_SUITE_P(Scenes, Golden, testing::ValuesIn(all_scenes()),
                         [](const testing::TestParamInfo<Scene>& scene) { return scene.param.name; });

TEST(GoldenScenes, EachHasAPictureOfItsOwn) {
    std::vector<std::string> names;
    for (const Scene& scene : all_scenes())
        names.push_back(scene.name);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
    EXPECT_GT(names.size(), 30u);
}
