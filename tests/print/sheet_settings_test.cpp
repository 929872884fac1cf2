// The pieces behind the Printing menu that need no print system: the kept
// choice, numbered sheet names in a folder, and the name a sheet gets from
// the form that printed it.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSizeF>
#include <QTemporaryDir>

#include "platform/sheet_files.h"
#include "platform/sheet_settings.h"
#include "support/test_app.h"

namespace gp {
namespace {

TEST(SheetSettings, EveryChoiceComesBackFromTheSettingsFile) {
    QTemporaryDir dir;
    const QString file = dir.filePath("gridpages.conf");
    SheetSettings chosen;
    chosen.destination = SheetSettings::Destination::SvgFile;
    chosen.printer = "Classroom/duplex";
    chosen.paper = QPageSize(QSizeF(300, 400.5), QPageSize::Point, QString(), QPageSize::ExactMatch);
    chosen.orientation = 2;
    chosen.copies = 30;
    chosen.lastFolder = "/home/teacher/Cutting machine";
    {
        QSettings s(file, QSettings::IniFormat);
        chosen.save(s);
    }
    QSettings s(file, QSettings::IniFormat);
    const SheetSettings back = SheetSettings::load(s);
    EXPECT_TRUE(back == chosen);
    ASSERT_TRUE(back.paper);
    EXPECT_NEAR(back.paper->size(QPageSize::Point).height(), 400.5, 1e-6);

    chosen.paper = QPageSize(QPageSize::A4);
    chosen.destination = SheetSettings::Destination::PdfFile;
    chosen.save(s);
    EXPECT_EQ(s.value("sheets/paper").toString(), "A4");
    const SheetSettings a4 = SheetSettings::load(s);
    EXPECT_EQ(a4.paper->id(), QPageSize::A4);
    EXPECT_EQ(a4.destination, SheetSettings::Destination::PdfFile);
}

TEST(SheetSettings, ADamagedFileFallsBackValueByValue) {
    QTemporaryDir dir;
    QSettings s(dir.filePath("gridpages.conf"), QSettings::IniFormat);
    const SheetSettings defaults;
    for (const char* copies : {"0", "1000", "-3", "thirty", ""}) {
        s.setValue("sheets/copies", copies);
        EXPECT_EQ(SheetSettings::load(s).copies, 1) << copies;
    }
    s.setValue("sheets/copies", "999");
    EXPECT_EQ(SheetSettings::load(s).copies, 999);
    s.setValue("sheets/destination", "fax");
    s.setValue("sheets/orientation", "sideways");
    s.setValue("sheets/paper", "A44");
    const SheetSettings damaged = SheetSettings::load(s);
    EXPECT_EQ(damaged.destination, SheetSettings::Destination::Printer);
    EXPECT_EQ(damaged.orientation, 1);
    EXPECT_FALSE(damaged.paper);
}

TEST(SheetSettings, PaperAsTextOnlyTakesSensibleSizes) {
    EXPECT_EQ(paperToText(QPageSize(QPageSize::Letter)), "Letter");
    EXPECT_EQ(paperFromText("Letter")->id(), QPageSize::Letter);
    EXPECT_EQ(paperFromText("A5")->id(), QPageSize::A5);
    EXPECT_FALSE(paperFromText(""));
    EXPECT_FALSE(paperFromText("letter "));
    EXPECT_FALSE(paperFromText("10x400pt"));   // narrower than half an inch
    EXPECT_FALSE(paperFromText("400x20000pt"));
    EXPECT_FALSE(paperFromText("400x500"));
    EXPECT_FALSE(paperFromText("400xpt"));
    ASSERT_TRUE(paperFromText("36x14400pt"));
    EXPECT_EQ(paperFromText("36x14400pt")->id(), QPageSize::Custom);
}

void touch(const QString& path) { QFile(path).open(QIODevice::WriteOnly); }

TEST(SheetFiles, TheNumberGoesOnAfterTheHighestSheetOfThatName) {
    QTemporaryDir dir;
    const QString d = dir.path();
    EXPECT_EQ(nextSheetFile(d, "Half Cube 2 in", "pdf"), d + "/Half Cube 2 in - 1.pdf");
    touch(d + "/Half Cube 2 in - 1.pdf");
    touch(d + "/Half Cube 2 in - 9.pdf");
    // Neither another name, nor another kind of file, nor a near miss counts.
    for (const char* other : {"Half Cube 2 in - 50.svg", "Half Cube 3 in - 70.pdf", "Half Cube 2 in - 80.pdf.bak",
                              "Half Cube 2 in - .pdf", "Half Cube 2 in -90.pdf", "xHalf Cube 2 in - 60.pdf"})
        touch(d + "/" + other);
    EXPECT_EQ(nextSheetFile(d, "Half Cube 2 in", "pdf"), d + "/Half Cube 2 in - 10.pdf");
    EXPECT_EQ(nextSheetFile(d, "Half Cube 2 in", "svg"), d + "/Half Cube 2 in - 51.svg");
    // Names that mean something to a pattern are taken literally.
    touch(d + "/a+b (2) - 4.pdf");
    EXPECT_EQ(nextSheetFile(d, "a+b (2)", "pdf"), d + "/a+b (2) - 5.pdf");
    EXPECT_EQ(nextSheetFile(d + "/missing", "x", "pdf"), d + "/missing/x - 1.pdf");
}

TEST(SheetFiles, ASheetNameBecomesOneSafeFileName) {
    EXPECT_EQ(fileSafeName("Triangles 1/2 in"), "Triangles 1-2 in");
    EXPECT_EQ(fileSafeName("..\\up"), "-up");
    EXPECT_EQ(fileSafeName(".hidden"), "hidden");
    EXPECT_EQ(fileSafeName("  a\tb\nc  "), "a b c");
    EXPECT_EQ(fileSafeName(std::string("a\x01z")), "a-z");
    EXPECT_EQ(fileSafeName(""), "sheet");
    EXPECT_EQ(fileSafeName("..."), "sheet");
    const QString longName = fileSafeName(std::string(300, 'x') + "é");
    EXPECT_LE(longName.toUtf8().size(), 200);
    EXPECT_EQ(fileSafeName(std::string(199, 'x') + "é").toUtf8().size(), 199);  // never half a character
}

TEST(SheetFiles, WritingMakesTheFolderAndPassesOverWhatIsThere) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("new/sheets");
    QString written;
    ASSERT_TRUE(writeNumberedSheet(folder, "Triangles 1 in", "pdf", "one", written).ok());
    EXPECT_EQ(written, folder + "/Triangles 1 in - 1.pdf");
    // A dangling link where the next sheet would go is never written through.
    ASSERT_EQ(::symlink("/nonexistent/target", QFile::encodeName(folder + "/Triangles 1 in - 2.pdf").constData()), 0);
    ASSERT_TRUE(writeNumberedSheet(folder, "Triangles 1 in", "pdf", "two", written).ok());
    EXPECT_EQ(written, folder + "/Triangles 1 in - 3.pdf");
    EXPECT_FALSE(QFile::exists("/nonexistent/target"));
    QFile f(written);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), "two");

    // A folder that cannot be made is named in the failure.
    touch(dir.filePath("plain"));
    const OutputResult refused = writeNumberedSheet(dir.filePath("plain/sub"), "x", "pdf", "three", written);
    EXPECT_FALSE(refused.ok());
    EXPECT_NE(refused.error().find("plain/sub"), std::string::npos) << refused.error();
}

