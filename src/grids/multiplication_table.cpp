#include "grids/multiplication_table.h"

namespace gp {

namespace {

// Top of the first number of a column: its height centred on the middle of
// the first row of cells, worked out in Single. Kept wide so that a cell
// taller than the page gives a row that simply lies below the grid.
Long FirstRowY(DrawingSurface& P, Integer cellH, const std::string& s) {
    const Single middle = Single(cellH + 1 + cellH / 2);
    return CLng(middle - P.TextHeight(s) / 2.0f);
}

// How many numbers a column holds: the rows whose top lies above maxY.
long RowsFrom(Long rowY, const GridBounds& g) {
    if (rowY >= g.maxY) return 0;
    return (long(g.maxY) - rowY + g.cellH - 1) / g.cellH;
}

void SetNumberFont(DrawingSurface& P) {
    P.setFontName("Georgia");
    P.setFontSize(14);
}

} // namespace

void CheckMultiplicationTable(DrawingSurface& P, const GridBounds& g) {
    SetNumberFont(P);
    long i = 1;
    for (long colX = g.cellW / 2 + 1; colX < g.maxX; colX += g.cellW, ++i) {
        const long rows = RowsFrom(FirstRowY(P, g.cellH, Trim(Str(i))), g);
        if (rows > 0 && i * rows > 32767)
            throwInvalid("Nothing was printed: the cells are too small for a multiplication "
                         "table, whose largest product would pass 32767. Please use larger "
                         "cells or untick \"Multiplication table\".");
    }
}

void PrintMultiplicationTable(DrawingSurface& P, const GridBounds& g) {
    P.setFontName("Georgia");
    P.setFontSize(20);
    P.CurrentX = 500;
    P.CurrentY = 100;
    P.Print("Name this chart: ");
    P.setFontSize(14);

    // The first column and the first row hold 1, 2, 3 ... and so serve as
    // the headings: no separate heading row is printed.
    Integer i = 1;
    long colX = g.cellW / 2 + 1;
    while (colX < g.maxX) {
        Long rowY = FirstRowY(P, g.cellH, Trim(Str(i)));
        Integer j = 1;
        while (rowY < g.maxY) {
            const std::string s = Trim(Str(IMul(i, j)));
            P.CurrentX = CInt(Single(colX) - P.TextWidth(s) / 2.0f);
            P.CurrentY = Single(rowY);
            P.Print(s);
            rowY += g.cellH;
            ++j;
        }
        ++i;
        colX += g.cellW;
    }
}

} // namespace gp
