// Compound data items: delimiting, splitting and the generic views.
#include <cstring>

#include "core/format.h"
#include "core/state.h"
#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/html.h"
#include "record/item_table.h"
#include "record/size_rules.h"

namespace {

const kovrel::CompoundItem *compound_of(AstItemId item) {
    const kovrel::ItemRow *row = kovrel::find_item_row(item);
    return row ? row->compound : nullptr;
}

AstSubfieldFuncs subfield_funcs(uint32_t subfield_id) {
    AstSubfieldFuncs f;
    ast_subfield_get_func(&f, subfield_id);
    return f;
}

// The size, id and name functions of a subfield, which every compound item
// hands out as they are (only summaries and views depend on the rows).
const AstSubfieldFuncs *plain_funcs(uint32_t subfield_id) {
    const kovrel::CompoundItem *c = compound_of(subfield_id / 1000);
    return c ? &c->funcs : nullptr;
}

// Sizes the subfields of one item with the item's size function, looked up
// once. An identifier whose item number wrapped (item * 1000 beyond 32 bits)
// belongs to another item and is looked up on its own.
class SubfieldSizer {
public:
    explicit SubfieldSizer(AstItemId item, const kovrel::CompoundItem *c)
        : item_(item), get_size_(c ? c->funcs.get_size : nullptr) {}

    uint64_t operator()(const uint8_t *octets, size_t available, uint32_t subfield_id) const {
        if (subfield_id / 1000 != item_) return ast_subfield_get_size(octets, available, subfield_id);
        return get_size_ ? get_size_(octets, available, subfield_id) : 0;
    }

private:
    AstItemId item_;
    AstSubfieldGetSizeFn get_size_;
};

// FRN bit of a valid primary subfield, frn within its FRNs.
bool frn_set(const AstFspec &primary, uint32_t frn) {
    return (primary.octets[(frn - 1) / 7] & (0x80u >> ((frn - 1) % 7))) != 0;
}

enum class Split {
    Refused,  // no item, or no valid primary subfield
    Overrun,  // a subfield ends past the item
    Done,
};

// Splits a compound item: decodes its primary subfield into *primary, sets
// positions to the number of subfield positions the split lists (the FRNs
// announced, cut to the item's subfield count and AST_SUBFIELD_MAX) and
// calls visit(position, subfield id, octets, length) for the present ones,
// in order. Only set FRN bits are looked at, so a long primary subfield
// with few bits set costs little.
template <typename Visit>
Split split_item(const AstDataItem *item, AstFspec *primary, uint32_t &positions, Visit &&visit) {
    positions = 0;
    if (!item || item->valid != 1 || !item->data) return Split::Refused;
    ast_fspec_decode(primary, item->data, static_cast<size_t>(item->length));
    if (primary->valid != 1) return Split::Refused;
    const kovrel::CompoundItem *c = compound_of(item->id);
    // An item without subfields is reported by the count look-up.
    const uint32_t count = c ? c->subfield_count : ast_dataitem_subfields_get_number(item->id);
    uint64_t last = primary->frn_count;
    if (last > count) last = count;
    if (last > AST_SUBFIELD_MAX) last = AST_SUBFIELD_MAX;
    positions = static_cast<uint32_t>(last);
    const SubfieldSizer size_of(item->id, c);
    uint64_t pos = primary->length;
    for (uint32_t base = 0; base < positions; base += 7) {
        unsigned bits = primary->octets[base / 7] & 0xFEu;
        while (bits != 0) {
            const unsigned bit = static_cast<unsigned>(__builtin_clz(bits)) - 24u;  // 0 for 0x80
            bits &= ~(0x80u >> bit);
            const uint32_t i = base + bit + 1;
            if (i > positions) break;
            const uint32_t id = item->id * 1000 + i;
            const size_t left = static_cast<size_t>(item->length - pos);
            const uint64_t n = size_of(item->data + pos, left, id);
            if (n > left) return Split::Overrun;  // a subfield may never point past its item
            visit(i, id, item->data + pos, n);
            pos += n;
        }
    }
    return Split::Done;
}

}  // namespace

