// A dialog where no desktop can show it.

#include "dialog_box.h"

TEST(DialogMemory, EndsAtOnceSinceNobodyCouldAnswer) {
    Owner owner;
    Box box;
    EXPECT_EQ(box.run(owner.wnd), -1);
    EXPECT_TRUE(box.heard_of(WM_INITDIALOG));
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
    EXPECT_FALSE(IsWindow(box.wnd));
}
