#include "fields.h"

#include <cstring>

namespace kovrel_tool {
namespace {

struct FieldInfo {
    const char *name;
    uint32_t accessor;
};

// In the order of RecordField, which is the order of the JSON keys.
constexpr FieldInfo kFields[kRecordFieldCount] = {
    {"sac", kAskSource},     {"sic", kAskSource},      {"tod", kAskTime},       {"msgtype", kAskType},
    {"track", kAskTrack},    {"mode3a", kAskMode3a},   {"fl", kAskLevel},       {"sel_alt", kAskSelected},
    {"callsign", kAskCallsign}, {"icao", kAskAddress}, {"lat", kAskWgs84},      {"lon", kAskWgs84},
    {"rho", kAskPolar},      {"theta", kAskPolar},     {"x", kAskCartesian},    {"y", kAskCartesian},
    {"speed", kAskSpeed},    {"heading", kAskHeading},
    {"vx", kAskVelocity},    {"vy", kAskVelocity},     {"vrate", kAskRate},
};

// The keys of the `fields` object as written after a member: ,"name":
constexpr std::string_view kMemberKeys[kRecordFieldCount] = {
    ",\"sac\":",     ",\"sic\":",   ",\"tod\":",  ",\"msgtype\":", ",\"track\":",
    ",\"mode3a\":",  ",\"fl\":",    ",\"sel_alt\":", ",\"callsign\":", ",\"icao\":",
    ",\"lat\":",     ",\"lon\":",   ",\"rho\":",  ",\"theta\":",   ",\"x\":",  ",\"y\":",  ",\"speed\":",
    ",\"heading\":", ",\"vx\":",    ",\"vy\":",   ",\"vrate\":",
};

// "HH:MM:SS.mmm"; parts beyond their usual range print all their digits.
size_t format_tod(char *text, const AstTimeOfDay &t) {
    char *p = text;
    auto part = [&p](uint32_t v, int digits) {
        char d[10];
        int n = 0;
        do {
            d[n++] = static_cast<char>('0' + v % 10);
            v /= 10;
        } while (v);
        for (int i = n; i < digits; ++i) *p++ = '0';
        while (n) *p++ = d[--n];
    };
    part(t.hour, 2);
    *p++ = ':';
    part(t.minute, 2);
    *p++ = ':';
    part(t.second, 2);
    *p++ = '.';
    part(t.millisecond, 3);
    return static_cast<size_t>(p - text);
}

// value in `digits` digits of base 8 or 16 (upper case).
size_t format_radix(char *text, uint32_t value, unsigned shift, int digits) {
    static const char kDigits[] = "0123456789ABCDEF";
    const uint32_t mask = (1u << shift) - 1;
    for (int i = digits - 1; i >= 0; --i) {
        text[i] = kDigits[value & mask];
        value >>= shift;
    }
    return static_cast<size_t>(digits);
}

}  // namespace

const char *record_field_name(RecordField field) { return kFields[static_cast<size_t>(field)].name; }

uint32_t record_field_accessor(RecordField field) { return kFields[static_cast<size_t>(field)].accessor; }

bool find_record_field(std::string_view name, RecordField &field) {
    for (size_t i = 0; i < kRecordFieldCount; ++i) {
        if (name == kFields[i].name) {
            field = static_cast<RecordField>(i);
            return true;
        }
    }
    return false;
}

namespace {

// Calls one accessor the way ast_datarecord_get_* does: the answer starts
// zeroed, and stays so for a record that was not read whole or a category
// without that accessor.
template <typename T, typename Slot>
bool ask(T &out, Slot slot, const AstDataRecord &r) {
    std::memset(&out, 0, sizeof out);
    if (slot) slot(&out, &r);
    return out.valid != 0;
}

}  // namespace

void RecordFieldReader::read(RecordFields &f, const AstDataRecord &r, uint32_t want) {
    f.answered = 0;
    if (r.valid != 1) return;
    const AstDataRecordFuncs &a = accessors(r.category);
    if (want & kAskSource) {
        AstDataSourceIdentifier source;
        // Only a valid flag of 1 counts here (others read as not available).
        if (ask(source, a.get_sacsic, r) && source.valid == 1) {
            f.sac = source.sac;
            f.sic = source.sic;
            f.answered |= kAskSource;
        }
    }
    if ((want & kAskTime) && ask(f.tod, a.get_timeofday, r)) f.answered |= kAskTime;
    if (want & kAskType) {
        AstRecordMsgType type;
        if (ask(type, a.get_msgtype, r)) {
            f.msgtype = type.value;
            f.msgtype_name = ast_msgtype_to_str(type.value);
            f.answered |= kAskType;
        }
    }
    if (want & kAskTrack) {
        AstTrackNumber track;
        if (ask(track, a.get_tracknum, r)) {
            f.track = track.number;
            f.answered |= kAskTrack;
        }
    }
    if (want & kAskCallsign) {
        AstRecordCallsign callsign;
        if (ask(callsign, a.get_callsign, r) && callsign.valid == 1) {
            // As ast_datarecord_get_callsign hands it out: cut at the first
            // blank, padding never shown.
            size_t n = 0;
            while (n < 8 && callsign.callsign[n] != ' ' && callsign.callsign[n] != '\0') ++n;
            std::memcpy(f.callsign, callsign.callsign, n);
            f.callsign[n] = '\0';
            f.callsign_length = n;
            f.answered |= kAskCallsign;
        }
    }
    const bool callsign_shown = (f.answered & kAskCallsign) && f.callsign_length > 0;
    if ((want & kAskMode3a) && !((want & kAskMode3aUnlessCallsign) && callsign_shown)) {
        AstMode3aCode squawk;
        if (ask(squawk, a.get_squawk, r)) {
            f.mode3a = squawk.code & 07777u;
            f.answered |= kAskMode3a;
        }
    }
    AstRecordValue value;
    if ((want & kAskLevel) && ask(value, a.get_flightlevel, r)) {
        f.fl = value.value;
        f.answered |= kAskLevel;
    }
    if ((want & kAskSelected) && ask(value, a.get_selaltitude, r)) {
        f.sel_alt = value.value;
        f.answered |= kAskSelected;
    }
    if (want & kAskAddress) {
        AstTargetAddress address;
        if (ask(address, a.get_icaoaddr, r)) {
            f.icao = address.address & 0xFFFFFFu;
            f.answered |= kAskAddress;
        }
    }
    if (want & kAskWgs84) {
        AstRecordWgs84 wgs84;
        if (ask(wgs84, a.get_coordinate, r)) {
            f.lat = wgs84.latitude;
            f.lon = wgs84.longitude;
            f.answered |= kAskWgs84;
        }
    }
    if (want & kAskPolar) {
        AstRecordPolar polar;
        if (ask(polar, a.get_polarcoord, r)) {
            f.rho = polar.rho;
            f.theta = polar.theta;
            f.answered |= kAskPolar;
        }
    }
    if (want & kAskCartesian) {
        // Not a slot of the accessor table: the library's own dispatch.
        AstRecordCartesian position;
        ast_datarecord_get_cartesiancoord(&position, &r);
        if (position.valid) {
            f.x = position.x;
            f.y = position.y;
            f.answered |= kAskCartesian;
        }
    }
    if ((want & kAskSpeed) && ask(value, a.get_speed, r)) {
        f.speed = value.value;
        f.answered |= kAskSpeed;
    }
    if ((want & kAskHeading) && ask(value, a.get_heading, r)) {
        f.heading = value.value;
        f.answered |= kAskHeading;
    }
    if (want & kAskVelocity) {
        AstVelocityCartesian velocity;
        if (ask(velocity, a.get_cartesianvel, r)) {
            f.vx = velocity.vx;
            f.vy = velocity.vy;
            f.answered |= kAskVelocity;
        }
    }
    if (want & kAskRate) {
        AstVerticalRate rate;
        if (ask(rate, a.get_vrate, r)) {
            f.vrate = rate.value;
            f.answered |= kAskRate;
        }
    }
}

FieldValue record_field_value(const RecordFields &f, RecordField field, char (&scratch)[kFieldScratch]) {
    FieldValue v;
    auto real = [&v](double d) {
        v.kind = FieldValue::Real;
        v.real = d;
    };
    auto text = [&v](const char *t, size_t n) {
        v.kind = FieldValue::Text;
        v.text = t;
        v.length = n;
    };
    switch (field) {
    case RecordField::Sac: v.u = f.sac; break;
    case RecordField::Sic: v.u = f.sic; break;
    case RecordField::Tod: text(scratch, format_tod(scratch, f.tod)); break;
    case RecordField::MsgType:
        if (f.msgtype_name)
            text(f.msgtype_name, std::strlen(f.msgtype_name));
        else
            v.u = f.msgtype;
        break;
    case RecordField::Track: v.u = f.track; break;
    case RecordField::Mode3a: text(scratch, format_radix(scratch, f.mode3a, 3, 4)); break;
    case RecordField::Fl: real(f.fl); break;
    case RecordField::SelAlt: real(f.sel_alt); break;
    case RecordField::Callsign: text(f.callsign, f.callsign_length); break;
    case RecordField::Icao: text(scratch, format_radix(scratch, f.icao, 4, 6)); break;
    case RecordField::Lat: real(f.lat); break;
    case RecordField::Lon: real(f.lon); break;
    case RecordField::Rho: real(f.rho); break;
    case RecordField::Theta: real(f.theta); break;
    case RecordField::X: real(f.x); break;
    case RecordField::Y: real(f.y); break;
    case RecordField::Speed: real(f.speed); break;
    case RecordField::Heading: real(f.heading); break;
    case RecordField::Vx: real(f.vx); break;
    case RecordField::Vy: real(f.vy); break;
    case RecordField::Vrate: real(f.vrate); break;
    }
    return v;
}

void write_fields_json(JsonWriter &json, const RecordFields &f) {
    // The members are written straight into the buffer: the keys are plain
    // names, and the times and codes formatted here are plain digits that
    // need no escaping.
    json.begin_object();
    OutBuffer &out = json.out();
    bool first = true;
    for (size_t i = 0; i < kRecordFieldCount; ++i) {
        const auto field = static_cast<RecordField>(i);
        if (!f.has(field)) continue;
        const std::string_view key = kMemberKeys[i];  // ,"name":
        if (first)
            out.put(key.substr(1));
        else
            out.put(key);
        first = false;
        const auto quoted = [&out](auto format, size_t most) {
            char *q = out.room(most + 2);
            *q = '"';
            const size_t n = format(q + 1);
            q[n + 1] = '"';
            out.advance(n + 2);
        };
        switch (field) {
        case RecordField::Tod: quoted([&f](char *q) { return format_tod(q, f.tod); }, 40); break;
        case RecordField::Mode3a: quoted([&f](char *q) { return format_radix(q, f.mode3a, 3, 4); }, 4); break;
        case RecordField::Icao: quoted([&f](char *q) { return format_radix(q, f.icao, 4, 6); }, 6); break;
        default: {
            char scratch[kFieldScratch];
            const FieldValue v = record_field_value(f, field, scratch);
            switch (v.kind) {
            case FieldValue::Unsigned: out.put_unsigned(v.u); break;
            case FieldValue::Real: put_json_real(out, v.real); break;
            case FieldValue::Text: put_json_string(out, v.text, v.length); break;
            }
        }
        }
    }
    json.end_object();
}

void put_field_tags(OutBuffer &out, const RecordFields &f) {
    if (f.answered & kAskSource) {
        out.put("  sac ", 6);
        out.put_unsigned(f.sac);
        out.put(" sic ", 5);
        out.put_unsigned(f.sic);
    }
    if (f.answered & kAskTime) {
        out.put("  tod ", 6);
        out.advance(format_tod(out.room(64), f.tod));
    }
    if (f.answered & kAskType) {
        out.put("  ", 2);
        if (f.msgtype_name) {
            out.put(f.msgtype_name, std::strlen(f.msgtype_name));
        } else {
            out.put("msgtype ", 8);
            out.put_unsigned(f.msgtype);
        }
    }
    if ((f.answered & kAskCallsign) && f.callsign_length > 0) {
        out.put("  callsign ", 11);
        out.put(f.callsign, f.callsign_length);
    } else if (f.answered & kAskMode3a) {
        out.put("  mode3a ", 9);
        out.advance(format_radix(out.room(4), f.mode3a, 3, 4));
    }
}

}  // namespace kovrel_tool
