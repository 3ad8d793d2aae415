#include <string>
#include <vector>

#include <brask/buttons.h>
#include <brask/fenn.h>
#include <brask/fenn_host.h>
#include <brask/icons.h>

#include "scenes.h"

// Glyphs, icon files, and faces with a picture on them, each also at eight times its size.

namespace {

constexpr int ZOOM = 8;

// The part of the window with its lower left corner at x, y, painted again in large.
void magnify(Stage& stage, int x, int y, int width, int height, int to_x, int to_y) {
    int window_width, window_height;
    const DWORD* pixels = Fenn_Pixels(stage.window(), &window_width, &window_height);
    std::vector<DWORD> large(static_cast<std::size_t>(width) * height * ZOOM * ZOOM);
    for (int row = 0; row < height * ZOOM; row++)
        for (int column = 0; column < width * ZOOM; column++) {
            const int from_y = window_height - y - height + row / ZOOM, from_x = x + column / ZOOM;
            large[static_cast<std::size_t>(row) * width * ZOOM + column] =
                pixels[from_y * window_width + from_x];
        }
    Zeb_setup(stage.window(), "magnify");
    draw_image(reinterpret_cast<const char*>(large.data()), to_x, to_y, 0, 0, width * ZOOM, height * ZOOM,
               width * ZOOM, height * ZOOM, 0);
    Zeb_release();
}

// A box as large as the stage; glyphs are painted on the ground.
struct Sheet {
    Boxs box;
    explicit Sheet(Stage& stage) {
        Stage::place(box, 0, 0, 2000, 1000);
        box.Wnd = stage.window();
        box.Color = Colors(192, 192, 192);
    }
};

constexpr int CELL = 22;
using Glyph = void (*)(const Boxs* box, int x, int y);

// Each glyph in a cell of its own, small above and large below.
template <std::size_t COUNT>
void row_of(Stage& stage, const Glyph (&glyphs)[COUNT]) {
    Sheet sheet(stage);
    const int top = CELL * ZOOM, width = static_cast<int>(COUNT) * CELL;
    Zeb_setup(stage.window(), "row");
    for (std::size_t i = 0; i < COUNT; i++)
        glyphs[i](&sheet.box, static_cast<int>(i) * CELL, top);
    Zeb_release();
    magnify(stage, 0, top, width, CELL, 0, 0);
}

void folders(Stage& stage) {
    const Glyph glyphs[] = {[](const Boxs* box, int x, int y) { Icon_Dir_Close(box, x + 4, y + 4, 0); },
                            [](const Boxs* box, int x, int y) { Icon_Dir_Close(box, x + 4, y + 4, 1); },
                            [](const Boxs* box, int x, int y) { Icon_Dir_Open(box, x + 4, y + 4, 0); },
                            [](const Boxs* box, int x, int y) { Icon_Dir_Open(box, x + 4, y + 4, 1); }};
    row_of(stage, glyphs);
}

void leads(Stage& stage) {
    const Glyph glyphs[] = {
        [](const Boxs* box, int x, int y) { Icon_Lead_Collapse(box, 1, x + 1, x + 19, y + 1, y + 19); },
        [](const Boxs* box, int x, int y) { Icon_Lead_Expand(box, 1, x + 1, x + 19, y + 1, y + 19); },
        [](const Boxs* box, int x, int y) { Icon_Lead_Leaf(box, 0, x + 1, x + 19, y + 1, y + 19); },
        [](const Boxs* box, int x, int y) { Icon_Lead_Leaf(box, 1, x + 1, x + 19, y + 1, y + 19); },
        [](const Boxs* box, int x, int y) { Icon_Lead_No_Access(box, 1, x + 1, x + 19, y + 1, y + 19); }};
    row_of(stage, glyphs);
}

void symbols(Stage& stage) {
    Sheet sheet(stage);
    using Symbol = void (*)(const Boxs* box, int size, int x, int y);
    const Symbol all[] = {Icon_Close, Icon_Collapse, Icon_Expand, Icon_No_Access};
    const int sizes[] = {5, 9, 13, 18, 40};
    int row = 0;
    for (const Symbol symbol : all) {
        int x = 5;
        for (const int size : sizes) {
            symbol(&sheet.box, size, x, CELL * ZOOM + 5 + 46 * row);
            x += size + 10;
        }
        symbol(&sheet.box, 16, 200 + CELL * row, CELL * ZOOM + 3);
        row++;
    }
    magnify(stage, 200, CELL * ZOOM, 4 * CELL, CELL, 0, 0);
}

// --- Files: those of this project, as they lie beside the programs ---

// Pictures of this size, small with a border and without, and large.
template <std::size_t COUNT>
void pictures(Stage& stage, const wchar_t* const (&names)[COUNT], int size) {
    W_Inst_Path = Stage::installation();
    Sheet sheet(stage);
    const int cell = size + 4, top = cell * ZOOM;
    Zeb_setup(stage.window(), "files");
    Zeb_set_clip(0, 0, 2000, 1000);
    for (std::size_t i = 0; i < COUNT; i++) {
        const int x = static_cast<int>(i) * cell + 2;
        Icon_Draw_Image(&sheet.box, x, top + 2, nullptr, names[i]);
        Icon_Draw_Image(&sheet.box, x, top + cell + 2, nullptr, names[i]);
        Icon_Draw_Border(&sheet.box, x, top + cell + 2, nullptr, names[i]);
    }
    Zeb_reset_clip();
    Zeb_release();
    magnify(stage, 0, top, static_cast<int>(COUNT) * cell, cell, 0, 0);
}

void tree_files(Stage& stage) {
    const wchar_t* const names[] = {L"icon_mycomputer.rgb", L"icon_fixed.rgb", L"icon_floppy.rgb",
                                    L"icon_cdrom.rgb", L"icon_remote.rgb"};
    pictures(stage, names, 16);
}

void signs(Stage& stage) {
    const wchar_t* const names[] = {L"ok.tga", L"warning.tga", L"stop.tga"};
    pictures(stage, names, 24);
}

struct Face {
    int x, y, width, height;
    DWORD flag;
    const wchar_t *file, *name;
};

void show(Stage& stage, const Face& face) {
    const std::wstring folder = std::wstring(Stage::installation()) + L"Icons\\";
    Buttons button;
    Stage::place(button, face.x, face.y, face.width, face.height, face.flag, face.name);
    button.Graph_Normal = button.Icon(folder.c_str(), face.file, Colors(170, 170, 170));
    button.Init(stage.window());
    button.Draw();
}

void faces(Stage& stage) {
    const int row = 32 * ZOOM;
    const Face all[] = {
        {5, row + 5, 64, 64, 0, L"open.rgb", nullptr},
        {75, row + 5, 64, 64, 0, L"save.rgb", nullptr},
        {145, row + 5, 64, 64, 0, L"search.rgb", nullptr},
        {215, row + 5, 64, 64, 0, L"globe.rgb", nullptr},
        {285, row + 5, 90, 40, 0, L"globe.rgb", nullptr},
        {380, row + 5, 90, 40, ICON_KEEP_RATIO, L"globe.rgb", nullptr},
        {285, row + 50, 90, 40, ICON_RIGHT | TEXT_LEFT, L"save.rgb", L"Save"},
        {380, row + 50, 90, 40, ICON_TOP, L"save.rgb", nullptr},
        {475, row + 5, 40, 90, ICON_BOTTOM | TEXT_TOP, L"open.rgb", L"Open"},
        {520, row + 5, 60, 60, OUTIL_FLAT, L"globe.rgb", nullptr},
        // What is shown in large.
        {5, row + 75, 30, 30, 0, L"open.rgb", nullptr},
        {37, row + 75, 30, 30, 0, L"save.rgb", nullptr},
        {69, row + 75, 30, 30, 0, L"search.rgb", nullptr},
    };
    for (const Face& face : all)
        show(stage, face);
    magnify(stage, 4, row + 74, 96, 32, 0, 0);
}

} // namespace

const std::vector<Scene> ICON_SCENES = {
    {"icon_folders", 4 * CELL* ZOOM, CELL*(ZOOM + 1), folders},
    {"icon_leads", 5 * CELL* ZOOM, CELL*(ZOOM + 1), leads},
    {"icon_symbols", 4 * CELL* ZOOM, CELL* ZOOM + 190, symbols},
    {"icon_tree_files", 5 * 20 * ZOOM, 20 * (ZOOM + 2), tree_files},
    {"icon_signs", 3 * 28 * ZOOM, 28 * (ZOOM + 2), signs},
    {"icon_faces", 96 * ZOOM, 32 * ZOOM + 110, faces},
};
