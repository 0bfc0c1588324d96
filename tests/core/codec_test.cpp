// Field and text codecs: wire octets in, values and texts out.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include "kovrel/codec.h"

namespace {

TEST(Codec, UnsignedDecodeWidthsAndSkip) {
    const uint8_t in[] = {0x12, 0x34, 0x56, 0x78};
    uint32_t v = 0;
    ast_unsigned_decode(&v, in, 1);
    EXPECT_EQ(v, 0x12u);
    ast_unsigned_decode(&v, in, 3);
    EXPECT_EQ(v, 0x123456u);
    ast_unsigned_decode(&v, in, 4);
    EXPECT_EQ(v, 0x12345678u);

    const uint8_t hi[] = {0xFF, 0x01};
    ast_unsigned_decode_ex(&v, hi, 2, 3);
    EXPECT_EQ(v, 0x1F01u);
    ast_unsigned_decode_ex(&v, hi, 1, 7);
    EXPECT_EQ(v, 0x01u);
    ast_unsigned_decode_ex(&v, hi, 2, 0);
    EXPECT_EQ(v, 0xFF01u);
}

TEST(Codec, TwosComplementDecodeSignExtension) {
    int32_t v = 0;
    const uint8_t a[] = {0xFF, 0x38};
    ast_twos_complement_decode(&v, a, 2);
    EXPECT_EQ(v, -200);
    const uint8_t b[] = {0x3F, 0x38};
    ast_twos_complement_decode_ex(&v, b, 2, 2);
    EXPECT_EQ(v, -200);
    const uint8_t c[] = {0xC0, 0x01};  // top two bits belong to another field
    ast_twos_complement_decode_ex(&v, c, 2, 2);
    EXPECT_EQ(v, 1);
    const uint8_t d[] = {0x80, 0x00, 0x00, 0x00};
    ast_twos_complement_decode(&v, d, 4);
    EXPECT_EQ(v, std::numeric_limits<int32_t>::min());
    ast_twos_complement_decode(&v, d, 1);
    EXPECT_EQ(v, -128);
    const uint8_t e[] = {0x7F};
    ast_twos_complement_decode(&v, e, 1);
    EXPECT_EQ(v, 127);
    const uint8_t one_bit[] = {0x01};
    ast_twos_complement_decode_ex(&v, one_bit, 1, 7);
    EXPECT_EQ(v, -1);
}

TEST(Codec, BadArgumentsLeaveOutputsUntouched) {
    const uint8_t in[] = {0x12, 0x34, 0x56, 0x78, 0x9A};
    for (int n : {0, 5, -1, 1 << 30}) {
        uint32_t u = 0xDEADBEEF;
        int32_t s = 0x5A5A5A5A;
        ast_unsigned_decode(&u, in, n);
        ast_unsigned_decode_ex(&u, in, n, 0);
        ast_twos_complement_decode(&s, in, n);
        ast_twos_complement_decode_ex(&s, in, n, 0);
        EXPECT_EQ(u, 0xDEADBEEFu) << n;
        EXPECT_EQ(s, 0x5A5A5A5A) << n;
        uint8_t out[6] = {1, 2, 3, 4, 5, 6};
        ast_unsigned_encode(out, n, 0);
        ast_unsigned_encode_ex(out, n, 0, 0);
        ast_twos_complement_encode_ex(out, n, 0, 0);
        EXPECT_FALSE(ast_twos_complement_encode(out, n, 0)) << n;
        EXPECT_EQ(std::memcmp(out, "\1\2\3\4\5\6", 6), 0) << n;
    }
    for (int skip : {-1, 8, 100}) {
        uint32_t u = 7;
        int32_t s = 7;
        uint8_t out[2] = {0xAA, 0xBB};
        ast_unsigned_decode_ex(&u, in, 2, skip);
        ast_twos_complement_decode_ex(&s, in, 2, skip);
        ast_unsigned_encode_ex(out, 2, 0, skip);
        ast_twos_complement_encode_ex(out, 2, 0, skip);
        EXPECT_EQ(u, 7u);
        EXPECT_EQ(s, 7);
        EXPECT_EQ(out[0], 0xAA);
        EXPECT_EQ(out[1], 0xBB);
    }
    uint32_t u = 7;
    ast_unsigned_decode(&u, nullptr, 2);
    EXPECT_EQ(u, 7u);
    ast_unsigned_decode(nullptr, in, 2);  // must not crash
    EXPECT_FALSE(ast_twos_complement_encode(nullptr, 2, 1));
}

TEST(Codec, EncodeWritesLowBitsAndKeepsNeighbours) {
    uint8_t out[3] = {0, 0, 0xEE};
    ast_unsigned_encode(out, 2, 0x12345);  // too wide: cut to its low bits
    EXPECT_EQ(out[0], 0x23);
    EXPECT_EQ(out[1], 0x45);
    EXPECT_EQ(out[2], 0xEE);

    uint8_t ex[2] = {0xA0, 0x00};
    ast_unsigned_encode_ex(ex, 2, 0x123, 4);
    EXPECT_EQ(ex[0], 0xA1);
    EXPECT_EQ(ex[1], 0x23);
    ast_unsigned_encode_ex(ex, 2, 0xFFFF, 4);
    EXPECT_EQ(ex[0], 0xAF);
    EXPECT_EQ(ex[1], 0xFF);
    ast_unsigned_encode_ex(ex, 1, 0x05, 0);  // no skip: whole octet replaced
    EXPECT_EQ(ex[0], 0x05);

    uint8_t t[4] = {0, 0, 0, 0x11};
    EXPECT_TRUE(ast_twos_complement_encode(t, 3, -1));
    EXPECT_EQ(t[0], 0xFF);
    EXPECT_EQ(t[1], 0xFF);
    EXPECT_EQ(t[2], 0xFF);
    EXPECT_EQ(t[3], 0x11);

    uint8_t te[2] = {0x80, 0x00};
    ast_twos_complement_encode_ex(te, 2, -200, 2);
    EXPECT_EQ(te[0], 0xBF);
    EXPECT_EQ(te[1], 0x38);
}

TEST(Codec, EncodeDecodeRoundTripEveryWidthAndSkip) {
    for (int n = 1; n <= 4; ++n) {
        for (int skip = 0; skip < 8; ++skip) {
            const int w = 8 * n - skip;
            const int64_t smin = -(int64_t{1} << (w - 1));
            const int64_t smax = (int64_t{1} << (w - 1)) - 1;
            const uint32_t umax = static_cast<uint32_t>((int64_t{1} << w) - 1);
            for (int64_t sv : {smin, smax, int64_t{-1}, int64_t{0}, int64_t{1}}) {
                if (sv > smax) continue;  // a one-bit field holds -1 and 0 only
                uint8_t buf[4] = {0xFF, 0, 0, 0};
                ast_twos_complement_encode_ex(buf, n, static_cast<int32_t>(sv), skip);
                int32_t back = 0;
                ast_twos_complement_decode_ex(&back, buf, n, skip);
                EXPECT_EQ(back, sv) << "n=" << n << " skip=" << skip;
                EXPECT_EQ(buf[0] | (0xFF >> skip), 0xFF);  // bits above the field kept
            }
            for (uint32_t uv : {uint32_t{0}, uint32_t{1}, umax}) {
                uint8_t buf[4] = {0, 0, 0, 0};
                ast_unsigned_encode_ex(buf, n, uv, skip);
                uint32_t back = 0;
                ast_unsigned_decode_ex(&back, buf, n, skip);
                EXPECT_EQ(back, uv) << "n=" << n << " skip=" << skip;
            }
        }
    }
}

TEST(Codec, IcaoCharacterSet) {
    EXPECT_EQ(ast_icao_to_ansi(1), 'A');
    EXPECT_EQ(ast_icao_to_ansi(26), 'Z');
    EXPECT_EQ(ast_icao_to_ansi(0x41), 'A');  // bits 6 and 7 ignored
    EXPECT_EQ(ast_icao_to_ansi(-63), 'A');   // low six bits of a negative int are 1
    EXPECT_EQ(ast_icao_to_ansi(32), ' ');
    EXPECT_EQ(ast_icao_to_ansi(48), '0');
    EXPECT_EQ(ast_icao_to_ansi(57), '9');
    for (int code : {0, 27, 31, 33, 47, 58, 63}) EXPECT_EQ(ast_icao_to_ansi(code), 0) << code;

    EXPECT_EQ(ast_ansi_to_icao('A'), 1);
    EXPECT_EQ(ast_ansi_to_icao('z'), 26);
    EXPECT_EQ(ast_ansi_to_icao('m'), ast_ansi_to_icao('M'));
    EXPECT_EQ(ast_ansi_to_icao('7'), 55);
    EXPECT_EQ(ast_ansi_to_icao(' '), 32);
    for (char ch : {'@', '[', '`', '{', '/', ':', '\0', '-', static_cast<char>(0xC1)})
        EXPECT_EQ(ast_ansi_to_icao(ch), 0) << int(ch);

    for (int code = 0; code < 64; ++code) {
        const char ch = ast_icao_to_ansi(code);
        if (ch != 0) {
            EXPECT_EQ(ast_ansi_to_icao(ch), code);
        }
    }
}

TEST(Codec, LatLongRoundedSeconds) {
    char buf[32];
    EXPECT_STREQ(ast_latlong_to_str(buf, sizeof buf, 48.5, 2.25), "483000N0021500E");
    // 59.9964 s rounds to 60 and is not carried into the minutes.
    EXPECT_STREQ(ast_latlong_to_str(buf, sizeof buf, -33.999999, -70.0), "335960S0700000W");
    EXPECT_STREQ(ast_latlong_to_str(buf, sizeof buf, 0.0, 0.0), "000000S0000000W");
    EXPECT_STREQ(ast_latlong_to_str(buf, sizeof buf, 48.123456, 179.5), "480724N1793000E");

    char small[5] = {'x', 'x', 'x', 'x', 'x'};
    EXPECT_EQ(ast_latlong_to_str(small, sizeof small, 48.5, 2.25), small);
    EXPECT_STREQ(small, "4830");
    char untouched[2] = {'x', 'y'};
    EXPECT_EQ(ast_latlong_to_str(untouched, 0, 1.0, 1.0), nullptr);
    EXPECT_EQ(untouched[0], 'x');
    EXPECT_EQ(ast_latlong_to_str(nullptr, 16, 1.0, 1.0), nullptr);
}

TEST(Codec, LatLongFractions) {
    char buf[40];
    EXPECT_STREQ(ast_latlong_to_str_high(buf, sizeof buf, 48.5, 2.25), "483000.00N0021500.00E");
    EXPECT_STREQ(ast_latlong_to_str_high(buf, sizeof buf, 48.123456, -2.999999),
                 "480724.44N0025959.100W");  // 59.9964 s: truncated, hundredths reach 100
    EXPECT_STREQ(ast_latlong_to_str_very_high(buf, sizeof buf, 48.123456, 0.0),
                 "480724.441600N0000000.000000W");
    EXPECT_STREQ(ast_latlong_to_str_very_high(buf, sizeof buf, -0.5, 10.000001),
                 "003000.000000S0100000.003600E");
    EXPECT_EQ(ast_latlong_to_str_high(buf, 0, 1.0, 1.0), nullptr);
    EXPECT_EQ(ast_latlong_to_str_very_high(nullptr, 8, 1.0, 1.0), nullptr);

    // Values no receiver produces still give a terminated text within the buffer.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (double v : {nan, 1e300, -1e300, std::numeric_limits<double>::infinity()}) {
        char guard[24];
        std::memset(guard, '#', sizeof guard);
        ASSERT_NE(ast_latlong_to_str_very_high(guard, 16, v, v), nullptr);
        EXPECT_LT(std::strlen(guard), 16u);
        EXPECT_EQ(guard[16], '#');
    }
}

