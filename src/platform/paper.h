#pragma once
// Paper: the sizes a user or a script may name, the system's own paper where
// nobody has chosen one, and the printable area inside a sheet's margins.

#include <QPageSize>
#include <optional>
#include <string>

namespace gp {

// letter, legal, a3, a4, a5 (any case), or system for the system's paper;
// nothing for a name it does not know.
std::optional<QPageSize> paperNamed(const std::string& name);

// The system's paper: the PAPERSIZE variable, then /etc/papersize, then the
// locale's LC_PAPER, then the default printer's paper; Letter when none of
// them says.
QPageSize systemPaper();

// The steps of that rule, each nothing where its source says nothing, so
// that a test can check each one.
std::optional<QPageSize> paperFromName(const std::string& text);  // "a4", "A4\n", "letter"
std::optional<QPageSize> paperFromFile(const std::string& path);  // the first name in the file
std::optional<QPageSize> paperFromLocale();                      // LC_PAPER, unless C or POSIX

// A paper's size in twips (portrait), from the size it is defined by, so
// that A4 is 210 x 297 mm exactly and not its rounded points.
struct TwipsSize {
    double width;
    double height;
};
TwipsSize paperTwips(const QPageSize& paper);

// The printable area inside `margin` twips on every side, in whole twips
// (the fraction is cut off, as Int does): A4 with a quarter inch is
// 11185 x 16117.
struct PrintableArea {
    int width;
    int height;
};
PrintableArea printableInside(const QPageSize& paper, double margin = 360.0);

} // namespace gp