// The sheet's name comes from the form whose handler prints it.
class NamingSink : public PageSink {
public:
    explicit NamingSink(FormSet& forms) : forms_(forms) {}
    OutputResult emitPage(const Page&, Single, Single) override {
        const Form* form = forms_.activeForm();
        names.push_back(form ? form->sheetName() : "(none)");
        return OutputResult::written();
    }
    std::vector<std::string> names;

private:
    FormSet& forms_;
};

TEST(SheetNames, APrintedSheetIsNamedByItsFormAndTheLengthAsTyped) {
    test::TestApp t;
    NamingSink sink(t.app());
    t.session().addSheetSink(sink);
    EXPECT_EQ(t.app().activeForm(), nullptr);
    Form& halfCube = t.show("frmHalfCube");
    t.edit(halfCube, "txtLeng", " 2 ");
    t.fire(halfCube, "cmdPrintIt", Event::Click);
    Form& triangles = t.show("frmTriangle");
    t.fire(triangles, "cmdPrintIt", Event::Click);
    Form& dodeca = t.show("frmRhombiDodec");
    t.fire(dodeca, "cmdPrintIt", Event::Click);
    Form& parabola = t.show("frmParabola");
    t.fire(parabola, "cmdGraph", Event::Click);
    EXPECT_EQ(sink.names, (std::vector<std::string>{"Half Cube 2 in", "Triangles 1 in", "Rhombus Dodecahedron 1.45 in",
                                                    "Draw a Parabola"}));
    EXPECT_EQ(t.app().activeForm(), nullptr) << "no handler runs between events";
}

} // namespace
} // namespace gp
