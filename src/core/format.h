// printf-style formatting into caller buffers, without the C library's
// stream machinery.
//
// Summaries are built from a handful of short formats ("SAC:%03d SIC:%03d",
// "X:%.1f Y:%.1f LSB:M"), and vsnprintf spends most of its time setting up a
// string stream around them. These functions write the same characters as
// the C library does in the "C" locale for the conversions the library
// uses: d i u o x X c s f F and %%, with the flags - + space # 0, a width and
// a precision of at most 64 given as digits or as '*', and the length
// modifiers hh h l ll z (l also for f). Any other format (%e, %g, %p, %n,
// %ls, positional arguments, larger widths, ...) is handed to vsnprintf
// whole, so every format keeps working. The decimal point of %f is always
// '.', whatever the locale.
//
// The contract is vsnprintf's: at most size-1 characters and a NUL are
// written when size > 0, nothing at all when size is 0 (buffer may then be
// null), and the result is the length the whole text has, or -1 when that
// length does not fit an int.
#pragma once

#include <cstdarg>
#include <cstddef>

namespace kovrel {

int vformat_into(char *buffer, size_t size, const char *format, va_list ap);

int format_into(char *buffer, size_t size, const char *format, ...) __attribute__((format(printf, 3, 4)));

// Single conversions without a format to read, for the texts written most
// often. Same contract as vformat_into, and the same characters as the
// format named with each.

// "%0<width>lld" of v: zeros up to width characters, the sign included.
int format_signed_into(char *buffer, size_t size, long long v, unsigned width);

// "%0<width>llu", "%0<width>llo" or "%0<width>llX" of v, for a base of 10,
// 8 or 16 (any other base is taken as 10).
int format_unsigned_into(char *buffer, size_t size, unsigned long long v, unsigned base, unsigned width);

// "%.<decimals>f" of v.
int format_fixed_into(char *buffer, size_t size, double v, unsigned decimals);

}  // namespace kovrel
