// Safety-net and status records (CAT004, CAT023, CAT063, CAT065):
// disassembled, every accessor asked, every compound item split and its
// subfields summarised, and the items that encode written back into exact
// and one-short buffers with a canary past the end.
#include <cstring>
#include <initializer_list>

#include "fuzz_records.h"
#include "kovrel/cat004.h"
#include "kovrel/cat023.h"
#include "kovrel/cat063.h"
#include "kovrel/cat065.h"

namespace fuzzing {

namespace {

void check_text(const char *text, size_t size) {
    if (size > 0 && std::memchr(text, '\0', size) == nullptr) __builtin_trap();
}

uint64_t item_count(const AstDataRecord &record) {
    return record.item_count < AST_DATARECORD_MAX_ITEMS ? record.item_count : AST_DATARECORD_MAX_ITEMS;
}

void walk_subfields(const AstDataItem &item) {
    static AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    if (list.valid != 1) return;
    const uint64_t count = list.span_count < AST_SUBFIELD_MAX ? list.span_count : AST_SUBFIELD_MAX;
    for (uint64_t i = 0; i < count; ++i) {
        const AstSubfield &span = list.spans[i];
        if (span.present == 1 && span.data &&
            (span.data < item.data || span.data + span.length > item.data + item.length))
            __builtin_trap();  // a subfield outside its item
        for (size_t size : {size_t{0}, size_t{1}, size_t{7}, sizeof g_text - 1}) {
            g_text[size] = '#';
            ast_subfield_get_summary(g_text, size, &span, span.id);
            check_text(g_text, size);
            if (g_text[size] != '#') __builtin_trap();
        }
    }
}

// Writes value with encode into a buffer of exactly the length written
// first, then into one octet less; a canary past the end must stay, and
// the exact write must give the same octets, which decode again.
template <typename T>
void encode_twice(const T &value, AstItemId id, void (*encode)(AstDataItem *, uint8_t *, size_t, const T *),
                  void (*decode)(T *, const AstDataItem *)) {
    if (value.valid != 1) return;
    AstDataItem first;
    encode(&first, g_buffer, 256, &value);
    if (first.valid != 1) return;
    static uint8_t copy[256];
    const size_t n = first.length;
    if (n == 0 || n > sizeof copy) __builtin_trap();
    std::memcpy(copy, g_buffer, n);
    for (size_t size : {n, n - 1}) {
        g_buffer[size] = 0xA5;
        AstDataItem out;
        encode(&out, g_buffer, size, &value);
        if (g_buffer[size] != 0xA5) __builtin_trap();
        if (size < n && out.valid == 1) __builtin_trap();
        if (size == n && (out.valid != 1 || out.length != n || std::memcmp(copy, g_buffer, n) != 0)) __builtin_trap();
    }
    const AstDataItem again{copy, n, id, 1};
    static T back;
    decode(&back, &again);
    if (back.valid != 1) __builtin_trap();
}

}  // namespace

void exercise_record_004(const AstDataRecord &record) {
    static AstRecord004 d;
    ast_datarecord_004_disassemble(&d, &record);
    encode_twice(d.i040, 4040, ast_dataitem_004_040_encode, ast_dataitem_004_040_decode);
    AstDataSourceIdentifier sid;
    ast_datarecord_004_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_004_get_timeofday(&tod, &record);
    AstTrackNumber track;
    ast_datarecord_004_get_tracknum(&track, &record);
    for (uint64_t i = 0; i < item_count(record); ++i) {
        const AstItemId id = record.items[i].id;
        if (id == 4070 || id == 4100 || id == 4120 || id == 4170 || id == 4171) walk_subfields(record.items[i]);
    }
}

void exercise_record_023(const AstDataRecord &record) {
    AstDataSourceIdentifier sid;
    ast_datarecord_023_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_023_get_timeofday(&tod, &record);
    for (uint64_t i = 0; i < item_count(record); ++i) {
        const AstDataItem &item = record.items[i];
        switch (item.id) {
            case 23101: {
                AstItem023_101 v;
                ast_dataitem_023_101_decode(&v, &item);
                encode_twice(v, item.id, ast_dataitem_023_101_encode, ast_dataitem_023_101_decode);
                break;
            }
            case 23110: {
                AstItem023_110 v;
                ast_dataitem_023_110_decode(&v, &item);
                encode_twice(v, item.id, ast_dataitem_023_110_encode, ast_dataitem_023_110_decode);
                break;
            }
            case 23120: {
                static AstItem023_120 v;
                ast_dataitem_023_120_decode(&v, &item);
                if (v.valid == 1 && v.rep > 32) __builtin_trap();
                encode_twice(v, item.id, ast_dataitem_023_120_encode, ast_dataitem_023_120_decode);
                break;
            }
            case 23200: {
                AstItem023_200 v;
                ast_dataitem_023_200_decode(&v, &item);
                encode_twice(v, item.id, ast_dataitem_023_200_encode, ast_dataitem_023_200_decode);
                break;
            }
            default: break;
        }
    }
}

void exercise_record_063(const AstDataRecord &record) {
    static AstRecord063 d;
    ast_datarecord_063_disassemble(&d, &record);
    if (d.valid == 1 && d.i060.valid == 1 && d.i060.con > 3) __builtin_trap();
    AstDataSourceIdentifier sid;
    ast_datarecord_063_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_063_get_timeofday(&tod, &record);
}

void exercise_record_065(const AstDataRecord &record) {
    static AstRecord065 d;
    ast_datarecord_065_disassemble(&d, &record);
    if (d.valid == 1 && d.i040.valid == 1 && (d.i040.nogo > 3 || d.i040.pss > 3)) __builtin_trap();
    AstDataSourceIdentifier sid;
    ast_datarecord_065_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_065_get_timeofday(&tod, &record);
}

}  // namespace fuzzing