extern "C" {

KOVREL_API void ast_subfield_get_func(AstSubfieldFuncs *out, uint32_t subfield_id) {
    if (!out) return;
    *out = AstSubfieldFuncs{};
    const kovrel::CompoundItem *c = compound_of(subfield_id / 1000);
    // The item's exported subfield functions stand in every slot, so the
    // subfields of a compound item have a summary and a detail view (rows
    // without their own give "NOT_IMPLEMENTED" and an empty view).
    if (c) *out = c->funcs;
}

KOVREL_API uint64_t ast_subfield_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id) {
    const AstSubfieldFuncs *f = plain_funcs(subfield_id);
    return f && f->get_size ? f->get_size(octets, available, subfield_id) : 0;
}

KOVREL_API const char *ast_subfield_get_id(uint32_t subfield_id) {
    const AstSubfieldFuncs *f = plain_funcs(subfield_id);
    return f && f->get_id ? f->get_id(subfield_id) : "---";
}

KOVREL_API const char *ast_subfield_get_name(uint32_t subfield_id) {
    const AstSubfieldFuncs *f = plain_funcs(subfield_id);
    return f && f->get_name ? f->get_name(subfield_id) : "UNKNOWN_SUBFIELD_NAME";
}

KOVREL_API void ast_subfield_get_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    const AstSubfieldFuncs f = subfield_funcs(subfield_id);
    if (f.get_summary)
        f.get_summary(buffer, size, span, subfield_id);
    else
        ast_strncpy(buffer, "NOT_IMPLEMENTED", size);
}

KOVREL_API void ast_subfield_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                             uint32_t subfield_id) {
    if (buffer && size > 0) buffer[0] = '\0';
    const AstSubfieldFuncs f = subfield_funcs(subfield_id);
    if (f.get_detail_html) f.get_detail_html(buffer, size, span, subfield_id);
}

KOVREL_API void ast_subfield_get_bin_html(char *buffer, size_t size, const AstSubfield *span) {
    if (buffer && size > 0) buffer[0] = '\0';
    if (!span || span->valid != 1 || !span->data) return;
    ast_html_gen_bin_table(buffer, size, span->data, static_cast<size_t>(span->length));
}

KOVREL_API uint32_t ast_subfield_get_capabilities(uint32_t subfield_id) {
    const AstSubfieldFuncs f = subfield_funcs(subfield_id);
    return (f.get_summary ? 0x2u : 0u) | (f.get_detail_html ? 0x4u : 0u);
}

KOVREL_API uint64_t ast_subfield_get_size_variable(const uint8_t *octets, size_t available, size_t n) {
    return kovrel::fx_extended_size(octets, available, n, "Subfield length exceed max: %d");
}

KOVREL_API uint64_t ast_subfield_get_size_repeated(const uint8_t *octets, size_t available, size_t n) {
    if (n == 0) return 0;
    return kovrel::repetitive_size(octets, available, n);
}

KOVREL_API uint64_t ast_dataitem_subfields_get_size(const uint8_t *octets, size_t available, AstItemId item_id) {
    AstFspec primary;
    ast_fspec_decode(&primary, octets, available);
    if (primary.valid != 1) return 0;
    const SubfieldSizer size_of(item_id, compound_of(item_id));
    uint64_t total = primary.length;
    for (uint32_t i = 1; i <= primary.frn_count; ++i) {
        if (!frn_set(primary, i)) continue;
        if (total > available) return 0;
        total += size_of(octets + total, static_cast<size_t>(available - total), item_id * 1000 + i);
    }
    return total <= available ? total : 0;
}

KOVREL_API uint32_t ast_dataitem_subfields_get_number(AstItemId item_id) {
    const kovrel::CompoundItem *c = compound_of(item_id);
    if (c) return c->subfield_count;
    if (kovrel::logging_enabled()) {
        char text[16];
        ast_dataitem_type_to_str(text, sizeof text, item_id);
        ast_log(AST_LOG_CRITICAL, "Undefined Subfield %s", text);
    }
    return 0;
}

