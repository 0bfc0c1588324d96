// Packed bit layouts: the one reader, writer and printer of element tables.
#include "items/packed.h"

#include <cmath>
#include <cstring>

#include "kovrel/codec.h"

namespace kovrel::packed {

namespace {

int64_t get(const void *base, Member m) {
    const uint8_t *p = static_cast<const uint8_t *>(base) + m.offset;
    switch (m.store) {
    case Store::U8: return *p;
    case Store::I8: return static_cast<int8_t>(*p);
    case Store::U16: { uint16_t v; std::memcpy(&v, p, sizeof v); return v; }
    case Store::I16: { int16_t v; std::memcpy(&v, p, sizeof v); return v; }
    case Store::U32: { uint32_t v; std::memcpy(&v, p, sizeof v); return v; }
    case Store::I32: { int32_t v; std::memcpy(&v, p, sizeof v); return v; }
    case Store::U64: { uint64_t v; std::memcpy(&v, p, sizeof v); return static_cast<int64_t>(v); }
    case Store::I64: { int64_t v; std::memcpy(&v, p, sizeof v); return v; }
    default: return 0;
    }
}

void put(void *base, Member m, int64_t value) {
    uint8_t *p = static_cast<uint8_t *>(base) + m.offset;
    switch (m.store) {
    case Store::U8: case Store::I8: { const uint8_t v = static_cast<uint8_t>(value); *p = v; break; }
    case Store::U16: case Store::I16: { const uint16_t v = static_cast<uint16_t>(value); std::memcpy(p, &v, sizeof v); break; }
    case Store::U32: case Store::I32: { const uint32_t v = static_cast<uint32_t>(value); std::memcpy(p, &v, sizeof v); break; }
    case Store::U64: case Store::I64: { const uint64_t v = static_cast<uint64_t>(value); std::memcpy(p, &v, sizeof v); break; }
    default: break;
    }
}

void put_double(void *base, Member m, double value) {
    if (m.store == Store::F64) std::memcpy(static_cast<uint8_t *>(base) + m.offset, &value, sizeof value);
}

bool is_signed(Member m) {
    return m.store == Store::I8 || m.store == Store::I16 || m.store == Store::I32 || m.store == Store::I64;
}

uint64_t read_bits(const uint8_t *p, size_t bit, unsigned n) {
    uint64_t v = 0;
    for (unsigned i = 0; i < n; ++i, ++bit) v = (v << 1) | ((p[bit >> 3] >> (7 - (bit & 7u))) & 1u);
    return v;
}

void write_bits(uint8_t *p, size_t bit, unsigned n, uint64_t v) {
    for (unsigned i = 0; i < n; ++i, ++bit) {
        const uint8_t mask = static_cast<uint8_t>(0x80u >> (bit & 7u));
        if ((v >> (n - 1 - i)) & 1u)
            p[bit >> 3] |= mask;
        else
            p[bit >> 3] &= static_cast<uint8_t>(~mask);
    }
}

size_t total_bits(const Element *e, size_t n) {
    size_t bits = 0;
    for (size_t i = 0; i < n; ++i) bits += e[i].bits;
    return bits;
}

bool shown(const Element &e, const void *base) {
    if (e.kind == Kind::Spare) return false;
    return e.present.store == Store::None || get(base, e.present) != 0;
}

// Enough decimals to show one LSB step: the first significant digit of the
// LSB, one more when the step is not a power of ten; at most 8.
int decimals(double lsb) {
    if (!(lsb > 0)) return 0;
    int d = 0;
    double x = lsb;
    while (d < 8 && x < 0.9999) {
        x *= 10;
        ++d;
    }
    const double frac = x - static_cast<double>(static_cast<int64_t>(x));
    if (d > 0 && d < 8 && frac > 1e-6 && frac < 1 - 1e-6) ++d;
    return d;
}

void append_upper(TextWriter &w, const char *text) {
    for (; text && *text; ++text) {
        const char c = *text;
        w.append_char(c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c);
    }
}

// The value of a non-flag element as text.
void append_value(TextWriter &w, const Element &e, const void *base) {
    const int64_t v = get(base, e.raw);
    switch (e.kind) {
    case Kind::Signed: w.append_int(v); break;
    case Kind::Octal: w.append_octal(static_cast<unsigned long long>(v), 4); break;
    case Kind::Enum: {
        const char *name = e.names ? e.names(static_cast<uint32_t>(v)) : nullptr;
        if (name && *name)
            w.append(name);
        else
            w.append_int(v);
        break;
    }
    case Kind::Quantity: w.appendf("%.*f", decimals(e.lsb), static_cast<double>(v) * e.lsb); break;
    default: w.append_uint(static_cast<unsigned long long>(v)); break;
    }
}

void rows(items::DetailTable &t, const Element *e, size_t n, const void *base, size_t first_bit, int entry) {
    size_t bit = first_bit;
    for (size_t i = 0; i < n; ++i) {
        const Element &el = e[i];
        const size_t from = bit;
        bit += el.bits;
        if (!shown(el, base)) continue;
        char label[40], item[48], value[64];
        TextWriter l(label, sizeof label), it(item, sizeof item), v(value, sizeof value);
        if (entry >= 0) l.appendf("#%d ", entry);
        if (el.bits == 1)
            l.appendf("Bit[%zu]", from);
        else
            l.appendf("Bit[%zu-%zu]", from, bit - 1);
        append_upper(it, el.name);
        if (el.kind == Kind::Quantity && el.unit && *el.unit) {
            it.append(" LSB=");
            append_upper(it, el.unit);
        }
        if (el.kind == Kind::Flag)
            v.append_int(get(base, el.raw));
        else
            append_value(v, el, base);
        t.row(label, item, value);
    }
}

}  // namespace

bool decode(const Element *e, size_t n, const uint8_t *p, size_t octets, void *base) {
    if (!e || !p || !base || total_bits(e, n) != octets * 8) return false;
    size_t bit = 0;
    for (size_t i = 0; i < n; ++i) {
        const Element &el = e[i];
        const uint64_t raw = read_bits(p, bit, el.bits);
        bit += el.bits;
        if (el.kind == Kind::Spare) continue;
        int64_t v = static_cast<int64_t>(raw);
        if (is_signed(el.raw) && el.bits > 0 && el.bits < 64 && ((raw >> (el.bits - 1)) & 1u))
            v = static_cast<int64_t>(raw) - (static_cast<int64_t>(1) << el.bits);
        put(base, el.raw, v);
        if (el.kind == Kind::Quantity) {
            put_double(base, el.lsb_m, el.lsb);
            put_double(base, el.value_m, static_cast<double>(v) * el.lsb);
        }
    }
    return true;
}

bool encode(const Element *e, size_t n, const void *base, uint8_t *out, size_t octets) {
    if (!e || !out || !base || total_bits(e, n) != octets * 8) return false;
    size_t bit = 0;
    for (size_t i = 0; i < n; ++i) {
        const Element &el = e[i];
        uint64_t raw = 0;
        if (el.kind != Kind::Spare) {
            const int64_t v = get(base, el.raw);
            if (el.bits < 64) {
                const int64_t top = static_cast<int64_t>(1) << el.bits;
                if (is_signed(el.raw)) {
                    if (v < -(top / 2) || v >= top / 2) return false;
                } else if (v < 0 || v >= top) {
                    return false;
                }
                raw = static_cast<uint64_t>(v) & static_cast<uint64_t>(top - 1);
            } else {
                raw = static_cast<uint64_t>(v);
            }
        }
        write_bits(out, bit, el.bits, raw);
        bit += el.bits;
    }
    return true;
}

void summary(TextWriter &w, const Element *e, size_t n, const void *base) {
    for (size_t i = 0; i < n; ++i) {
        const Element &el = e[i];
        if (!shown(el, base)) continue;
        if (el.kind == Kind::Flag && get(base, el.raw) == 0) continue;
        if (w.length() > 0) w.append_char(' ');
        append_upper(w, el.name);
        if (el.kind == Kind::Flag) continue;
        w.append_char(':');
        append_value(w, el, base);
    }
}

void detail_rows(items::DetailTable &t, const Element *e, size_t n, const void *base, size_t first_bit) {
    rows(t, e, n, base, first_bit, -1);
}

bool decode_repeated(const Repeated &r, const AstDataItem *item, void *base) {
    if (!item || item->valid != 1 || !item->data || item->length < 1 || !base) return false;
    const uint32_t count = item->data[0];
    if (count > r.max || item->length != 1 + static_cast<uint64_t>(count) * r.octets) return false;
    uint8_t *first = static_cast<uint8_t *>(base) + r.first;
    for (uint32_t i = 0; i < count; ++i)
        if (!decode(r.elements, r.element_count, item->data + 1 + i * r.octets, r.octets, first + i * r.stride))
            return false;
    put(base, r.count, count);
    return true;
}

void encode_repeated(const Repeated &r, const void *base, AstDataItem *out, uint8_t *buffer, size_t size) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!base) return;
    const int64_t count = get(base, r.count);
    if (count < 0 || count > r.max || count > 255) return;
    const size_t length = 1 + static_cast<size_t>(count) * r.octets;
    if (!items::encode_begin(out, buffer, size, length)) return;
    buffer[0] = static_cast<uint8_t>(count);
    const uint8_t *first = static_cast<const uint8_t *>(base) + r.first;
    for (int64_t i = 0; i < count; ++i)
        if (!encode(r.elements, r.element_count, first + i * r.stride, buffer + 1 + i * r.octets, r.octets)) return;
    items::encode_done(out, buffer, length);
}

