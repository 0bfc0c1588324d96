// The conversions CAT048 -> CAT001 and CAT034 -> CAT002 on every record the
// fuzzer decodes: what converts assembles into a buffer of exactly its
// length and decodes back to it; one octet less is refused without a write
// past the buffer.
#include <cstring>

#include "fuzz_records.h"

namespace fuzzing {
namespace {

constexpr size_t kCanary = 32;

// Assembles into g_buffer with `size` octets and a canary behind them.
template <typename Record, typename Assemble>
void assemble_into(AstDataRecord &out, size_t size, const Record &in, Assemble assemble) {
    std::memset(g_buffer + size, 0xA5, kCanary);
    assemble(&out, g_buffer, size, &in);
    for (size_t i = size; i < size + kCanary; ++i)
        if (g_buffer[i] != 0xA5) __builtin_trap();
    if (out.valid == 1 && out.length > size) __builtin_trap();
}

template <typename Record, typename Assemble>
void exact_and_short(const Record &converted, uint32_t category, Assemble assemble) {
    static AstDataRecord assembled;
    static AstDataRecord decoded;
    static uint8_t first[sizeof g_buffer / 2];
    // The whole room first, to learn the length.
    assemble_into(assembled, sizeof first, converted, assemble);
    if (assembled.valid != 1) return;
    const size_t length = static_cast<size_t>(assembled.length);
    std::memcpy(first, g_buffer, length);
    assemble_into(assembled, length, converted, assemble);
    if (assembled.valid != 1 || assembled.length != length || std::memcmp(first, g_buffer, length) != 0)
        __builtin_trap();
    ast_datarecord_decode(&decoded, g_buffer, length, category, &assembled.uap);
    if (decoded.valid != 1 || decoded.length != length) __builtin_trap();
    assemble_into(assembled, length - 1, converted, assemble);
    if (assembled.valid == 1) __builtin_trap();
}

}  // namespace

void exercise_convert(const AstDataRecord &record) {
    static AstRecord048 r048;
    static AstRecord034 r034;
    if (record.category == 48) {
        ast_datarecord_048_disassemble(&r048, &record);
        const AstRecord001 converted = ast_datarecord_convert_048_001(&r048);
        if (converted.valid != r048.valid) __builtin_trap();
        exact_and_short(converted, 1, [](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord001 *in) {
            ast_datarecord_001_assemble(out, buffer, size, in, nullptr);
        });
    } else if (record.category == 34) {
        ast_datarecord_034_disassemble(&r034, &record);
        const AstRecord002 converted = ast_datarecord_convert_034_002(&r034);
        if (converted.valid != r034.valid) __builtin_trap();
        if (converted.i020.valid == 1 && converted.i020.azimuth != -1.0) __builtin_trap();
        exact_and_short(converted, 2, [](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord002 *in) {
            ast_datarecord_002_assemble(out, buffer, size, in, &AST_UAP_STANDARD);
        });
    }
}

}  // namespace fuzzing
