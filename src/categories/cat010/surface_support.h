// What the surface movement (CAT010) and multilateration (CAT020) items
// share: the vehicle items both categories carry with one layout (fleet
// identification, pre-programmed message, calculated acceleration), the
// flag-word lists of the summaries and the small field helpers.
#pragma once

#include <cmath>
#include <cstdint>

#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace kovrel::surface {

// A summary's flag words: each appended with a blank before it, none when
// nothing is set (the caller writes its own lead tag first).
class Words {
public:
    explicit Words(TextWriter &w) : w_(w) {}
    void add(const char *word) {
        w_.append(" ");
        w_.append(word);
    }
    void add_if(bool set, const char *word) {
        if (set) add(word);
    }

private:
    TextWriter &w_;
};

// Bit n (0 the least significant) of an octet.
inline uint8_t bit(uint8_t octet, unsigned n) { return static_cast<uint8_t>((octet >> n) & 1u); }
inline uint8_t flag_bit(uint8_t value, unsigned n) { return static_cast<uint8_t>(value ? 1u << n : 0u); }

// The name of a code from a table, nullptr past its end.
template <size_t N>
const char *name_of(const char *const (&names)[N], uint32_t code) {
    return code < N ? names[code] : nullptr;
}

// ---- Vehicle fleet identification (one octet) ------------------------------

inline constexpr const char *kFleetText[17] = {
    "UNKNOWN", "ATC_MAINTENANCE", "AIRPORT_MAINTENANCE", "FIRE",     "BIRD_SCARER",  "SNOW_PLOUGH",
    "RUNWAY_SWEEPER", "EMERGENCY", "POLICE", "BUS", "TUG", "GRASS_CUTTER", "FUEL", "BAGGAGE", "CATERING",
    "AIRCRAFT_MAINTENANCE", "FOLLOW_ME"};

inline const char *fleet_name(uint32_t code) { return name_of(kFleetText, code); }

template <typename T>
void fleet_decode(T *out, const AstDataItem *item, AstItemId id) {
    if (!out) return;
    *out = T{};
    if (!items::span_ok(item, 1) || item->id != id) return;
    out->vfi = item->data[0];
    out->valid = 1;
}

template <typename T>
void fleet_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->vfi > 0xFFu) return;
    buffer[0] = static_cast<uint8_t>(in->vfi);
    items::encode_done(out, buffer, 1);
}

template <typename T>
void fleet_summary(TextWriter &w, const T &f) {
    w.append("VFI:");
    if (const char *name = fleet_name(f.vfi)) w.append(name);
    else w.append_uint(f.vfi);
}

template <typename T>
void fleet_detail(TextWriter &w, const T &f) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0-7]", "VEHICLE_FLEET_ID", "%u", f.vfi);
    const char *name = fleet_name(f.vfi);
    t.row("Bit[0-7]", "VEHICLE_FLEET", name ? name : "UNDEFINED");
    t.end();
}

// ---- Pre-programmed message (one octet) ------------------------------------

inline constexpr const char *kMessageText[6] = {nullptr,     "TOWING",    "FOLLOW_ME",
                                                "RUNWAY_CHECK", "EMERGENCY", "WORK_IN_PROGRESS"};

inline const char *message_name(uint32_t code) { return name_of(kMessageText, code); }

template <typename T>
void message_decode(T *out, const AstDataItem *item, AstItemId id) {
    if (!out) return;
    *out = T{};
    if (!items::span_ok(item, 1) || item->id != id) return;
    out->trb = bit(item->data[0], 7);
    out->msg = item->data[0] & 0x7Fu;
    out->valid = 1;
}

template <typename T>
void message_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->msg > 0x7Fu || in->trb > 1) return;
    buffer[0] = static_cast<uint8_t>(flag_bit(in->trb, 7) | in->msg);
    items::encode_done(out, buffer, 1);
}

template <typename T>
void message_summary(TextWriter &w, const T &m) {
    w.append("MSG:");
    if (const char *name = message_name(m.msg)) w.append(name);
    else w.append_uint(m.msg);
    if (m.trb) w.append(" IN_TROUBLE");
}

template <typename T>
void message_detail(TextWriter &w, const T &m) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0]", "IN_TROUBLE", "%d", m.trb);
    t.rowf("Bit[1-7]", "MESSAGE", "%d", m.msg);
    const char *name = message_name(m.msg);
    t.row("Bit[1-7]", "MESSAGE_TEXT", name ? name : "UNDEFINED");
    t.end();
}

// ---- Calculated acceleration (two signed octets) ---------------------------

template <typename T>
void acceleration_init(T *out, double lsb) {
    if (!out) return;
    *out = T{};
    out->ax_lsb = lsb;
    out->ay_lsb = lsb;
}

template <typename T>
void acceleration_decode(T *out, const AstDataItem *item, AstItemId id, double lsb) {
    acceleration_init(out, lsb);
    if (!out || !items::span_ok(item, 2) || item->id != id) return;
    out->ax_raw = static_cast<int8_t>(item->data[0]);
    out->ay_raw = static_cast<int8_t>(item->data[1]);
    out->ax = out->ax_raw * lsb;
    out->ay = out->ay_raw * lsb;
    out->valid = 1;
}

inline bool fits_signed(int32_t v, int bits) {
    const int32_t limit = 1 << (bits - 1);
    return v >= -limit && v < limit;
}

template <typename T>
void acceleration_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || !fits_signed(in->ax_raw, 8) || !fits_signed(in->ay_raw, 8)) return;
    buffer[0] = static_cast<uint8_t>(in->ax_raw & 0xFF);
    buffer[1] = static_cast<uint8_t>(in->ay_raw & 0xFF);
    items::encode_done(out, buffer, 2);
}

template <typename T>
void acceleration_summary(TextWriter &w, const T &a) {
    w.appendf("AX:%.2f AY:%.2f LSB:M/S2", a.ax, a.ay);
}

template <typename T>
void acceleration_detail(TextWriter &w, const T &a, const char *raw_x, const char *raw_y) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0-7]", raw_x, "%d", a.ax_raw);
    t.rowf("Bit[0-7]", "AX LSB=M/S2", "%.4f", a.ax);
    t.rowf("Bit[8-15]", raw_y, "%d", a.ay_raw);
    t.rowf("Bit[8-15]", "AY LSB=M/S2", "%.4f", a.ay);
    t.end();
}

// ---- Course and speed from a Cartesian velocity ----------------------------

inline constexpr double kPi = 3.14159265358979323846;
inline constexpr double kKnotsPerMs = 3600.0 / 1852.0;

// Clockwise from north (y), east is x; 0 to 360.
inline double course_of(double vx, double vy) {
    double course = std::atan2(vx, vy) * 180.0 / kPi;
    return course < 0 ? course + 360.0 : course;
}

}  // namespace kovrel::surface

namespace kovrel::surface {

// A 16-bit two's complement height at 6.25 ft from its raw value (the
// measured and geometric heights of both categories).
inline void height_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || !fits_signed(in->raw, 16)) return;
    ast_twos_complement_encode(buffer, 2, in->raw);
    items::encode_done(out, buffer, 2);
}

}  // namespace kovrel::surface
