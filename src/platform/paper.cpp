#include "platform/paper.h"

#include <QPrinterInfo>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstdint>
#include <fstream>
#include <langinfo.h>
#include <locale.h>

namespace gp {

namespace {

std::string lowerTrimmed(const std::string& text) {
    std::string s;
    for (char c : text)
        if (!std::isspace(static_cast<unsigned char>(c))) s += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

// The locale that LC_PAPER comes from, by the usual order of the variables.
std::string paperLocaleName() {
    for (const char* var : {"LC_ALL", "LC_PAPER", "LANG"}) {
        const char* v = std::getenv(var);
        if (v && *v) return v;
    }
    return "";
}

} // namespace

std::optional<QPageSize> paperFromName(const std::string& text) {
    static const struct {
        const char* name;
        QPageSize::PageSizeId id;
    } kNames[] = {
        {"letter", QPageSize::Letter}, {"legal", QPageSize::Legal},     {"a3", QPageSize::A3},
        {"a4", QPageSize::A4},         {"a5", QPageSize::A5},           {"b5", QPageSize::B5},
        {"executive", QPageSize::Executive}, {"tabloid", QPageSize::Tabloid}, {"ledger", QPageSize::Ledger},
    };
    const std::string name = lowerTrimmed(text);
    for (const auto& n : kNames)
        if (name == n.name) return QPageSize(n.id);
    return std::nullopt;
}

std::optional<QPageSize> paperNamed(const std::string& name) {
    if (name == "system") return systemPaper();
    static const char* const kScriptNames[] = {"letter", "legal", "a3", "a4", "a5"};
    const std::string lower = lowerTrimmed(name);
    for (const char* n : kScriptNames)
        if (lower == n && lower.size() == name.size()) return paperFromName(lower);
    return std::nullopt;
}

std::optional<QPageSize> paperFromFile(const std::string& path) {
    std::ifstream in(path);
    std::string line;
    // The file holds one paper name; blank lines and # comments may stand
    // before it. Only the first few lines are looked at.
    for (int i = 0; i < 20 && std::getline(in, line); ++i) {
        const std::string name = lowerTrimmed(line);
        if (name.empty() || name[0] == '#') continue;
        return paperFromName(name);
    }
    return std::nullopt;
}

std::optional<QPageSize> paperFromLocale() {
    const std::string name = paperLocaleName();
    // The C locale's paper is a built-in default, not anybody's choice.
    if (name.empty() || name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0) return std::nullopt;
    locale_t loc = newlocale(LC_PAPER_MASK, name.c_str(), static_cast<locale_t>(nullptr));
    if (!loc) return std::nullopt;
    // glibc gives the paper's size in millimetres as a number in the pointer.
    const auto height = static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(nl_langinfo_l(_NL_PAPER_HEIGHT, loc)));
    const auto width = static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(nl_langinfo_l(_NL_PAPER_WIDTH, loc)));
    freelocale(loc);
    if (width == 0 || height == 0) return std::nullopt;
    const QPageSize paper(QSizeF(width, height), QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch);
    if (paper.id() != QPageSize::Custom) return QPageSize(paper.id());
    return paper;
}

QPageSize systemPaper() {
    if (const char* env = std::getenv("PAPERSIZE"); env && *env)
        if (auto p = paperFromName(env)) return *p;
    if (auto p = paperFromFile("/etc/papersize")) return *p;
    if (auto p = paperFromLocale()) return *p;
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    if (!printer.isNull() && printer.defaultPageSize().isValid()) return printer.defaultPageSize();
    return QPageSize(QPageSize::Letter);
}

TwipsSize paperTwips(const QPageSize& paper) {
    const QSizeF size = paper.definitionSize();
    double perUnit = 20.0;  // points
    switch (paper.definitionUnits()) {
    case QPageSize::Millimeter: perUnit = 1440.0 / 25.4; break;
    case QPageSize::Inch: perUnit = 1440.0; break;
    case QPageSize::Cicero: perUnit = 20.0 * 12.0 * 1.066978; break;
    case QPageSize::Didot: perUnit = 20.0 * 1.066978; break;
    case QPageSize::Pica: perUnit = 20.0 * 12.0; break;
    case QPageSize::Point: default: break;
    }
    return {size.width() * perUnit, size.height() * perUnit};
}

PrintableArea printableInside(const QPageSize& paper, double margin) {
    const TwipsSize t = paperTwips(paper);
    return {static_cast<int>(std::floor(t.width - 2 * margin)), static_cast<int>(std::floor(t.height - 2 * margin))};
}

} // namespace gp
