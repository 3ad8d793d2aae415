// Starts, paints the grid once off-screen and says so.

#include "first_frame.h"
#include "qt_scene.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qt_scene::Window window;
    window.show();
    window.repaint();
    first_frame_painted();
}
