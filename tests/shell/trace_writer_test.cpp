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
}