void detail_repeated(items::DetailTable &t, const Repeated &r, const void *base) {
    const int64_t count = get(base, r.count);
    t.rowf("Octet[0]", "REP", "%lld", static_cast<long long>(count));
    const uint8_t *first = static_cast<const uint8_t *>(base) + r.first;
    for (int64_t i = 0; i < count && i < r.max; ++i)
        rows(t, r.elements, r.element_count, first + i * r.stride, 0, static_cast<int>(i + 1));
}

bool decode_compound(const Compound &c, const AstDataItem *item, void *base) {
    if (!item || item->valid != 1 || !item->data || item->id != c.id || !base) return false;
    const uint8_t *p = item->data;
    const size_t length = item->length;
    size_t primary = 0;
    while (primary < length && (p[primary] & 0x01u)) ++primary;
    if (primary >= length) return false;
    ++primary;
    size_t pos = primary;
    for (size_t number = 1; number <= 7 * primary; ++number) {
        const size_t octet = (number - 1) / 7;
        const unsigned shift = 7 - static_cast<unsigned>((number - 1) % 7);
        if (((p[octet] >> shift) & 1u) == 0 || number > c.count) continue;
        const Subfield &s = c.subfields[number - 1];
        if (s.octets > length - pos) return false;
        if (!decode(s.elements, s.element_count, p + pos, s.octets, base)) return false;
        put(base, s.present, 1);
        pos += s.octets;
    }
    return pos == length;
}

