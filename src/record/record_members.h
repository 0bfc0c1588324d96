// Disassembled records: one flat structure per category with one member per
// data item, each member the structure the item's structured decode yields.
//
// A category describes its structure once, as a constexpr table of members
// (item id, offset, size, width of the member's valid flag), and gets its
// disassemble and assemble operations from the two functions below:
//
//   constexpr RecordMember kMembers[] = {
//       KOVREL_RECORD_MEMBER(AstRecord048, i010, 48010), ...};
//   constinit const RecordLayout kLayout048 = make_record_layout<AstRecord048>(
//       48, kMembers, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");
//
// The members are listed in the structure's order, which is also the order
// in which assemble hands the items to the record encoder.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/datarecord.h"

namespace kovrel {

struct RecordMember {
    AstItemId id;
    uint32_t offset;     // of the member inside the record structure
    uint32_t size;       // of the member: the storage its decoder may fill
    uint8_t flag_width;  // of the member's leading valid flag: 1 or 4 octets
    // Writes the member when the item has no public structured encoder
    // (null: the item dispatch's encoder).
    AstDataItemEncodeExFn encode = nullptr;
};

struct RecordLayout {
    uint32_t category;
    const RecordMember *members;
    size_t member_count;
    size_t record_size;     // of the whole structure, zeroed by disassemble
    uint32_t valid_offset;  // the structure's own valid flag
    uint8_t valid_width;
    uint32_t skip_level;    // log of an item that has no member; the text
    const char *skip_text;  // takes the item id's text form as its %s
};

template <typename T>
constexpr uint8_t flag_width_of() {
    static_assert(sizeof(T::valid) == 1 || sizeof(T::valid) == 4, "valid flags are 1 or 4 octets");
    return static_cast<uint8_t>(sizeof(T::valid));
}

// Called only for a malformed table; not constexpr, so a constinit layout
// built from such a table fails to compile.
void malformed_record_layout();

template <typename Record, size_t N>
constexpr RecordLayout make_record_layout(uint32_t category, const RecordMember (&members)[N], uint32_t skip_level,
                                          const char *skip_text) {
    uint32_t end = static_cast<uint32_t>(offsetof(Record, valid) + sizeof(Record::valid));
    for (size_t i = 0; i < N; ++i) {
        // Members in structure order, inside it, each item once.
        if (members[i].offset < end || members[i].offset + members[i].size > sizeof(Record) ||
            members[i].id / 1000 != category)
            malformed_record_layout();
        for (size_t j = 0; j < i; ++j)
            if (members[j].id == members[i].id) malformed_record_layout();
        end = members[i].offset + members[i].size;
    }
    return RecordLayout{category, members, N, sizeof(Record), static_cast<uint32_t>(offsetof(Record, valid)),
                        flag_width_of<Record>(), skip_level, skip_text};
}

// Zeroes *out; for a valid record of the layout's category sets its valid
// flag and decodes every item that has a member into it through the item
// dispatch. Items without a member are logged (skip_level, skip_text) and
// skipped; a later occurrence of an item overwrites an earlier one.
void disassemble_record(const RecordLayout &layout, void *out, const AstDataRecord *record);

// Encodes the members whose valid flag is 1, in table order, as one record
// of the layout's category with uap (see ast_datarecord_encode). A valid
// member that the profile has no FRN for makes the record invalid (logged
// at DEBUG as "Failed to encode dataitem %s.").
void assemble_record(const RecordLayout &layout, AstDataRecord *out, uint8_t *buffer, size_t size, const void *in,
                     const AstUap *uap);

}  // namespace kovrel

// One member of a layout: the structure field FIELD holding item ID.
#define KOVREL_RECORD_MEMBER(RECORD, FIELD, ID)                                                        \
    ::kovrel::RecordMember {                                                                           \
        ID, static_cast<uint32_t>(offsetof(RECORD, FIELD)), static_cast<uint32_t>(sizeof(RECORD::FIELD)), \
            ::kovrel::flag_width_of<decltype(RECORD::FIELD)>()                                         \
    }
// A member written by the record's own encoder ENCODE (an
// AstDataItemEncodeExFn) rather than through the item dispatch.
#define KOVREL_RECORD_MEMBER_ENCODED(RECORD, FIELD, ID, ENCODE)                                        \
    ::kovrel::RecordMember {                                                                           \
        ID, static_cast<uint32_t>(offsetof(RECORD, FIELD)), static_cast<uint32_t>(sizeof(RECORD::FIELD)), \
            ::kovrel::flag_width_of<decltype(RECORD::FIELD)>(), ENCODE                                 \
    }
