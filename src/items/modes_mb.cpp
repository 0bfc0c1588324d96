// Mode S MB data: up to eight Comm-B registers, each 7 MB octets followed
// by its BDS code octet.
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
    AstModesMb decoded{};
    decoded.rep = rep;
    for (uint32_t i = 0; i < rep; ++i) {
        const uint8_t *mb = item->data + 1 + kRepetition * i;
        ast_bds_decode(&decoded.bds[i], mb, kMbOctets, mb[kMbOctets]);
        if (decoded.bds[i].valid != 1) return;
    }
    decoded.valid = 1;
    *out = decoded;
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
