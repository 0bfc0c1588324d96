// I240/050, 051, 052 Video Block Low, Medium and High Data Volume: REP
// repetitions of 4, 64 or 256 video octets, read with the thread's
// resolution.
#include "categories/cat240/video_state.h"
#include "items/item_ex.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/core.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat240::video_state;
namespace items = kovrel::items;
namespace cat240 = kovrel::cat240;

// The standard keeps the high-volume block within 64 kB: REP 254 at most.
constexpr uint32_t kMaxHighRep = 254;

void decode_block(AstVideoBlock *out, const AstDataItem *item, AstItemId id, uint32_t unit) {
    if (!out) return;
    *out = AstVideoBlock{};
    if (!items::span_at_least(item, 1) || item->id != id) return;
    const uint32_t rep = item->data[0];
    out->length = rep * unit;
    if (id == 240052 && rep > kMaxHighRep) {
        ast_log(AST_LOG_CRITICAL, "I240/052 REP %u exceeds the maximum 254.", rep);
        return;
    }
    if (item->length <= out->length) return;
    out->video = item->data + 1;
    out->valid = 1;
}

void block_summary(TextWriter &w, const AstVideoBlock &b) {
    const uint32_t res = video_state().res;
    w.append("OCTET:");
    w.append_uint(b.length);
    if (res == 0) return;
    w.append(", CELL:");
    const uint64_t bits = uint64_t{b.length} * 8;
    w.append_uint(res <= 6 ? bits >> (res - 1) : bits);
}

template <uint32_t Unit>
void block_detail(TextWriter &w, const AstVideoBlock &b) {
    const cat240::VideoState &state = video_state();
    {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "REP", "%u", b.length / Unit);
        t.rowf("", "OCTETS", "%u", b.length);
        if (state.res != 0) {
            const uint64_t bits = uint64_t{b.length} * 8;
            t.rowf("", "CELLS", "%llu",
                   static_cast<unsigned long long>(state.res <= 6 ? bits >> (state.res - 1) : bits));
        }
        t.end();
    }
    // The cell table is built for 8-bit cells, one octet each; it is shown
    // when no block octet can be cut from it.
    if (state.res != 4 || b.length > AST_VIDEO_MAX_CELLS) return;
    cat240::block_cells_detail(w, b.video, b.length, state.start_range, state.cell_duration);
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_240_050_decode(AstVideoBlock *out, const AstDataItem *item) {
    decode_block(out, item, 240050, cat240::kBlockUnit050);
}

KOVREL_API void ast_dataitem_240_051_decode(AstVideoBlock *out, const AstDataItem *item) {
    decode_block(out, item, 240051, cat240::kBlockUnit051);
}

KOVREL_API void ast_dataitem_240_052_decode(AstVideoBlock *out, const AstDataItem *item) {
    decode_block(out, item, 240052, cat240::kBlockUnit052);
}

KOVREL_API void ast_dataitem_240_050_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_050_decode, block_summary);
}

KOVREL_API void ast_dataitem_240_051_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_051_decode, block_summary);
}

KOVREL_API void ast_dataitem_240_052_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_052_decode, block_summary);
}

KOVREL_API void ast_dataitem_240_050_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_050_decode, block_detail<cat240::kBlockUnit050>);
}

KOVREL_API void ast_dataitem_240_051_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_051_decode, block_detail<cat240::kBlockUnit051>);
}

KOVREL_API void ast_dataitem_240_052_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_052_decode, block_detail<cat240::kBlockUnit052>);
}

}  // extern "C"

KOVREL_DECODE_EX(240_050, AstVideoBlock, ast_dataitem_240_050_decode)
KOVREL_DECODE_EX(240_051, AstVideoBlock, ast_dataitem_240_051_decode)
KOVREL_DECODE_EX(240_052, AstVideoBlock, ast_dataitem_240_052_decode)

namespace kovrel::fields {

namespace {

using B = AstVideoBlock;

void init_block(B *out) { *out = B{}; }

constexpr FieldRow kBlockRows[] = {
    integer("len", KOVREL_MEMBER(B, length)),
    octets_at("video", KOVREL_MEMBER(B, video), KOVREL_MEMBER(B, length)),
};

}  // namespace

constinit const FieldDesc k240_block = describe<B, init_valid<B, init_block>>(kBlockRows);

}  // namespace kovrel::fields
