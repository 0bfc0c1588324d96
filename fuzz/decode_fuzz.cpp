// Decodes arbitrary octets as a data block with every profile, the smart and
// the CAT001 mixed decoders, then runs every view of every record and item
// found, walks every item's fields and checks that their JSON parses and that
// setting them by name encodes the same octets, copies and rewrites every record, disassembles and assembles every
// record of the categories that have a disassembled record, converts CAT048 and CAT034 records to CAT001 and
// CAT002, and assembles CAT048 records from arbitrary member values.
#include <cstddef>
#include <cstdint>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "fuzz_records.h"
#include "kovrel/kovrel.h"

namespace fuzzing {
char g_text[1 << 16];
uint8_t g_buffer[1 << 17];
}  // namespace fuzzing

namespace {
using namespace fuzzing;

AstDataBlock g_block;
AstDataBlock g_rewritten;

// Collects the leaves of a walk as (path, value) pairs, array elements by
// their positions ("vectors[1].x"); groups and arrays must open and close
// in step.
struct Leaves {
    static constexpr size_t kMax = 256;
    char paths[kMax][128];
    AstField values[kMax];
    size_t count = 0;
    bool settable = true;  // no leaf was dropped
    const char *names[16];
    uint32_t indices[16];
    size_t count_at_open[16];  // leaves collected when each open group began
    uint32_t depth = 0;
};

// Appends one step of a path: ".name" (no dot first), or "[index]" for an
// element of an array.
void append_step(char *path, size_t &at, size_t size, const char *name, uint32_t index) {
    const int n = name ? std::snprintf(path + at, size - at, at == 0 ? "%s" : ".%s", name)
                       : std::snprintf(path + at, size - at, "[%u]", index);
    if (n < 0 || at + static_cast<size_t>(n) >= size) __builtin_trap();
    at += static_cast<size_t>(n);
}

int collect(void *context, const AstField *f) {
    auto &l = *static_cast<Leaves *>(context);
    // An END field stands at the depth of its BEGIN.
    const bool closes = f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END;
    if (f->depth + (closes ? 1 : 0) != l.depth) __builtin_trap();
    if (f->kind == AST_FIELD_GROUP_BEGIN || f->kind == AST_FIELD_ARRAY_BEGIN) {
        if (l.depth >= 16) __builtin_trap();
        l.count_at_open[l.depth] = l.count;
        l.indices[l.depth] = f->index;
        l.names[l.depth++] = f->name;
        return 1;
    }
    if (f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END) {
        if (l.depth == 0) __builtin_trap();
        --l.depth;
        // A group without a leaf (a present subfield with nothing in it)
        // cannot be said by name: only its octets give it.
        if (l.count == l.count_at_open[l.depth]) l.settable = false;
        return 1;
    }
    if (f->kind == AST_FIELD_OCTETS || l.count == Leaves::kMax) {
        l.settable = false;
        return 1;
    }
    char *path = l.paths[l.count];
    size_t at = 0;
    path[0] = '\0';
    for (uint32_t i = 0; i < l.depth; ++i) append_step(path, at, sizeof l.paths[0], l.names[i], l.indices[i]);
    append_step(path, at, sizeof l.paths[0], f->name, f->index);
    l.values[l.count++] = *f;
    return 1;
}

int stop_at_third(void *context, const AstField *) { return ++*static_cast<int *>(context) < 3; }

// The item's fields as a JSON tree built from the public walk, to compare
// with the JSON text the library writes directly.
struct Tree {
    nlohmann::json root = nlohmann::json::object();
    std::vector<nlohmann::json *> open{&root};
};

std::string text_as_utf8(const char *text, size_t n) {
    std::string out;
    for (size_t i = 0; i < n; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

int build_tree(void *context, const AstField *f) {
    auto &t = *static_cast<Tree *>(context);
    nlohmann::json value;
    char text[32];
    switch (f->kind) {
    case AST_FIELD_GROUP_END:
    case AST_FIELD_ARRAY_END:
        t.open.pop_back();
        return 1;
    case AST_FIELD_GROUP_BEGIN: value = nlohmann::json::object(); break;
    case AST_FIELD_ARRAY_BEGIN: value = nlohmann::json::array(); break;
    case AST_FIELD_FLAG:
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_ENUM:
        if (f->format == AST_FIELD_FORMAT_OCTAL4) {
            std::snprintf(text, sizeof text, "%04llo", static_cast<unsigned long long>(f->u));
            value = text;
        } else if (f->format == AST_FIELD_FORMAT_HEX6) {
            std::snprintf(text, sizeof text, "%06llX", static_cast<unsigned long long>(f->u));
            value = text;
        } else {
            value = f->u;
        }
        break;
    case AST_FIELD_SIGNED: value = f->i; break;
    case AST_FIELD_REAL:
        if (std::isfinite(f->real)) value = f->real;
        break;
    case AST_FIELD_TEXT: value = text_as_utf8(f->text, f->length); break;
    case AST_FIELD_OCTETS: {
        std::string hex;
        for (size_t i = 0; i < f->length; ++i) {
            std::snprintf(text, sizeof text, "%02X", f->octets[i]);
            hex += text;
        }
        value = hex;
        break;
    }
    default: __builtin_trap();
    }
    nlohmann::json &parent = *t.open.back();
    nlohmann::json *placed;
    if (parent.is_array()) {
        parent.push_back(value);
        placed = &parent.back();
    } else {
        if (!f->name) __builtin_trap();
        placed = &(parent[f->name] = value);
    }
    if (f->kind == AST_FIELD_GROUP_BEGIN || f->kind == AST_FIELD_ARRAY_BEGIN) t.open.push_back(placed);
    return 1;
}

// The fields of an item: their JSON parses, a cut JSON keeps its size, and
// an item that encodes back to its own octets encodes the same from values
// set by name.
void exercise_fields(const AstDataItem &item, const void *decoded) {
    static char json[1 << 16];
    const size_t n = ast_dataitem_get_fields_json(json, sizeof json, &item);
    if (n == 0) {
        if (json[0] != '\0') __builtin_trap();
        return;
    }
    if (n >= sizeof json || std::strlen(json) != n) __builtin_trap();
    if (!nlohmann::json::accept(json, json + n)) __builtin_trap();
    Tree tree;
    if (ast_dataitem_walk_fields(&item, build_tree, &tree) != AST_FIELDS_DONE) __builtin_trap();
    if (nlohmann::json::parse(json, json + n) != tree.root) __builtin_trap();
    const size_t cut = n / 2 + 1;
    if (ast_dataitem_get_fields_json(g_text, cut, &item) != n || std::strlen(g_text) != cut - 1) __builtin_trap();
    int visited = 0;
    const int stopped = ast_dataitem_walk_fields(&item, stop_at_third, &visited);
    if (stopped == AST_FIELDS_STOPPED ? visited != 3 : stopped != AST_FIELDS_DONE) __builtin_trap();

    static Leaves leaves;
    leaves = Leaves{};
    if (ast_dataitem_walk_fields(&item, collect, &leaves) != AST_FIELDS_DONE || leaves.depth != 0) __builtin_trap();
    AstDataItemFuncs f;
    ast_dataitem_get_func(&f, item.id);
    if (!decoded || !f.encode_ex || !leaves.settable) return;
    static uint8_t direct[1 << 12];
    static uint8_t named[1 << 12];
    AstDataItemValue value{1, item.id, const_cast<void *>(decoded)};
    AstDataItem out;
    ast_dataitem_encode(&out, direct, sizeof direct, &value);
    if (out.valid != 1 || out.length != item.length || std::memcmp(direct, item.data, item.length) != 0) return;
    alignas(16) static uint8_t storage[1 << 14];
    if (ast_dataitem_fields_init(storage, sizeof storage, item.id) != 1) __builtin_trap();
    for (size_t i = 0; i < leaves.count; ++i)
        if (ast_dataitem_fields_set(storage, sizeof storage, item.id, leaves.paths[i], &leaves.values[i]) !=
            AST_FIELD_SET_OK)
            __builtin_trap();
    value.value = storage;
    ast_dataitem_encode(&out, named, sizeof named, &value);
    if (out.valid != 1 || out.length != item.length || std::memcmp(named, item.data, item.length) != 0)
        __builtin_trap();
}

void exercise_item(const AstDataItem &item) {
    ast_dataitem_get_summary(g_text, sizeof g_text, &item);
    ast_dataitem_get_detail_html(g_text, sizeof g_text, &item);
    ast_dataitem_get_hex_str(g_text, sizeof g_text, &item);
    ast_dataitem_get_bin_str(g_text, sizeof g_text, &item);
    ast_dataitem_get_hex_html(g_text, sizeof g_text, &item);
    ast_dataitem_get_bin_html(g_text, sizeof g_text, &item);
    (void)ast_dataitem_get_name(item.id);
    (void)ast_dataitem_get_capabilities(item.id);
    // Small buffers must be as safe as large ones.
    ast_dataitem_get_summary(g_text, 7, &item);
    ast_dataitem_get_detail_html(g_text, 33, &item);

    alignas(16) static uint8_t storage[1 << 14];
    AstDataItemValue value;
    AstDataItemFuncs f;
    ast_dataitem_get_func(&f, item.id);
    if (f.decode_ex) {
        ast_dataitem_decode(&value, storage, sizeof storage, &item);
        exercise_fields(item, value.valid == 1 ? value.value : nullptr);
        // Whatever decoded must encode back without overrunning any buffer.
        if (f.encode_ex && value.value) {
            static uint8_t encoded[1 << 12];
            AstDataItem out;
            ast_dataitem_encode(&out, encoded, sizeof encoded, &value);
            if (out.valid == 1 && out.length > sizeof encoded) __builtin_trap();
            const size_t tight = item.length > 1 ? static_cast<size_t>(item.length - 1) : 0;
            ast_dataitem_encode(&out, encoded, tight, &value);
            if (out.valid == 1 && out.length > tight) __builtin_trap();
        }
    }
    // Any seven octets can be a Mode S register: decode and render them as
    // every register the library knows.
    if (item.valid == 1 && item.length >= 7) {
        static const uint32_t codes[] = {0x05, 0x08, 0x09, 0x10, 0x20, 0x30, 0x40, 0x50, 0x60};
        for (uint32_t code : codes) {
            AstDataItem reg;
            ast_bds_decode(&reg, item.data + item.length - 7, 7, code);
            ast_bds_get_detail_html(g_text, sizeof g_text, &reg);
            ast_bds_get_detail_html(g_text, 19, &reg);
        }
    }

    if (ast_dataitem_get_capabilities(item.id) & AST_DATAITEM_CAP_DETAIL) {
        AstSubfieldList list;
        ast_dataitem_subfields_decode(&list, &item);
        for (uint64_t i = 0; i < list.span_count; ++i) {
            ast_subfield_get_summary(g_text, sizeof g_text, &list.spans[i], list.spans[i].id);
            ast_subfield_get_detail_html(g_text, sizeof g_text, &list.spans[i], list.spans[i].id);
            ast_subfield_get_bin_html(g_text, sizeof g_text, &list.spans[i]);
        }
    }
}

// Disassembles a CAT048 record and assembles it into a buffer of its own
// length and into shorter ones: never longer than the buffer, and what is
// written is a record that decodes to the length assemble reported.
void exercise_record_048(const AstDataRecord &record) {
    static AstRecord048 disassembled;
    static AstDataRecord assembled;
    static AstDataRecord decoded;
    ast_datarecord_048_disassemble(&disassembled, &record);
    if (record.valid != 1 || record.category != 48) {
        if (disassembled.valid != 0) __builtin_trap();
        return;
    }
    if (disassembled.valid != 1) __builtin_trap();
    const size_t length = static_cast<size_t>(record.length);
    // As disassembled, then without the members that have no encoder.
    for (int pass = 0; pass < 2; ++pass) {
        for (size_t shorter = 0; shorter <= 3 && shorter <= length; ++shorter) {
            const size_t size = length - shorter;
            ast_datarecord_048_assemble(&assembled, g_buffer, size, &disassembled, &record.uap);
            if (assembled.valid != 1) continue;
            if (assembled.length > size) __builtin_trap();
            ast_datarecord_decode(&decoded, g_buffer, static_cast<size_t>(assembled.length), 48,
                                  &AST_UAP_STANDARD);
            if (decoded.valid != 1 || decoded.length != assembled.length) __builtin_trap();
        }
        AstRecord048 &d = disassembled;
        d.i030.valid = d.i042.valid = d.i080.valid = d.i100.valid = d.i110.valid = d.i130.valid = 0;
        d.i210.valid = d.i230.valid = d.i250.valid = d.i260.valid = 0;
        d.i170.valid = 0;
    }
}

// The radar categories' records: disassembled and assembled again into
// buffers of the record's length and shorter, never written past them; what
// assembles decodes to the length reported.
template <typename Record, typename Assemble>
void exercise_record_radar(const AstDataRecord &record, void (*disassemble)(Record *, const AstDataRecord *),
                           Assemble assemble) {
    static Record disassembled;
    static AstDataRecord assembled;
    static AstDataRecord decoded;
    disassemble(&disassembled, &record);
    if (record.valid != 1) {
        if (disassembled.valid != 0) __builtin_trap();
        return;
    }
    const size_t length = static_cast<size_t>(record.length);
    for (size_t shorter = 0; shorter <= 2 && shorter <= length; ++shorter) {
        const size_t size = length - shorter;
        std::memset(g_buffer + size, 0xA5, 64);
        assemble(&assembled, g_buffer, size, &disassembled);
        for (size_t i = size; i < size + 64; ++i)
            if (g_buffer[i] != 0xA5) __builtin_trap();
        if (assembled.valid != 1) continue;
        if (assembled.length > size) __builtin_trap();
        ast_datarecord_decode(&decoded, g_buffer, static_cast<size_t>(assembled.length), record.category,
                              &assembled.uap);
        if (decoded.valid != 1 || decoded.length != assembled.length) __builtin_trap();
    }
}

void exercise_record_by_category(const AstDataRecord &record) {
    exercise_convert(record);
    switch (record.category) {
    case 1:
        exercise_record_radar(record, ast_datarecord_001_disassemble,
                              [&record](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord001 *in) {
                                  ast_datarecord_001_assemble(out, buffer, size, in, &record.uap);
                              });
        break;
    case 2:
        exercise_record_radar(record, ast_datarecord_002_disassemble,
                              [&record](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord002 *in) {
                                  ast_datarecord_002_assemble(out, buffer, size, in, &record.uap);
                              });
        break;
    case 34:
        exercise_record_radar(record, ast_datarecord_034_disassemble,
                              [&record](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord034 *in) {
                                  ast_datarecord_034_assemble(out, buffer, size, in, &record.uap);
                              });
        break;
    case 48: exercise_record_048(record); break;
    default: exercise_record_more(record); break;
    }
}

// Members of arbitrary value (octets of the input), the encodable ones
// switched on by the input's first bits, assembled into a small buffer.
void exercise_assemble_048(const uint8_t *data, size_t size) {
    if (size < 3) return;
    static AstRecord048 in;
    static AstDataRecord out;
    std::memset(&in, 0, sizeof in);
    std::memcpy(&in, data, size < sizeof in ? size : sizeof in);
    const uint32_t on = data[0] | static_cast<uint32_t>(data[1]) << 8;
    in.valid = 1;
    in.i010.valid = on & 1;
    in.i020.valid = on >> 1 & 1;
    in.i040.valid = on >> 2 & 1;
    in.i050.valid = on >> 3 & 1;
    in.i070.valid = on >> 4 & 1;
    in.i090.valid = on >> 5 & 1;
    in.i140.valid = on >> 6 & 1;
    in.i161.valid = on >> 7 & 1;
    in.i200.valid = on >> 8 & 1;
    in.i220.valid = on >> 9 & 1;
    in.i240.valid = on >> 10 & 1;
    const size_t room = data[2] % 48;
    std::memset(g_buffer + room, 0xA5, 64);
    ast_datarecord_048_assemble(&out, g_buffer, room, &in, &AST_UAP_STANDARD);
    if (out.valid == 1 && out.length > room) __builtin_trap();
    for (size_t i = room; i < room + 64; ++i)
        if (g_buffer[i] != 0xA5) __builtin_trap();
}

void exercise_block(const AstDataBlock &block) {
    const uint64_t records = block.record_count < AST_DATABLOCK_MAX_RECORDS ? block.record_count : 0;
    for (uint64_t r = 0; r < records; ++r) {
        const AstDataRecord &record = block.records[r];
        for (uint64_t i = 0; i < record.item_count; ++i) exercise_item(record.items[i]);
        ast_datarecord_get_detail_html(g_text, sizeof g_text, &record);
        ast_datarecord_get_hex_html(g_text, sizeof g_text, &record);
        AstDataRecord copy;
        ast_datarecord_copy(&copy, g_buffer, sizeof g_buffer, &record);
        ast_datarecord_copy(&copy, g_buffer, record.length / 2, &record);
        AstDataRecordFuncs funcs;
        ast_datarecord_get_func(&funcs, record.category);
        AstDataSourceIdentifier sacsic;
        ast_datarecord_get_sacsic(&sacsic, &record);
        AstRecordCallsign callsign;
        ast_datarecord_get_callsign(&callsign, &record);
        if (record.category == 48) {
            AstRecordValue value;
            ast_datarecord_get_flightlevel(&value, &record);
            ast_datarecord_get_selaltitude(&value, &record);
            ast_datarecord_get_heading(&value, &record);
            AstRecordPolar polar;
            ast_datarecord_get_polarcoord(&polar, &record);
        }
        exercise_record_by_category(record);
    }
    ast_datablock_modify(&g_rewritten, g_buffer, sizeof g_buffer, &block, nullptr);
    if (block.valid == 1 && g_rewritten.valid == 1 && g_rewritten.length != block.length) __builtin_trap();
    ast_datablock_modify(&g_rewritten, g_buffer, block.length / 2, &block, nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    ast_log_handler_reg(nullptr);
    // The first octet chooses the options, so both tolerances are explored.
    if (size > 0) {
        ast_library_reset_option();
        ast_library_set_option(data[0] & 0x3u);
        ++data;
        --size;
    }
    const AstUap *profiles[] = {&AST_UAP_STANDARD,     &AST_UAP_CAT001_PLOT,  &AST_UAP_CAT021_VER023,
                                &AST_UAP_CAT021_VER026, &AST_UAP_CAT021_VER21, &AST_UAP_CAT021_VER27,
                                &AST_UAP_ASR10SS,      &AST_UAP_ASR10SS_MK2,  &AST_UAP_THALES,
                                &AST_UAP_MANAGAIR};
    for (const AstUap *uap : profiles) {
        ast_datablock_decode_into(&g_block, data, size, uap);
        exercise_block(g_block);
    }
    ast_datablock_smart_decode_into(&g_block, data, size);
    exercise_block(g_block);
    ast_datablock_001_mixuap_decode_into(&g_block, data, size);
    exercise_block(g_block);
    // The octets as one record of their first octet's category.
    if (size > 1) {
        AstDataRecord record;
        ast_datarecord_decode(&record, data + 1, size - 1, data[0], &AST_UAP_STANDARD);
        for (uint64_t i = 0; i < record.item_count; ++i) exercise_item(record.items[i]);
        exercise_record_by_category(record);
    }
    exercise_assemble_048(data, size);
    return 0;
}