TEST(Codec, OctetAsBinaryDigits) {
    char buf[9];
    EXPECT_STREQ(ast_hex_to_bin(buf, sizeof buf, 0xA5), "10100101");
    EXPECT_STREQ(ast_hex_to_bin(buf, sizeof buf, 0x00), "00000000");
    EXPECT_STREQ(ast_hex_to_bin(buf, sizeof buf, 0x01), "00000001");
    EXPECT_STREQ(ast_hex_to_bin(buf, sizeof buf, 0x80), "10000000");
    char shortbuf[8] = {'x'};
    EXPECT_EQ(ast_hex_to_bin(shortbuf, sizeof shortbuf, 0xFF), nullptr);
    EXPECT_EQ(shortbuf[0], 'x');
    EXPECT_EQ(ast_hex_to_bin(nullptr, 9, 0xFF), nullptr);
}

TEST(Codec, HexDigitAndOctalText) {
    EXPECT_EQ(ast_hex_to_int('0'), 0u);
    EXPECT_EQ(ast_hex_to_int('9'), 9u);
    EXPECT_EQ(ast_hex_to_int('A'), 10u);
    EXPECT_EQ(ast_hex_to_int('f'), 15u);
    for (char ch : {'g', 'G', '/', ':', '@', '`', ' ', '\0'})
        EXPECT_EQ(ast_hex_to_int(ch), 0xFFFFFFFFu) << int(ch);

    EXPECT_EQ(ast_atoi_oct("  -17"), -15);
    EXPECT_EQ(ast_atoi_oct("x"), 0);
    EXPECT_EQ(ast_atoi_oct("19"), 17);  // 8 and 9 weighted in base 8
    EXPECT_EQ(ast_atoi_oct("+7777"), 4095);
    EXPECT_EQ(ast_atoi_oct("\t\n 10z7"), 8);
    EXPECT_EQ(ast_atoi_oct(""), 0);
    EXPECT_EQ(ast_atoi_oct("-"), 0);
    EXPECT_EQ(ast_atoi_oct("--1"), 0);
    EXPECT_EQ(ast_atoi_oct("+ 1"), 0);
    EXPECT_EQ(ast_atoi_oct("37777777777"), -1);  // no overflow check: wraps
    EXPECT_EQ(ast_atoi_oct(nullptr), 0);
}

