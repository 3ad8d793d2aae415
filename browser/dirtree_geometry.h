#ifndef BROWSER_DIRTREE_GEOMETRY_H
#define BROWSER_DIRTREE_GEOMETRY_H

#include <brask/dirtrees.h>

#include "foundation/compound.h"

namespace brask {

// The places of the tree control's parts and rows: layout, painting, hit test and tests go by the same ones.

inline constexpr int ROW_HEIGHT = 18; // of a row, and the width of a cell

// The sliders while there is nothing to scroll.
inline constexpr DWORD FITS_SIDEWAYS = OUTIL_CAPTURE | GRAPH_OUTLINE | OUTIL_DISABLE;
inline constexpr DWORD FITS_DOWN = FITS_SIDEWAYS | OUTIL_REVERSE | OUTIL_VERTICAL;

// Each part's place hangs on those laid out before it.
Place frame_place(const DirTrees& tree);
Place inner_place(const DirTrees& tree);
Place vertical_place(const DirTrees& tree);
Place horizontal_place(const DirTrees& tree);
Place rows_place(const DirTrees& tree);
Place refresh_place(const DirTrees& tree);

// The rows as they are scrolled now.
struct Dir_View {
    int first, end; // rows in sight; the lines of the row above these reach into it
    int bottom;     // of row 0
    int left;       // of cell 0, that of the box in front of a drive
};
Dir_View dir_view(const DirTrees& tree);
int row_y(const Dir_View& view, int row); // bottom of a row
// Left of a cell. A row's picture stands in the cell of its depth, the box in front of it one cell before.
int cell_x(const Dir_View& view, int column);
// How far a row reaches, its name being `text` pixels wide.
int row_extent(const DirTrees& tree, int depth, int text);

// Row and cell under the pointer, which may be none that there is.
struct Dir_Cell {
    int row, column;
};
Dir_Cell cell_at(const DirTrees& tree, POINT pointer);

} // namespace brask

#endif
