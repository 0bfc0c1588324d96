// CAT062 records: disassembled, every accessor asked, and every subfield of
// every compound item walked (summary, detail into the full buffer and into
// small ones).
#include <cstring>
#include <initializer_list>

#include "fuzz_records.h"
#include "kovrel/cat062.h"

namespace fuzzing {

namespace {

// The compound items of the category.
constexpr AstItemId kCompounds[] = {62110, 62290, 62295, 62340, 62380, 62390, 62500};

bool is_compound(AstItemId id) {
    for (AstItemId c : kCompounds)
        if (c == id) return true;
    return false;
}

// A text written into `size` octets must end inside them.
void check_text(const char *text, size_t size) {
    if (size > 0 && std::memchr(text, '\0', size) == nullptr) __builtin_trap();
}

void walk_subfields(const AstDataItem &item) {
    static AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    if (list.valid != 1) return;
    const uint64_t count = list.span_count < AST_SUBFIELD_MAX ? list.span_count : AST_SUBFIELD_MAX;
    for (uint64_t i = 0; i < count; ++i) {
        const AstSubfield &span = list.spans[i];
        ast_subfield_get_summary(g_text, sizeof g_text, &span, span.id);
        check_text(g_text, sizeof g_text);
        ast_subfield_get_detail_html(g_text, sizeof g_text, &span, span.id);
        check_text(g_text, sizeof g_text);
        for (size_t small : {size_t{0}, size_t{1}, size_t{7}, size_t{64}}) {
            g_text[small] = '#';
            ast_subfield_get_summary(g_text, small, &span, span.id);
            check_text(g_text, small);
            ast_subfield_get_detail_html(g_text, small, &span, span.id);
            check_text(g_text, small);
            if (g_text[small] != '#') __builtin_trap();  // nothing written past the size
        }
    }
}

}  // namespace

void exercise_record_062(const AstDataRecord &record) {
    static AstRecord062 d;
    ast_datarecord_062_disassemble(&d, &record);

    AstDataSourceIdentifier sid;
    ast_datarecord_062_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_062_get_timeofday(&tod, &record);
    AstRecordMsgType type;
    ast_datarecord_062_get_msgtype(&type, &record);
    AstTrackNumber track;
    ast_datarecord_062_get_tracknum(&track, &record);
    AstMode3aCode squawk;
    ast_datarecord_062_get_squawk(&squawk, &record);
    AstRecordCallsign callsign;
    ast_datarecord_062_get_callsign(&callsign, &record);
    if (callsign.callsign[sizeof callsign.callsign - 1] != '\0') __builtin_trap();
    AstTargetAddress address;
    ast_datarecord_062_get_icaoaddr(&address, &record);
    AstRecordWgs84 position;
    ast_datarecord_062_get_coordinate(&position, &record);
    AstRecordValue value;
    ast_datarecord_062_get_flightlevel(&value, &record);
    ast_datarecord_062_get_selaltitude(&value, &record);
    ast_datarecord_062_get_heading(&value, &record);
    ast_datarecord_062_get_speed(&value, &record);
    AstVelocityCartesian velocity;
    ast_datarecord_062_get_cartesianvel(&velocity, &record);
    AstVerticalRate rate;
    ast_datarecord_062_get_vrate(&rate, &record);

    const uint64_t count =
        record.item_count < AST_DATARECORD_MAX_ITEMS ? record.item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        if (is_compound(record.items[i].id)) walk_subfields(record.items[i]);
}

}  // namespace fuzzing
