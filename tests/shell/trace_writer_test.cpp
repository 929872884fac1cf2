// The trace's number format: the shortest digits that read back to the same
// Single, in plain decimals.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "shell/trace_writer.h"

using gp::TraceWriter;

namespace {
std::string fmt(float v) {
    std::string s;
    TraceWriter::appendNumber(s, v);
    return s;
}
}

TEST(TraceNumbers, ShortestDigitsInPlainDecimals) {
    EXPECT_EQ(fmt(1247), "1247");
    EXPECT_EQ(fmt(720.5f), "720.5");
    EXPECT_EQ(fmt(-720.5f), "-720.5");
    EXPECT_EQ(fmt(0), "0");
    EXPECT_EQ(fmt(100000), "100000");
    EXPECT_EQ(fmt(32768), "32768");
    EXPECT_EQ(fmt(0.1f), "0.1");
    EXPECT_EQ(fmt(-1.0f / 3), "-0.33333334");
    EXPECT_EQ(fmt(0.9392857f), "0.9392857");
    EXPECT_EQ(fmt(16777216.0f), "16777216");
    EXPECT_EQ(fmt(1e30f), "1e+30");
    // Either side of where plain decimals stop: 1e-7 and below 1e21.
    EXPECT_EQ(fmt(1e-7f), "0.0000001");
    EXPECT_EQ(fmt(1.5e-7f), "0.00000015");
    EXPECT_EQ(fmt(1e-8f), "1e-08");
    EXPECT_EQ(fmt(1e20f), "100000000000000000000");
    EXPECT_EQ(fmt(9.999999e20f), "999999900000000000000");
    EXPECT_EQ(fmt(1e21f), "1e+21");
    EXPECT_EQ(fmt(-0.0f), "-0");
    EXPECT_EQ(fmt(123456789.0f), "123456790");
    // Whole numbers below 2^24 take a short way; either side of its edge
    // the text is the same as the long way's.
    EXPECT_EQ(fmt(16777215.0f), "16777215");
    EXPECT_EQ(fmt(-16777215.0f), "-16777215");
    EXPECT_EQ(fmt(16777218.0f), "16777218");
    EXPECT_EQ(fmt(-1.0f), "-1");
    EXPECT_EQ(fmt(1e7f), "10000000");
    EXPECT_EQ(fmt(16777215.5f), "16777216");  // no such Single: it is 2^24
    EXPECT_EQ(fmt(8388607.5f), "8388607.5");
    // Whatever the form, the text reads back to the same Single.
    for (float v : {3.1415925f, 1e-6f, 123456.79f, -0.001f, 8943.05f, 2.5e20f, 1e-9f}) {
        EXPECT_EQ(std::strtof(fmt(v).c_str(), nullptr), v) << fmt(v);
    }
}

TEST(TraceStrings, AreEscapedForJson) {
    std::string s;
    TraceWriter::appendString(s, "a\"b\\c\nd\te\x01");
    EXPECT_EQ(s, "\"a\\\"b\\\\c\\nd\\te\\u0001\"");
    std::string u;
    TraceWriter::appendString(u, "\xcf\x80=\xff");  // pi, then a byte that is no UTF-8
    EXPECT_EQ(u, "\"\xcf\x80=\\ufffd\"");
    // Text with nothing to escape is copied as it is, DEL and all.
    std::string plain;
    TraceWriter::appendString(plain, "frmHalfCube 1/2 \x7f");
    EXPECT_EQ(plain, "\"frmHalfCube 1/2 \x7f\"");
    std::string empty;
    TraceWriter::appendString(empty, "");
    EXPECT_EQ(empty, "\"\"");
}

TEST(TraceLines, EachSurfaceKeepsItsOwnNameAsTheSurfacesTakeTurns) {
    std::FILE* f = std::tmpfile();
    ASSERT_NE(f, nullptr);
    {
        TraceWriter trace(f);
        const gp::Stroke s{1, 2.5f, -3, 4, 1, 2, -1};
        trace.line("Printer", s);
        trace.line("frmA", s);
        trace.cls("frmA");
        trace.line("Printer", s);
        trace.line("say \"hi\"", s);
        trace.pset("frmA", 7, 8, 1, 255);
    }
    std::rewind(f);
    std::string got;
    char chunk[512];
    for (size_t n; (n = std::fread(chunk, 1, sizeof chunk, f)) > 0;) got.append(chunk, n);
    std::fclose(f);
    const std::string stroke = ",\"x1\":1,\"y1\":2.5,\"x2\":-3,\"y2\":4,\"style\":1,\"width\":2,\"color\":-1}\n";
    EXPECT_EQ(got, "{\"s\":\"Printer\",\"op\":\"line\"" + stroke +
                       "{\"s\":\"frmA\",\"op\":\"line\"" + stroke +
                       "{\"s\":\"frmA\",\"op\":\"cls\"}\n"
                       "{\"s\":\"Printer\",\"op\":\"line\"" + stroke +
                       "{\"s\":\"say \\\"hi\\\"\",\"op\":\"line\"" + stroke +
                       "{\"s\":\"frmA\",\"op\":\"pset\",\"x\":7,\"y\":8,\"width\":1,\"color\":255}\n");
}
