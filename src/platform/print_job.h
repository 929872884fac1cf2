#pragma once
// A sheet on a printer. The page is painted through QPrinter on the queue's
// own layout (its paper, turned as the page asks, inside the margins that
// the printer cannot print on) into a PDF job, and the job is handed to the
// print system with its paper and number of copies. The window's "Print It"
// and a batch run's --print both come here, so both give the same sheet,
// and a job that the print system refuses comes back in its own words
// instead of vanishing.

#include <QPageLayout>
#include <QPageSize>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <string>

#include "platform/paper.h"
#include "shell/page.h"

namespace gp {

struct PrintTarget {
    QString queue;                   // an installed queue
    std::optional<QPageSize> paper;  // none: the queue's own paper
    int copies = 1;
    // Least margin on every side, in twips, where the sheet must keep one
    // of its own (a named paper's quarter inch); the printer's own least
    // margins where they are wider.
    double margin = 0;
};

// The queue that a name stands for: itself where it is installed, the
// system's default printer for "default"; empty where there is none.
QString installedQueue(const QString& name);
QString defaultQueue();

// The queue's layout for a sheet: the paper, turned to `orientation`
// (1 portrait, 2 landscape), with the printer's own least margins.
QPageLayout queueLayout(const PrintTarget& target, int orientation);

// The portrait printable area of the target in twips: what a page there
// may draw on. Nothing where the queue is not installed.
std::optional<TwipsSize> queuePrintableArea(const PrintTarget& target);

// Prints one copy of the page per target.copies as one job named `title`.
// printableWidth/Height: the area in the page's orientation, which the
// strokes are clipped to.
OutputResult printSheet(const Page& page, Single printableWidth, Single printableHeight,
                        const PrintTarget& target, const std::string& title);

// Each sheet of a run as a print job on one queue.
class PrintJobSink : public PageSink {
public:
    PrintJobSink(PrintTarget target, std::function<std::string()> title)
        : target_(std::move(target)), title_(std::move(title)) {}
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override {
        return printSheet(page, printableWidth, printableHeight, target_, title_ ? title_() : std::string());
    }

private:
    PrintTarget target_;
    std::function<std::string()> title_;
};

} // namespace gp
