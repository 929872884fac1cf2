#pragma once
// Where the window's "Print It" sends a sheet: a printer with its paper and
// number of copies, or a PDF or SVG file; and the orientation that pages
// which never set one print in. Kept between runs in the user's settings.

#include <QPageSize>
#include <QString>
#include <optional>

class QSettings;

namespace gp {

struct SheetSettings {
    enum class Destination { Printer, PdfFile, SvgFile };

    Destination destination = Destination::Printer;
    QString printer;              // a queue name; empty: the system's default printer
    std::optional<QPageSize> paper;  // none: the printer's own, or the system's for files
    int orientation = 1;          // 1 portrait, 2 landscape
    int copies = 1;               // 1 to 999
    QString lastFolder;           // where the last file was saved; empty: none yet

    // Reads what `settings` holds; anything missing or out of range keeps
    // its default, so a damaged settings file never stops the program.
    static SheetSettings load(QSettings& settings);
    void save(QSettings& settings) const;

    bool operator==(const SheetSettings& o) const;
    bool operator!=(const SheetSettings& o) const { return !(*this == o); }
};

constexpr int kMaxCopies = 999;

// A paper written into the settings and read back: its key ("A4",
// "Letter") for standard sizes, or its size in points for a custom one.
QString paperToText(const QPageSize& paper);
std::optional<QPageSize> paperFromText(const QString& text);

} // namespace gp
