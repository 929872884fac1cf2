#pragma once
// Where the printable area sits on a sheet saved to a file: the whole paper
// in twips and the margin around the printable area. The file's page is the
// paper, so one inch of the drawing is one inch of the file.

#include "shell/numbers.h"

namespace gp {

struct SheetFrame {
    // The paper, in twips, already turned to the page's orientation.
    double paperWidth;
    double paperHeight;
    // From the paper's top left corner to the printable area's, in twips.
    double margin = 360.0;

    // A paper just large enough for the printable area and its margins.
    static SheetFrame around(Single printableWidth, Single printableHeight, double margin = 360.0) {
        return {printableWidth + 2 * margin, printableHeight + 2 * margin, margin};
    }
};

// The paper of the sheets a run saves: a named paper (portrait, in twips),
// or none, where each sheet is its printable area with a margin around it.
struct SheetPaper {
    bool named = false;
    double width = 0;
    double height = 0;

    SheetFrame frameFor(int orientation, Single printableWidth, Single printableHeight) const {
        if (!named) return SheetFrame::around(printableWidth, printableHeight);
        return orientation == 2 ? SheetFrame{height, width} : SheetFrame{width, height};
    }
};

} // namespace gp