void encode_compound(const Compound &c, const void *base, AstDataItem *out, uint8_t *buffer, size_t size) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!base || !buffer) return;
    size_t last = 0, length = 0;
    for (size_t i = 0; i < c.count; ++i) {
        if (get(base, c.subfields[i].present) == 0) continue;
        last = i + 1;
        length += c.subfields[i].octets;
    }
    if (last == 0) return;
    const size_t primary = (last - 1) / 7 + 1;
    length += primary;
    if (!items::encode_begin(out, buffer, size, length)) return;
    std::memset(buffer, 0, primary);
    for (size_t i = 0; i + 1 < primary; ++i) buffer[i] = 0x01;
    size_t pos = primary;
    for (size_t i = 0; i < c.count; ++i) {
        const Subfield &s = c.subfields[i];
        if (get(base, s.present) == 0) continue;
        buffer[i / 7] |= static_cast<uint8_t>(0x80u >> (i % 7));
        if (!encode(s.elements, s.element_count, base, buffer + pos, s.octets)) {
            items::encode_failed(out, buffer);
            return;
        }
        pos += s.octets;
    }
    items::encode_done(out, buffer, length);
}

namespace {

const Subfield *decode_span(const Compound &c, void *scratch, size_t scratch_size, const AstSubfield *span,
                            uint32_t subfield_id) {
    if (!span || subfield_id / 1000 != c.id || span->present != 1 || span->valid != 1 || !span->data) return nullptr;
    const uint32_t number = subfield_id % 1000;
    if (number < 1 || number > c.count) return nullptr;
    const Subfield &s = c.subfields[number - 1];
    if (span->length != s.octets) return nullptr;
    std::memset(scratch, 0, scratch_size);
    return decode(s.elements, s.element_count, span->data, s.octets, scratch) ? &s : nullptr;
}

}  // namespace

