#include "platform/sheet_files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <filesystem>

#include "shell/safe_file.h"

namespace gp {

QString fileSafeName(const std::string& name) {
    QString out;
    for (const QChar c : QString::fromStdString(name)) {
        if (c.isSpace()) out += ' ';
        else if (c == '/' || c == '\\' || c.category() == QChar::Other_Control) out += '-';
        else out += c;
    }
    out = out.simplified();
    while (out.startsWith('.')) out.remove(0, 1);
    // Room for the number and the extension within a file name's 255 bytes.
    while (out.toUtf8().size() > 200) out.chop(1);
    return out.isEmpty() ? QString("sheet") : out;
}

QString nextSheetFile(const QString& folder, const std::string& name, const QString& extension) {
    const QString base = fileSafeName(name);
    const QRegularExpression numbered("^" + QRegularExpression::escape(base + " - ") + "([0-9]{1,9})\\." +
                                      QRegularExpression::escape(extension) + "$",
                                      QRegularExpression::CaseInsensitiveOption);
    long highest = 0;
    for (const QString& entry : QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System)) {
        const QRegularExpressionMatch m = numbered.match(entry);
        if (m.hasMatch()) highest = std::max(highest, m.captured(1).toLong());
    }
    return QDir(folder).filePath(QString("%1 - %2.%3").arg(base).arg(highest + 1).arg(extension));
}

OutputResult writeNumberedSheet(const QString& folder, const std::string& name, const QString& extension,
                                std::string_view bytes, QString& written) {
    // The system's own words for a folder that cannot be made ("Not a
    // directory" where a file stands in the way).
    std::error_code made;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), made);
    if (made) return OutputResult::failed(folder.toStdString(), made.message());
    std::string error;
    // A name taken between the look and the write is passed over, never
    // written through; a handful of tries is enough for any race.
    for (int attempt = 0; attempt < 20; ++attempt) {
        written = nextSheetFile(folder, name, extension);
        int code = 0;
        if (writeFileSafely(QFile::encodeName(written).toStdString(), bytes, false, error, &code))
            return OutputResult::written();
        if (code != EEXIST) break;
    }
    return OutputResult::failed(written.toStdString(), error);
}

} // namespace gp
