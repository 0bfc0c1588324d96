#include "fields.h"

#include <cstdio>
#include <cstring>

namespace kovrel_tool {

nlohmann::json record_fields(const AstDataRecord &r) {
    nlohmann::json f = nlohmann::json::object();
    char text[32];

    AstDataSourceIdentifier source;
    ast_datarecord_get_sacsic(&source, &r);
    if (source.valid) {
        f["sac"] = source.sac;
        f["sic"] = source.sic;
    }
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    if (tod.valid) {
        std::snprintf(text, sizeof text, "%02u:%02u:%02u.%03u", tod.hour, tod.minute, tod.second, tod.millisecond);
        f["tod"] = text;
    }
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    if (type.valid) {
        const char *name = ast_msgtype_to_str(type.value);
        if (name)
            f["msgtype"] = name;
        else
            f["msgtype"] = type.value;
    }
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    if (track.valid) f["track"] = track.number;
    AstMode3aCode squawk;
    ast_datarecord_get_squawk(&squawk, &r);
    if (squawk.valid) {
        std::snprintf(text, sizeof text, "%04o", squawk.code & 07777u);
        f["mode3a"] = text;
    }
    AstRecordValue value;
    ast_datarecord_get_flightlevel(&value, &r);
    if (value.valid) f["fl"] = value.value;
    ast_datarecord_get_selaltitude(&value, &r);
    if (value.valid) f["sel_alt"] = value.value;
    AstRecordCallsign callsign;
    ast_datarecord_get_callsign(&callsign, &r);
    if (callsign.valid) f["callsign"] = std::string(callsign.callsign, strnlen(callsign.callsign, 8));
    AstTargetAddress address;
    ast_datarecord_get_icaoaddr(&address, &r);
    if (address.valid) {
        std::snprintf(text, sizeof text, "%06X", address.address & 0xFFFFFFu);
        f["icao"] = text;
    }
    AstRecordWgs84 wgs84;
    ast_datarecord_get_wgs84coord(&wgs84, &r);
    if (wgs84.valid) {
        f["lat"] = wgs84.latitude;
        f["lon"] = wgs84.longitude;
    }
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    if (polar.valid) {
        f["rho"] = polar.rho;
        f["theta"] = polar.theta;
    }
    ast_datarecord_get_speed(&value, &r);
    if (value.valid) f["speed"] = value.value;
    ast_datarecord_get_heading(&value, &r);
    if (value.valid) f["heading"] = value.value;
    AstVelocityCartesian velocity;
    ast_datarecord_get_cartesianvel(&velocity, &r);
    if (velocity.valid) {
        f["vx"] = velocity.vx;
        f["vy"] = velocity.vy;
    }
    AstVerticalRate rate;
    ast_datarecord_get_vrate(&rate, &r);
    if (rate.valid) f["vrate"] = rate.value;
    return f;
}

std::string field_tags(const nlohmann::json &f) {
    std::string tags;
    auto group = [&](const std::string &text) { tags += (tags.empty() ? "" : "  ") + text; };
    auto text = [](const nlohmann::json &v) { return v.is_string() ? v.get<std::string>() : v.dump(); };
    if (f.contains("sac")) group("sac " + text(f["sac"]) + " sic " + text(f["sic"]));
    if (f.contains("tod")) group("tod " + text(f["tod"]));
    if (f.contains("msgtype")) group(f["msgtype"].is_string() ? text(f["msgtype"]) : "msgtype " + text(f["msgtype"]));
    if (f.contains("callsign") && !text(f["callsign"]).empty())
        group("callsign " + text(f["callsign"]));
    else if (f.contains("mode3a"))
        group("mode3a " + text(f["mode3a"]));
    return tags;
}

}  // namespace kovrel_tool
