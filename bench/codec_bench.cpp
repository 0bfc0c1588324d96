// Cost per call of the field and text codecs that every item decoder uses.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "kovrel/codec.h"

namespace {

const uint8_t kOctets[4] = {0xC3, 0x38, 0x5A, 0x01};

void Codec_UnsignedDecode(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    uint32_t v = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kOctets);
        ast_unsigned_decode(&v, kOctets, n);
        benchmark::DoNotOptimize(v);
    }
}
BENCHMARK(Codec_UnsignedDecode)->Arg(1)->Arg(2)->Arg(4);

void Codec_UnsignedDecodeEx(benchmark::State &state) {
    uint32_t v = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kOctets);
        ast_unsigned_decode_ex(&v, kOctets, 2, 2);
        benchmark::DoNotOptimize(v);
    }
}
BENCHMARK(Codec_UnsignedDecodeEx);

void Codec_TwosComplementDecode(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    int32_t v = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kOctets);
        ast_twos_complement_decode(&v, kOctets, n);
        benchmark::DoNotOptimize(v);
    }
}
BENCHMARK(Codec_TwosComplementDecode)->Arg(1)->Arg(2)->Arg(4);

void Codec_TwosComplementDecodeEx(benchmark::State &state) {
    int32_t v = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kOctets);
        ast_twos_complement_decode_ex(&v, kOctets, 2, 2);
        benchmark::DoNotOptimize(v);
    }
}
BENCHMARK(Codec_TwosComplementDecodeEx);

void Codec_UnsignedEncode(benchmark::State &state) {
    uint8_t out[4] = {};
    uint32_t value = 0x12345678;
    for (auto _ : state) {
        ast_unsigned_encode(out, 4, value++);
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(Codec_UnsignedEncode);

void Codec_TwosComplementEncodeEx(benchmark::State &state) {
    uint8_t out[2] = {0xC0, 0};
    int32_t value = -200;
    for (auto _ : state) {
        ast_twos_complement_encode_ex(out, 2, value--, 2);
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(Codec_TwosComplementEncodeEx);

// One eight-character aircraft identification, both directions.
void Codec_IcaoCallsign(benchmark::State &state) {
    const char callsign[8] = {'A', 'F', 'R', '1', '2', '3', 'X', ' '};
    for (auto _ : state) {
        unsigned sum = 0;
        for (char ch : callsign) sum += ast_icao_to_ansi(ast_ansi_to_icao(ch));
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(Codec_IcaoCallsign);

void Codec_LatLongToStr(benchmark::State &state) {
    char buf[40];
    double lat = 48.123456;
    for (auto _ : state) {
        benchmark::DoNotOptimize(lat);
        benchmark::DoNotOptimize(ast_latlong_to_str(buf, sizeof buf, lat, -2.999999));
    }
}
BENCHMARK(Codec_LatLongToStr);

void Codec_LatLongToStrVeryHigh(benchmark::State &state) {
    char buf[40];
    double lat = 48.123456;
    for (auto _ : state) {
        benchmark::DoNotOptimize(lat);
        benchmark::DoNotOptimize(ast_latlong_to_str_very_high(buf, sizeof buf, lat, -2.999999));
    }
}
BENCHMARK(Codec_LatLongToStrVeryHigh);

}  // namespace
