// Decoding allocates nothing: malloc and operator new are interposed and
// counted while a recording of several categories is decoded, summarised,
// rendered, rewritten, and (CAT048) disassembled and assembled again. Built
// without sanitizers (they own malloc).
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "kovrel/kovrel.h"

extern "C" void *__libc_malloc(size_t);
extern "C" void *__libc_calloc(size_t, size_t);
extern "C" void *__libc_realloc(void *, size_t);

namespace {
bool g_counting = false;
size_t g_allocations = 0;
void note() {
    if (g_counting) ++g_allocations;
}
}  // namespace

extern "C" void *malloc(size_t n) {
    note();
    return __libc_malloc(n);
}
extern "C" void *calloc(size_t n, size_t m) {
    note();
    return __libc_calloc(n, m);
}
extern "C" void *realloc(void *p, size_t n) {
    note();
    return __libc_realloc(p, n);
}
void *operator new(size_t n) {
    note();
    if (void *p = __libc_malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void *operator new[](size_t n) { return operator new(n); }
void operator delete(void *p) noexcept { std::free(p); }
void operator delete[](void *p) noexcept { std::free(p); }
void operator delete(void *p, size_t) noexcept { std::free(p); }
void operator delete[](void *p, size_t) noexcept { std::free(p); }

namespace {

void finish_block(std::vector<uint8_t> &s, size_t start) {
    const size_t len = s.size() - start;
    s[start + 1] = static_cast<uint8_t>(len >> 8);
    s[start + 2] = static_cast<uint8_t>(len);
}

void add_block(std::vector<uint8_t> &s, uint8_t cat, const std::vector<std::vector<uint8_t>> &records) {
    const size_t start = s.size();
    s.insert(s.end(), {cat, 0, 0});
    for (const auto &r : records) s.insert(s.end(), r.begin(), r.end());
    finish_block(s, start);
}

std::vector<uint8_t> recording() {
    std::vector<uint8_t> s;
    const std::vector<uint8_t> plot = {0xFF, 0xD6, 0x19, 0x0D, 0x35, 0x6B, 0x01, 0xA0, 0x4E, 0x20, 0x55, 0x00,
                                       0x0A, 0x3F, 0x01, 0x40, 0xE0, 0x1A, 0x08, 0xB5, 0x3C, 0x66, 0x01, 0x20,
                                       0xC3, 0x1C, 0x76, 0x08, 0x20, 0x0F, 0x01, 0x07, 0xD0, 0x40, 0x00, 0x40};
    for (int k = 0; k < 50; ++k) add_block(s, 48, std::vector<std::vector<uint8_t>>(20, plot));
    // The same plot with I048/250 carrying BDS 4,0 and 6,0.
    std::vector<uint8_t> mode_s = plot;
    mode_s[1] = 0xF6;
    const uint8_t mb[] = {0x02, 0x85, 0xE0, 0x00, 0x17, 0x3C, 0x00, 0x00, 0x40,
                          0xA1, 0x2C, 0x43, 0x55, 0x3F, 0x81, 0x00, 0x60};
    mode_s.insert(mode_s.begin() + 29, mb, mb + sizeof mb);
    add_block(s, 48, {mode_s, mode_s});
    // CAT034 north marker: I034/010, 000, 030.
    add_block(s, 34, {{0xE0, 0x19, 0x0D, 0x01, 0x35, 0x6B, 0x01}});
    // CAT021 edition 2.1 only: I021/010 and I021/008.
    add_block(s, 21, {{0x81, 0x01, 0x01, 0x01, 0x01, 0x80, 0x01, 0x02, 0x03}});
    // CAT001 plot and track.
    add_block(s, 1, {{0xE0, 0x01, 0x02, 0x00, 0x10, 0x20, 0x30, 0x40}, {0xE0, 0x01, 0x02, 0x80, 0x01, 0x23}});
    // Hostile blocks: a lying length, an unterminated FSPEC, an undefined FRN.
    s.insert(s.end(), {48, 0, 9, 0x01, 0x01});
    add_block(s, 48, {{0x01, 0x01, 0x01, 0x01}});
    add_block(s, 48, {{0x01, 0x01, 0x01, 0x40, 0x00}});
    return s;
}

AstDataBlock g_block;
AstDataBlock g_rewritten;
char g_text[1 << 15];
uint8_t g_buffer[1 << 16];
alignas(16) uint8_t g_storage[1 << 14];
uint8_t g_encoded[1 << 12];
AstRecord048 g_record048;
AstDataRecord g_assembled;

size_t exercise(const std::vector<uint8_t> &s) {
    size_t records = 0;
    for (size_t p = 0; p + 3 <= s.size();) {
        const size_t len = (static_cast<size_t>(s[p + 1]) << 8) | s[p + 2];
        ast_datablock_smart_decode_into(&g_block, s.data() + p, s.size() - p);
        ast_datablock_decode_into(&g_block, s.data() + p, s.size() - p, &AST_UAP_CAT021_VER21);
        ast_datablock_smart_decode_into(&g_block, s.data() + p, s.size() - p);
        for (uint64_t r = 0; r < g_block.record_count && r < AST_DATABLOCK_MAX_RECORDS; ++r) {
            const AstDataRecord &record = g_block.records[r];
            ++records;
            for (uint64_t i = 0; i < record.item_count; ++i) {
                const AstDataItem &item = record.items[i];
                ast_dataitem_get_summary(g_text, sizeof g_text, &item);
                ast_dataitem_get_detail_html(g_text, sizeof g_text, &item);
                ast_dataitem_get_hex_str(g_text, sizeof g_text, &item);
                ast_dataitem_get_bin_html(g_text, sizeof g_text, &item);
                (void)ast_dataitem_get_name(item.id);
                // Structured decode, and encode of what was decoded.
                AstDataItemValue value;
                ast_dataitem_decode(&value, g_storage, sizeof g_storage, &item);
                if (value.value) {
                    AstDataItem written;
                    ast_dataitem_encode(&written, g_encoded, sizeof g_encoded, &value);
                }
                // Named fields: the walk, the JSON, and a structure filled by name.
                ast_dataitem_get_fields_json(g_text, sizeof g_text, &item);
                ast_dataitem_walk_fields(&item, [](void *, const AstField *) { return 1; }, nullptr);
                if (ast_dataitem_fields_init(g_storage, sizeof g_storage, item.id) == 1) {
                    AstField one{};
                    one.kind = AST_FIELD_UNSIGNED;
                    one.u = 1;
                    ast_dataitem_fields_set(g_storage, sizeof g_storage, item.id, "sac", &one);
                }
            }
            ast_datarecord_get_detail_html(g_text, sizeof g_text, &record);
            AstDataSourceIdentifier sacsic;
            ast_datarecord_get_sacsic(&sacsic, &record);
            if (record.category == 48) {
                ast_datarecord_048_disassemble(&g_record048, &record);
                // As disassembled (I048/130 and 170 have no encoder), then without them.
                for (int pass = 0; pass < 2; ++pass) {
                    ast_datarecord_048_assemble(&g_assembled, g_encoded, sizeof g_encoded, &g_record048,
                                                &AST_UAP_STANDARD);
                    g_record048.i130.valid = 0;
                    g_record048.i170.valid = 0;
                }
                AstRecordValue heading;
                ast_datarecord_get_heading(&heading, &record);
            }
        }
        ast_datablock_modify(&g_rewritten, g_buffer, sizeof g_buffer, &g_block, nullptr);
        if (len < 3 || p + len > s.size()) break;
        p += len;
    }
    return records;
}

}  // namespace

int main() {
    const std::vector<uint8_t> s = recording();
    ast_log_handler_reg(nullptr);
    g_counting = true;
    const size_t records = exercise(s);
    // With a log handler the library formats into its own stack buffers.
    ast_log_handler_reg([](uint32_t, const char *) { return 0; });
    exercise(s);
    ast_log_handler_reg(nullptr);
    g_counting = false;
    std::printf("%zu records decoded and shown, %zu allocations\n", records, g_allocations);
    if (records < 1000) {
        std::printf("FAIL: the recording did not decode\n");
        return 1;
    }
    return g_allocations == 0 ? 0 : 1;
}