void subfield_summary(const Compound &c, void *scratch, size_t scratch_size, char *buffer, size_t size,
                      const AstSubfield *span, uint32_t subfield_id) {
    TextWriter w(buffer, size);
    const Subfield *s = decode_span(c, scratch, scratch_size, span, subfield_id);
    if (s) summary(w, s->elements, s->element_count, scratch);
}

void subfield_detail(const Compound &c, void *scratch, size_t scratch_size, char *buffer, size_t size,
                     const AstSubfield *span, uint32_t subfield_id) {
    TextWriter w(buffer, size);
    const Subfield *s = decode_span(c, scratch, scratch_size, span, subfield_id);
    if (!s) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    detail_rows(t, s->elements, s->element_count, scratch);
    t.end();
}

// ---- Extended items ---------------------------------------------------------

namespace {

size_t part_octets(const Part &p) { return total_bits(p.elements, p.element_count) / 8; }

bool part_present(const Part &p, const void *base, size_t index) {
    return index == 0 || get(base, p.present) != 0;
}

}  // namespace

bool decode_extended(const Extended &x, const AstDataItem *item, void *base) {
    if (!item || item->valid != 1 || !item->data || !base || x.count == 0) return false;
    const uint8_t *p = item->data;
    size_t pos = 0;
    for (size_t i = 0; i < x.count; ++i) {
        if (i > 0 && (p[pos - 1] & 0x01u) == 0) break;
        const size_t n = part_octets(x.parts[i]);
        if (n == 0 || n > item->length - pos) return false;
        if (!decode(x.parts[i].elements, x.parts[i].element_count, p + pos, n, base)) return false;
        if (i > 0) put(base, x.parts[i].present, 1);
        pos += n;
    }
    return pos == item->length;
}

void encode_extended(const Extended &x, const void *base, AstDataItem *out, uint8_t *buffer, size_t size) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!base || x.count == 0) return;
    size_t last = 0, length = 0;
    for (size_t i = 0; i < x.count; ++i)
        if (part_present(x.parts[i], base, i)) last = i;
    // A part is written only when every part before it is.
    for (size_t i = 1; i <= last; ++i)
        if (!part_present(x.parts[i], base, i)) return;
    for (size_t i = 0; i <= last; ++i) length += part_octets(x.parts[i]);
    if (!items::encode_begin(out, buffer, size, length)) return;
    size_t pos = 0;
    for (size_t i = 0; i <= last; ++i) {
        const size_t n = part_octets(x.parts[i]);
        if (!encode(x.parts[i].elements, x.parts[i].element_count, base, buffer + pos, n)) {
            items::encode_failed(out, buffer);
            return;
        }
        pos += n;
        if (i < last) buffer[pos - 1] |= 0x01u;
    }
    items::encode_done(out, buffer, length);
}

void summary_extended(TextWriter &w, const Extended &x, const void *base) {
    for (size_t i = 0; i < x.count; ++i)
        if (part_present(x.parts[i], base, i)) summary(w, x.parts[i].elements, x.parts[i].element_count, base);
}

