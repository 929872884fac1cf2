#pragma once
// The number vocabulary that every page is written in. The pages' strokes
// depend on exactly where values are floored, rounded or narrowed, so each
// type and function here behaves as its name promises and nothing more:
//
//   Integer  16-bit signed; every store checks the range and rounds a
//            fraction half to even, as CInt does.
//   Long     32-bit signed, likewise.
//   Single   float, Double double.
//
// Arithmetic on Integer values happens in int (C++'s own promotion); the
// store back into an Integer is where the range is checked. Where a 16-bit
// intermediate product matters, IMul says so.

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

#include "shell/faults.h"

namespace gp {

using Single = float;
using Double = double;

namespace detail {
// Round half to even; an Overflow for NaN or a value beyond +-4e18, which
// every checked type here refuses anyway and which keeps the cast defined.
// Inline, as are Int, CInt and CSng below: a preview at a small side calls
// them millions of times.
inline long long roundHalfEven(double x) {
    if (!(std::fabs(x) <= 4.0e18)) throwOverflow();  // NaN fails the test too
    return static_cast<long long>(std::nearbyint(x));  // the default rounding mode is half to even
}
}

template <typename Rep, long long Lo, long long Hi>
class CheckedInt {
public:
    constexpr CheckedInt() = default;

    template <typename T, std::enable_if_t<std::is_integral_v<T>, int> = 0>
    CheckedInt(T v) : v_(check(static_cast<long long>(v))) {}

    template <typename T, std::enable_if_t<std::is_floating_point_v<T>, int> = 0>
    CheckedInt(T v) : v_(check(detail::roundHalfEven(static_cast<double>(v)))) {}

    template <typename R2, long long L2, long long H2>
    CheckedInt(CheckedInt<R2, L2, H2> other) : v_(check(static_cast<long long>(other.value()))) {}

    operator Rep() const { return v_; }
    Rep value() const { return v_; }

    CheckedInt& operator+=(long long d) { v_ = check(static_cast<long long>(v_) + d); return *this; }
    CheckedInt& operator-=(long long d) { v_ = check(static_cast<long long>(v_) - d); return *this; }
    CheckedInt& operator++() { return *this += 1; }
    CheckedInt& operator--() { return *this -= 1; }

private:
    static Rep check(long long v) {
        if (v < Lo || v > Hi) throwOverflow();
        return static_cast<Rep>(v);
    }
    Rep v_ = 0;
};

using Integer = CheckedInt<int, -32768, 32767>;
using Long = CheckedInt<long, -2147483648LL, 2147483647LL>;

// The number at the head of a text; blanks, tabs and line feeds are skipped
// wherever they stand, and text that is no number is 0.
Double Val(const std::string& text);

// Floor, kept as a Double; the caller decides whether it goes into an Integer.
inline Double Int(Double x) { return std::floor(x); }

// Round half to even into an Integer / Long.
inline Integer CInt(Double x) { return Integer(x); }
inline Long CLng(Double x) { return Long(x); }

// Single from Double, with the range check that a Single store makes.
inline Single CSng(Double x) {
    const float f = static_cast<float>(x);
    if (!(std::fabs(f) <= std::numeric_limits<float>::max())) throwOverflow();  // an infinity, or NaN
    return f;
}

// The whole text as a number; TypeMismatch where it is not one.
Double CDbl(const std::string& text);

Double Abs(Double x);

// a \ b and a Mod b: operands are rounded to whole numbers first, the
// quotient is cut towards zero and the remainder takes the sign of a.
Long IDiv(Double a, Double b);
Long Mod(Double a, Double b);

// A Double division that faults on 0, where a page must not go on with
// an infinite quotient.
Double Div(Double a, Double b);

// a * b as a 16-bit Integer product: faults where the product leaves the
// Integer range even if the caller stores it somewhere wider.
Integer IMul(Integer a, Integer b);

// Number to text with a leading blank for a value that is not negative and
// no 0 before the point: Str(0.5) is " .5". Doubles keep 15 significant
// digits, Singles 7. An infinity or a NaN, which no store could have made,
// is an Overflow.
std::string Str(Double x);
std::string Str(Single x);
std::string Str(long long x);
inline std::string Str(int x) { return Str(static_cast<long long>(x)); }
inline std::string Str(long x) { return Str(static_cast<long long>(x)); }
inline std::string Str(Integer x) { return Str(static_cast<long long>(x.value())); }
inline std::string Str(Long x) { return Str(static_cast<long long>(x.value())); }

std::string Trim(const std::string& s);

// r + 256 g + 65536 b.
Long RGB(int r, int g, int b);

} // namespace gp