TEST(Codec, BoundedStringHelpers) {
    char dst[6] = {'#', '#', '#', '#', '#', '#'};
    EXPECT_EQ(ast_strncpy(dst, "abc", 0), dst);
    EXPECT_EQ(dst[0], '#');
    ast_strncpy(dst, "abc", 1);
    EXPECT_EQ(dst[0], '\0');
    EXPECT_EQ(dst[1], '#');
    ast_strncpy(dst, "abc", 4);
    EXPECT_STREQ(dst, "abc");
    ast_strncpy(dst, "abcdefgh", 3);
    EXPECT_STREQ(dst, "ab");
    const char unterminated[3] = {'x', 'y', 'z'};  // only the part that fits is read
    ast_strncpy(dst, unterminated, 3);
    EXPECT_STREQ(dst, "xy");

    uint8_t mem[4] = {1, 2, 3, 4};
    EXPECT_EQ(ast_memset(mem, sizeof mem, 0x1AB, 3), 0);
    EXPECT_EQ(mem[0], 0xAB);
    EXPECT_EQ(mem[2], 0xAB);
    EXPECT_EQ(mem[3], 4);
    EXPECT_EQ(ast_memset(mem, sizeof mem, 0, 0), 0);
    EXPECT_EQ(mem[0], 0xAB);
}

}  // namespace
