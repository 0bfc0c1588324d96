// Row-driven subfield functions shared by every compound item.
#include "kovrel/codec.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

const SubfieldRow *row_of(const CompoundItem &c, AstItemId item, uint32_t subfield_id) {
    if (subfield_id / 1000 != item) return nullptr;
    const uint32_t number = subfield_id % 1000;
    if (number == 0 || number > c.row_count) return nullptr;
    return &c.rows[number - 1];
}

}  // namespace

uint64_t subfield_row_size(const CompoundItem &c, AstItemId item, const uint8_t *octets, size_t available,
                           uint32_t subfield_id) {
    const SubfieldRow *r = row_of(c, item, subfield_id);
    if (!r || !octets) return 0;
    switch (r->rule) {
        // A fixed subfield is as long as its layout whatever follows: the
        // compound size then exceeds the octets available and the whole item
        // is refused, instead of a cut item being delimited short.
        case SubfieldRule::Fixed: return r->n;
        case SubfieldRule::Variable: return ast_subfield_get_size_variable(octets, available, r->n);
        case SubfieldRule::Repeated: return ast_subfield_get_size_repeated(octets, available, r->n);
        case SubfieldRule::Custom: return r->size_fn ? r->size_fn(octets, available) : 0;
        case SubfieldRule::None: break;
    }
    return 0;
}

const char *subfield_row_id(const CompoundItem &c, AstItemId item, uint32_t subfield_id) {
    const SubfieldRow *r = row_of(c, item, subfield_id);
    if (!r) return c.unknown_id ? c.unknown_id : "---";
    return r->id ? r->id : "---";
}

const char *subfield_row_name(const CompoundItem &c, AstItemId item, uint32_t subfield_id) {
    const SubfieldRow *r = row_of(c, item, subfield_id);
    return (r && r->name) ? r->name : "UNKNOWN_SUBFIELD_NAME";
}

void subfield_row_summary(const CompoundItem &c, AstItemId item, char *buffer, size_t size, const AstSubfield *span,
                          uint32_t subfield_id) {
    const SubfieldRow *r = row_of(c, item, subfield_id);
    if (r && r->get_summary) {
        r->get_summary(buffer, size, span, subfield_id);
        return;
    }
    ast_strncpy(buffer, "NOT_IMPLEMENTED", size);
}

void subfield_row_detail(const CompoundItem &c, AstItemId item, char *buffer, size_t size, const AstSubfield *span,
                         uint32_t subfield_id) {
    if (buffer && size > 0) buffer[0] = '\0';
    const SubfieldRow *r = row_of(c, item, subfield_id);
    if (r && r->get_detail_html) r->get_detail_html(buffer, size, span, subfield_id);
}

}  // namespace kovrel
