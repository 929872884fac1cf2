// The trace's number format: the shortest digits that read back to the same
// Single, in plain decimals.
#include <gtest/gtest.h>

#include <cstdlib>

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
