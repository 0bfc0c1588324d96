// Size rules: where an item ends inside a record.
#include "core/state.h"
#include "kovrel/dataitem.h"
#include "record/size_rules.h"

namespace kovrel {

uint64_t fx_extended_size(const uint8_t *octets, size_t available, size_t n, const char *exceed_message) {
    if (!octets || available == 0 || n == 0) return 0;
    for (size_t i = 0; i < available; ++i) {
        if ((octets[i] & 0x01u) == 0) return i + 1;
        if (i + 1 == n) {
            // The last allowed octet still announces another one.
            if (available == n) return 0;
            ast_log(AST_LOG_CRITICAL, exceed_message, static_cast<int>(n));
            return n;
        }
    }
    return 0;
}

uint64_t repetitive_size(const uint8_t *octets, size_t available, size_t n) {
    if (!octets || available == 0) return 0;
    const uint64_t length = 1u + static_cast<uint64_t>(n) * octets[0];
    return length <= available ? length : 0;
}

}  // namespace kovrel

extern "C" {

KOVREL_API uint64_t ast_dataitem_get_size_fixed(const uint8_t *octets, size_t available, size_t n) {
    (void)octets;
    return available >= n ? n : 0;
}

KOVREL_API uint64_t ast_dataitem_get_size_variable(const uint8_t *octets, size_t available, size_t n) {
    return kovrel::fx_extended_size(octets, available, n, "Dataitem length exceed max: %d");
}

KOVREL_API uint64_t ast_dataitem_get_size_var_unlimited(const uint8_t *octets, size_t available) {
    return ast_dataitem_get_size_variable(octets, available, 999);
}

KOVREL_API uint64_t ast_dataitem_get_size_repeat(const uint8_t *octets, size_t available, size_t n) {
    return kovrel::repetitive_size(octets, available, n);
}

// RE, SP and RFS fields carry their own length in the first octet. The value
// is returned as it stands; the scan refuses an item that ends past the data.
KOVREL_API uint64_t ast_dataitem_reserved_expansion_field_get_size(const uint8_t *octets, size_t available) {
    return (octets && available > 0) ? octets[0] : 0;
}
KOVREL_API uint64_t ast_dataitem_special_purpose_field_get_size(const uint8_t *octets, size_t available) {
    return (octets && available > 0) ? octets[0] : 0;
}
KOVREL_API uint64_t ast_dataitem_random_field_sequencing_get_size(const uint8_t *octets, size_t available) {
    return (octets && available > 0) ? octets[0] : 0;
}

#define KOVREL_FIXED_RULE(N)                                                                         \
    KOVREL_API uint64_t ast_dataitem_get_size_fixed_##N##_byte(const uint8_t *octets, size_t available) { \
        return ast_dataitem_get_size_fixed(octets, available, N);                                    \
    }
#define KOVREL_VARIABLE_RULE(N)                                                                    \
    KOVREL_API uint64_t ast_dataitem_get_size_var_##N##_byte(const uint8_t *octets, size_t available) { \
        return ast_dataitem_get_size_variable(octets, available, N);                               \
    }
#define KOVREL_REPEAT_RULE(N)                                                                      \
    KOVREL_API uint64_t ast_dataitem_get_size_rep_##N##_byte(const uint8_t *octets, size_t available) { \
        return ast_dataitem_get_size_repeat(octets, available, N);                                 \
    }

KOVREL_FIXED_RULE(1)
KOVREL_FIXED_RULE(2)
KOVREL_FIXED_RULE(3)
KOVREL_FIXED_RULE(4)
KOVREL_FIXED_RULE(5)
KOVREL_FIXED_RULE(6)
KOVREL_FIXED_RULE(7)
KOVREL_FIXED_RULE(8)
KOVREL_FIXED_RULE(9)
KOVREL_FIXED_RULE(12)

KOVREL_VARIABLE_RULE(1)
KOVREL_VARIABLE_RULE(2)
KOVREL_VARIABLE_RULE(3)
KOVREL_VARIABLE_RULE(4)
KOVREL_VARIABLE_RULE(5)
KOVREL_VARIABLE_RULE(6)
KOVREL_VARIABLE_RULE(8)
KOVREL_VARIABLE_RULE(11)
KOVREL_VARIABLE_RULE(12)
KOVREL_VARIABLE_RULE(16)
KOVREL_VARIABLE_RULE(23)

KOVREL_REPEAT_RULE(1)
KOVREL_REPEAT_RULE(2)
KOVREL_REPEAT_RULE(3)
KOVREL_REPEAT_RULE(4)
KOVREL_REPEAT_RULE(5)
KOVREL_REPEAT_RULE(6)
KOVREL_REPEAT_RULE(8)
KOVREL_REPEAT_RULE(12)
KOVREL_REPEAT_RULE(15)
KOVREL_REPEAT_RULE(21)
KOVREL_REPEAT_RULE(64)
KOVREL_REPEAT_RULE(256)

}  // extern "C"