KOVREL_API void ast_dataitem_subfields_decode(AstSubfieldList *out, const AstDataItem *item) {
    if (!out) return;
    std::memset(out, 0, sizeof *out);
    uint32_t positions = 0;
    const Split result =
        split_item(item, &out->primary, positions, [out](uint32_t i, uint32_t, const uint8_t *data, uint64_t n) {
            AstSubfield &span = out->spans[i - 1];
            span.present = 1;
            span.data = data;
            span.length = n;
        });
    if (result == Split::Overrun) std::memset(out, 0, sizeof *out);
    if (result != Split::Done) return;
    for (uint32_t i = 1; i <= positions; ++i) {
        out->spans[i - 1].id = item->id * 1000 + i;
        out->spans[i - 1].valid = 1;
    }
    out->span_count = positions;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_subfields_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                                 const AstDataItem *item) {
    if (!out) return;
    const AstItemId id = item ? item->id : 0;
    *out = AstDataItemValue{0, id, nullptr};
    if (!storage || storage_size < sizeof(AstSubfieldList) || !item || item->valid != 1) return;
    AstSubfieldList *list = static_cast<AstSubfieldList *>(storage);
    ast_dataitem_subfields_decode(list, item);
    *out = AstDataItemValue{list->valid, id, storage};
}

KOVREL_API void ast_dataitem_subfields_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    // Counted while splitting: no subfield list is filled for two numbers.
    AstFspec primary;
    uint32_t positions = 0;
    unsigned present = 0;
    if (split_item(item, &primary, positions, [&present](uint32_t, uint32_t, const uint8_t *, uint64_t) { ++present; }) !=
        Split::Done)
        return;
    // "SUBFIELDS:%02u/%02u"
    w.append("SUBFIELDS:");
    w.append_uint(present, 2);
    w.append_char('/');
    w.append_uint(positions, 2);
}

KOVREL_API void ast_dataitem_subfields_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->valid != 1) return;
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, item);
    if (list.valid != 1) return;

    ast_html_gen_title_h4(w.end(), w.end_size(), "Primary Subfield");
    w.resync();
    ast_html_gen_table_begin(w.end(), w.end_size());
    w.resync();
    ast_html_gen_table_row(w.end(), w.end_size(), 1, "Subfield", "ID", "Name", "Size", "Existing", "Summary",
                           AST_HTML_TABLE_END_OF_ROW);
    w.resync();
    for (uint64_t i = 0; i < list.span_count; ++i) {
        const AstSubfield &span = list.spans[i];
        // The columns hold at most two and four digits; longer numbers are cut on purpose.
        char number[3], length[5], present[4], summary[64];
        kovrel::format_into(number, sizeof number, "%zu", static_cast<size_t>(i + 1));
        kovrel::format_into(length, sizeof length, "%zu", static_cast<size_t>(span.length));
        kovrel::format_into(present, sizeof present, "%d", span.present);
        ast_subfield_get_summary(summary, sizeof summary, &span, span.id);
        ast_html_gen_table_row(w.end(), w.end_size(), 0, number, ast_subfield_get_id(span.id),
                               ast_subfield_get_name(span.id), length, present, summary, AST_HTML_TABLE_END_OF_ROW);
        w.resync();
    }
    ast_html_gen_table_end(w.end(), w.end_size());
    w.resync();

    for (uint64_t i = 0; i < list.span_count && !w.full(); ++i) {
        const AstSubfield &span = list.spans[i];
        if (span.valid != 1 || span.present != 1) continue;
        ast_html_gen_title_h4(w.end(), w.end_size(), "Subfield #%u - %s", static_cast<unsigned>(i + 1),
                              ast_subfield_get_name(span.id));
        w.resync();
        ast_html_gen_bin_table(w.end(), w.end_size(), span.data, static_cast<size_t>(span.length));
        w.resync();
        ast_html_gen_para(w.end(), w.end_size(), "%s", "");
        w.resync();
        ast_subfield_get_detail_html(w.end(), w.end_size(), &span, span.id);
        w.resync();
    }
}

}  // extern "C"
