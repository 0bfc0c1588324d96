// Mode S MB data: up to eight Comm-B registers, each 7 MB octets followed
// by its BDS code octet.
#include <cstdio>
#include <cstring>

#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/bds.h"
#include "kovrel/core.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kMbOctets = 7;
constexpr uint64_t kRepetition = kMbOctets + 1;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_modes_mb_init(AstModesMb *out) {
    if (out) *out = AstModesMb{};
}

KOVREL_API void ast_dataitem_modes_mb_decode(AstModesMb *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstModesMb{};
    if (!items::span_at_least(item, 1 + kRepetition)) return;
    const uint32_t rep = item->data[0];
    // A length that does not match REP is refused quietly; the record
    // decoder already delimits the item by REP.
    if (item->length != 1 + kRepetition * rep) return;
    if (rep > AST_MODES_MB_MAX_BDS) {
        ast_log(AST_LOG_WARNING, "Mode-S MB BDS count %u exceeds max %u.", rep, AST_MODES_MB_MAX_BDS);
        return;
    }
    // Written in place: every record shown asks for this item several
    // times (summary, fields, selected altitude, heading).
    for (uint32_t i = 0; i < rep; ++i) {
        const uint8_t *mb = item->data + 1 + kRepetition * i;
        ast_bds_decode(&out->bds[i], mb, kMbOctets, mb[kMbOctets]);
        if (out->bds[i].valid != 1) {
            *out = AstModesMb{};
            return;
        }
    }
    out->rep = rep;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_modes_mb_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_modes_mb_decode, [](TextWriter &w, const auto &mb) {
        w.append("BDS:");
        for (uint32_t i = 0; i < mb.rep; ++i) {
            char code[16];
            if (!ast_bds_type_to_str_simple(code, sizeof code, mb.bds[i].id)) continue;
            if (i > 0) w.append_char(' ');
            w.append(code);
        }
    });
}

KOVREL_API void ast_dataitem_modes_mb_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_modes_mb_decode, [](TextWriter &w, const auto &mb) {
        char code[16];
        items::DetailTable t(w);
        t.title("BDS List");
        t.header("BDS", "Name");
        for (uint32_t i = 0; i < mb.rep; ++i) {
            if (!ast_bds_type_to_str(code, sizeof code, mb.bds[i].id)) code[0] = '\0';
            t.row(code, ast_bds_get_name(mb.bds[i].id));
        }
        t.end();
        // Each register: its title, its bits and its own detail view.
        for (uint32_t i = 0; i < mb.rep && !w.full(); ++i) {
            const AstDataItem &reg = mb.bds[i];
            if (!ast_bds_type_to_str(code, sizeof code, reg.id)) code[0] = '\0';
            ast_html_gen_title_h4(w.end(), w.end_size(), "%s - %s", code, ast_bds_get_name(reg.id));
            w.resync();
            ast_html_gen_bin_table(w.end(), w.end_size(), reg.data, kMbOctets);
            w.resync();
            ast_html_gen_para(w.end(), w.end_size(), "%s", "");
            w.resync();
            ast_bds_get_detail_html(w.end(), w.end_size(), &reg);
            w.resync();
        }
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {

enum class Walked { No, Yes, Stopped };

// The register's fields through its own description, when it decodes.
template <typename R, R (*Decode)(const AstDataItem *)>
Walked walk_as(Walker &w, const FieldDesc &d, const AstDataItem &reg) {
    const R r = Decode(&reg);
    if (r.valid != 1) return Walked::No;
    return w.walk(d, &r) ? Walked::Yes : Walked::Stopped;
}

Walked walk_decoded(Walker &w, const AstDataItem &reg) {
    switch (reg.id) {
    case 0x05: return walk_as<AstBds05, ast_bds_05_decode>(w, kBds05, reg);
    case 0x08: return walk_as<AstBds08, ast_bds_08_decode>(w, kBds08, reg);
    case 0x09: return walk_as<AstBds09, ast_bds_09_decode>(w, kBds09, reg);
    case 0x10: return walk_as<AstBds10, ast_bds_10_decode>(w, kBds10, reg);
    case 0x20: return walk_as<AstBds20, ast_bds_20_decode>(w, kBds20, reg);
    case 0x30: return walk_as<AstBds30, ast_bds_30_decode>(w, kBds30, reg);
    case 0x40: return walk_as<AstBds40, ast_bds_40_decode>(w, kBds40, reg);
    case 0x50: return walk_as<AstBds50, ast_bds_50_decode>(w, kBds50, reg);
    case 0x60: return walk_as<AstBds60, ast_bds_60_decode>(w, kBds60, reg);
    default: return Walked::No;
    }
}

// One group per register, named "bds" and the code in two lower-case hex
// digits ("bds40"), a repeated code numbered from its second use on
// ("bds40_2"). The group holds the code as "4,0", then the decoded fields,
// or the 7 MB octets of a register the library does not decode (or that
// does not decode as its code says).
bool walk_registers(Walker &w, const FieldRow &, const void *base) {
    const auto &mb = *static_cast<const AstModesMb *>(base);
    const uint32_t count = mb.rep < AST_MODES_MB_MAX_BDS ? mb.rep : AST_MODES_MB_MAX_BDS;
    for (uint32_t i = 0; i < count; ++i) {
        const AstDataItem &reg = mb.bds[i];
        unsigned use = 1;
        for (uint32_t j = 0; j < i; ++j)
            if (mb.bds[j].id == reg.id) ++use;
        // Written by hand: this runs for every register of every record a
        // JSON output shows.
        static const char kHex[] = "0123456789abcdef";
        const unsigned code = static_cast<unsigned>(reg.id) & 0xFFu;
        char name[16] = {'b', 'd', 's', kHex[code >> 4], kHex[code & 0xF]};
        if (use > 1) {
            name[5] = '_';
            name[6] = static_cast<char>('0' + use);  // at most 8 registers
        }
        if (!w.begin(AST_FIELD_GROUP_BEGIN, name)) return false;

        static const char kUpper[] = "0123456789ABCDEF";
        const char text[3] = {kUpper[code >> 4], ',', kUpper[code & 0xF]};
        AstField f{};
        f.name = "bds";
        f.kind = AST_FIELD_TEXT;
        f.text = text;
        f.length = sizeof text;
        if (!w.emit(f)) return false;

        const Walked walked = walk_decoded(w, reg);
        if (walked == Walked::Stopped) return false;
        if (walked == Walked::No) {
            AstField octets{};
            octets.name = "mb";
            octets.kind = AST_FIELD_OCTETS;
            octets.octets = reg.data;
            octets.length = reg.data ? (reg.length < kMbOctets ? reg.length : kMbOctets) : 0;
            if (!w.emit(octets)) return false;
        }
        if (!w.end(AST_FIELD_GROUP_END)) return false;
    }
    return true;
}

using T = AstModesMb;
constexpr FieldRow kMbRows[] = {
    integer("rep", KOVREL_MEMBER(T, rep)).width(8),
    custom("bds", KOVREL_MEMBER(T, bds), walk_registers),
};

}  // namespace

constinit const FieldDesc kModesMb = describe<T, init_valid<T, ast_dataitem_modes_mb_init>>(kMbRows);

}  // namespace kovrel::fields
