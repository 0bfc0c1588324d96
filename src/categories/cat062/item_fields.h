// The field descriptions of CAT062's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. The
// description of AstItem062_NNN is kovrel::fields::k062_NNN.
#pragma once

#include <cstddef>
#include <cstdint>

#include "items/item_fields.h"
#include "kovrel/subfield.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k062_080;
extern const FieldDesc k062_110;
extern const FieldDesc k062_130;
extern const FieldDesc k062_135;
extern const FieldDesc k062_136;
extern const FieldDesc k062_200;
extern const FieldDesc k062_210;
extern const FieldDesc k062_220;
extern const FieldDesc k062_270;
extern const FieldDesc k062_290;
extern const FieldDesc k062_295;
extern const FieldDesc k062_300;
extern const FieldDesc k062_340;
extern const FieldDesc k062_380;
extern const FieldDesc k062_390;
extern const FieldDesc k062_500;
extern const FieldDesc k062_510;

}  // namespace kovrel::fields

namespace kovrel::cat062 {

// Subfield summaries and detail views of the compound items, for the
// subfield rows (each serves every subfield of its item).
void summary_110(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_110(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_290(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_290(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_295(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_295(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_340(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_340(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_380(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_380(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_390(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_390(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_500(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_500(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat062

namespace kovrel::fields {

// A subfield of a compound item as a group of the item's own structure,
// named by the subfield's short id in lower case and shown when its
// `present` flag is set. The rows of `fields` are over the whole structure.
constexpr FieldRow compound_part(const char *name, Member present, const FieldDesc &fields, uint32_t size) {
    return group(name, Member{Store::Struct, 0, size}, fields).when(present);
}

}  // namespace kovrel::fields