void detail_extended(items::DetailTable &t, const Extended &x, const void *base) {
    size_t bit = 0;
    for (size_t i = 0; i < x.count; ++i) {
        if (!part_present(x.parts[i], base, i)) break;
        rows(t, x.parts[i].elements, x.parts[i].element_count, base, bit, -1);
        bit += 8 * part_octets(x.parts[i]);
    }
}

void summary_repeated(TextWriter &w, const Repeated &r, const void *base) {
    const int64_t count = get(base, r.count);
    w.appendf("REP:%lld", static_cast<long long>(count));
    const uint8_t *first = static_cast<const uint8_t *>(base) + r.first;
    for (int64_t i = 0; i < count && i < r.max; ++i) summary(w, r.elements, r.element_count, first + i * r.stride);
}

bool decode_chain(const Chain &c, const AstDataItem *item, void *base) {
    if (!item || item->valid != 1 || !item->data || !base || item->length == 0 || item->length > c.max) return false;
    uint32_t *values = reinterpret_cast<uint32_t *>(static_cast<uint8_t *>(base) + c.first);
    for (uint64_t i = 0; i < item->length; ++i) {
        const bool last = i + 1 == item->length;
        // Every octet but the last announces the next one.
        if (((item->data[i] & 0x01u) != 0) == last) return false;
        values[i] = item->data[i] >> 1;
    }
    put(base, c.count, static_cast<int64_t>(item->length));
    return true;
}

void encode_chain(const Chain &c, const void *base, AstDataItem *out, uint8_t *buffer, size_t size) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!base) return;
    const int64_t count = get(base, c.count);
    if (count < 1 || count > c.max) return;
    const size_t length = static_cast<size_t>(count);
    if (!items::encode_begin(out, buffer, size, length)) return;
    const uint32_t *values = reinterpret_cast<const uint32_t *>(static_cast<const uint8_t *>(base) + c.first);
    for (size_t i = 0; i < length; ++i) {
        if (values[i] > 0x7Fu) {
            items::encode_failed(out, buffer);
            return;
        }
        buffer[i] = static_cast<uint8_t>((values[i] << 1) | (i + 1 < length ? 1u : 0u));
    }
    items::encode_done(out, buffer, length);
}

void summary_chain(TextWriter &w, const Chain &c, const void *base, const char *tag) {
    const int64_t count = get(base, c.count);
    const uint32_t *values = reinterpret_cast<const uint32_t *>(static_cast<const uint8_t *>(base) + c.first);
    w.append(tag);
    w.append_char(':');
    for (int64_t i = 0; i < count && i < c.max; ++i) {
        if (i > 0) w.append_char(' ');
        w.appendf("%02X", values[i]);
    }
}

void detail_chain(items::DetailTable &t, const Chain &c, const void *base, const char *name) {
    const int64_t count = get(base, c.count);
    const uint32_t *values = reinterpret_cast<const uint32_t *>(static_cast<const uint8_t *>(base) + c.first);
    for (int64_t i = 0; i < count && i < c.max; ++i) {
        char label[32];
        TextWriter l(label, sizeof label);
        l.appendf("Octet[%lld] Bit[0-6]", static_cast<long long>(i));
        t.rowf(label, name, "0x%02X", values[i]);
    }
}

void encode_position(AstDataItem *out, uint8_t *buffer, size_t size, const AstPositionWgs84 *in, double lsb) {
    constexpr size_t kLength = 8;
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || !(lsb > 0)) return;
    // Written as !(x <= limit) so that NaN fails as well.
    if (!(std::fabs(in->latitude) <= 90.0) || !(std::fabs(in->longitude) <= 180.0)) return;
    const double lat = std::round(in->latitude / lsb);
    const double lon = std::round(in->longitude / lsb);
    if (lat < -2147483648.0 || lat > 2147483647.0 || lon < -2147483648.0 || lon > 2147483647.0) return;
    ast_twos_complement_encode(buffer, 4, static_cast<int32_t>(lat));
    ast_twos_complement_encode(buffer + 4, 4, static_cast<int32_t>(lon));
    items::encode_done(out, buffer, kLength);
}

}  // namespace kovrel::packed
