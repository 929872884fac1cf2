#include "platform/sheet_settings.h"

#include <QSettings>
#include <QSizeF>
#include <QStringList>

namespace gp {

namespace {
const char* const kGroup = "sheets";

const char* destinationName(SheetSettings::Destination d) {
    switch (d) {
    case SheetSettings::Destination::PdfFile: return "pdf";
    case SheetSettings::Destination::SvgFile: return "svg";
    case SheetSettings::Destination::Printer: break;
    }
    return "printer";
}
} // namespace

QString paperToText(const QPageSize& paper) {
    if (paper.id() != QPageSize::Custom) return paper.key();
    const QSizeF points = paper.size(QPageSize::Point);
    return QString("%1x%2pt").arg(points.width(), 0, 'f', 3).arg(points.height(), 0, 'f', 3);
}

std::optional<QPageSize> paperFromText(const QString& text) {
    if (text.isEmpty()) return std::nullopt;
    for (int i = 0; i <= int(QPageSize::LastPageSize); ++i) {
        const auto id = QPageSize::PageSizeId(i);
        if (id != QPageSize::Custom && QPageSize::key(id) == text) return QPageSize(id);
    }
    if (!text.endsWith("pt")) return std::nullopt;
    const QStringList parts = text.chopped(2).split('x');
    if (parts.size() != 2) return std::nullopt;
    bool okW = false, okH = false;
    const double w = parts[0].toDouble(&okW), h = parts[1].toDouble(&okH);
    // Anything from a stamp to a poster; beyond that the text is damaged.
    if (!okW || !okH || w < 36 || h < 36 || w > 14400 || h > 14400) return std::nullopt;
    return QPageSize(QSizeF(w, h), QPageSize::Point, QString(), QPageSize::ExactMatch);
}

SheetSettings SheetSettings::load(QSettings& s) {
    SheetSettings out;
    s.beginGroup(kGroup);
    const QString destination = s.value("destination").toString();
    if (destination == "pdf") out.destination = Destination::PdfFile;
    if (destination == "svg") out.destination = Destination::SvgFile;
    out.printer = s.value("printer").toString();
    out.paper = paperFromText(s.value("paper").toString());
    if (s.value("orientation").toString() == "landscape") out.orientation = 2;
    bool ok = false;
    const int copies = s.value("copies").toInt(&ok);
    if (ok && copies >= 1 && copies <= kMaxCopies) out.copies = copies;
    out.lastFolder = s.value("lastFolder").toString();
    s.endGroup();
    return out;
}

void SheetSettings::save(QSettings& s) const {
    s.beginGroup(kGroup);
    s.setValue("destination", destinationName(destination));
    s.setValue("printer", printer);
    s.setValue("paper", paper ? paperToText(*paper) : QString());
    s.setValue("orientation", orientation == 2 ? "landscape" : "portrait");
    s.setValue("copies", copies);
    s.setValue("lastFolder", lastFolder);
    s.endGroup();
    s.sync();
}

bool SheetSettings::operator==(const SheetSettings& o) const {
    const bool samePaper = paper.has_value() == o.paper.has_value() && (!paper || paper->isEquivalentTo(*o.paper));
    return destination == o.destination && printer == o.printer && samePaper && orientation == o.orientation &&
           copies == o.copies && lastFolder == o.lastFolder;
}

} // namespace gp
