// `kovrel decode --filter/--cat/--time` on the built-in sample recording:
// every filter keeps exactly the records whose decoded fields say they
// match, in the records written and in the statistics; and bad filters are
// refused with the keyword list.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "filter.h"
#include "sample.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;
using nlohmann::json;

namespace {

struct SampleRun {
    std::vector<json> records;
    Stats stats;
    std::string messages;
};

// The sample decoded as JSON Lines, through the filter when one is given.
SampleRun run_sample(const RecordFilter *filter, RecordFormat format = RecordFormat::Json) {
    SessionSettings settings;
    settings.format = format;
    settings.filter = filter;
    Capture out, messages;
    DecodeSession session(settings, out.file(), messages.file());
    session.decode_memory("(built-in sample)", kSamplePcap, kSamplePcapSize);
    session.flush();
    SampleRun run;
    if (format == RecordFormat::Json)
        for (const auto &line : out.lines()) run.records.push_back(json::parse(line));
    run.stats = session.stats();
    run.messages = messages.text();
    return run;
}

RecordFilter filter_of(std::initializer_list<const char *> conditions) {
    RecordFilter f;
    std::string error;
    for (const char *c : conditions) EXPECT_TRUE(f.add_condition(c, error)) << c << ": " << error;
    return f;
}

std::string key_of(const json &r) {
    return std::to_string(r["block"].get<int>()) + "." + std::to_string(r["record"].get<int>());
}

std::set<std::string> keys(const std::vector<json> &records, const std::function<bool(const json &)> &keep) {
    std::set<std::string> out;
    for (const auto &r : records)
        if (keep(r)) out.insert(key_of(r));
    return out;
}

const json &fields(const json &r) { return r["fields"]; }

bool has(const json &r, const char *field) { return fields(r).contains(field); }

std::string first_word_upper(std::string s) {
    s = s.substr(0, s.find(' '));
    for (char &c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

// The first value of a field in the sample, as text.
std::string first_value(const std::vector<json> &records, const char *field) {
    for (const auto &r : records)
        if (has(r, field)) return fields(r)[field].is_string() ? fields(r)[field].get<std::string>()
                                                                : fields(r)[field].dump();
    return "";
}

}  // namespace

TEST(ToolFilter, EachKeywordKeepsTheRecordsThatHoldTheValue) {
    const SampleRun all = run_sample(nullptr);
    ASSERT_GT(all.records.size(), 100u);
    const std::string callsign = first_value(all.records, "callsign");
    const std::string squawk = first_value(all.records, "mode3a");
    const std::string icao = first_value(all.records, "icao");
    const std::string track = first_value(all.records, "track");
    const std::string level = first_value(all.records, "fl");
    std::string other_sic;  // a source other than 025/001
    for (const auto &r : all.records)
        if (has(r, "sic") && fields(r)["sac"] == 25 && fields(r)["sic"] != 1) other_sic = fields(r)["sic"].dump();
    ASSERT_FALSE(other_sic.empty());
    ASSERT_FALSE(level.empty());
    ASSERT_FALSE(callsign.empty() || squawk.empty() || icao.empty() || track.empty());
    std::string lower_callsign = callsign;
    for (char &c : lower_callsign) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));

    struct Case {
        std::string filter;
        std::function<bool(const json &)> keep;
    } cases[] = {
        {"sacsic=025/001", [](const json &r) { return has(r, "sac") && fields(r)["sac"] == 25 && fields(r)["sic"] == 1; }},
        {"sacsic=25/" + other_sic,
         [&](const json &r) { return has(r, "sic") && fields(r)["sac"] == 25 && fields(r)["sic"].dump() == other_sic; }},
        {"callsign=" + lower_callsign,
         [&](const json &r) { return has(r, "callsign") && fields(r)["callsign"] == callsign; }},
        {"mode3a=" + squawk, [&](const json &r) { return has(r, "mode3a") && fields(r)["mode3a"] == squawk; }},
        {"Mode 3/A=" + squawk, [&](const json &r) { return has(r, "mode3a") && fields(r)["mode3a"] == squawk; }},
        {"icao=" + icao, [&](const json &r) { return has(r, "icao") && fields(r)["icao"] == icao; }},
        {"track=" + track, [&](const json &r) { return has(r, "track") && fields(r)["track"].dump() == track; }},
        {"type=track",
         [](const json &r) {
             return has(r, "msgtype") && fields(r)["msgtype"].is_string() &&
                    first_word_upper(fields(r)["msgtype"]) == "TRACK";
         }},
        {"msgtype=North",
         [](const json &r) { return has(r, "msgtype") && fields(r)["msgtype"] == "North"; }},
        {"fl=" + std::to_string(static_cast<long>(std::stod(level))),
         [&](const json &r) {
             return has(r, "fl") && std::trunc(fields(r)["fl"].get<double>()) == std::trunc(std::stod(level));
         }},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.filter);
        const std::set<std::string> want = keys(all.records, c.keep);
        EXPECT_FALSE(want.empty());
        EXPECT_LT(want.size(), all.records.size());
        const RecordFilter filter = filter_of({c.filter.c_str()});
        const SampleRun got = run_sample(&filter);
        EXPECT_EQ(keys(got.records, [](const json &) { return true; }), want);
        EXPECT_EQ(got.stats.matched, want.size());
        EXPECT_EQ(got.stats.records, all.stats.records);  // every record is still decoded and counted
        EXPECT_TRUE(got.messages.empty()) << got.messages;
    }
}

TEST(ToolFilter, ConditionsCategoriesAndTimeAddUp) {
    const SampleRun all = run_sample(nullptr);
    RecordFilter filter = filter_of({"sacsic=25", "type=Plot"});
    std::string error;
    ASSERT_TRUE(filter.set_categories("48, 1", error)) << error;
    ASSERT_TRUE(filter.set_time_window("10:00:10-10:00:20.500", error)) << error;
    const std::set<std::string> want = keys(all.records, [](const json &r) {
        const int cat = r["cat"];
        return (cat == 48 || cat == 1) && has(r, "sac") && fields(r)["sac"] == 25 && has(r, "msgtype") &&
               fields(r)["msgtype"].is_string() && first_word_upper(fields(r)["msgtype"]) == "PLOT" && has(r, "tod") &&
               fields(r)["tod"] >= "10:00:10.000" && fields(r)["tod"] <= "10:00:20.500";
    });
    ASSERT_FALSE(want.empty());
    const SampleRun got = run_sample(&filter);
    EXPECT_EQ(keys(got.records, [](const json &) { return true; }), want);

    // Statistics count the kept records only, per source and per type.
    const SampleRun counted = run_sample(&filter, RecordFormat::None);
    EXPECT_TRUE(counted.records.empty());
    EXPECT_EQ(counted.stats.matched, want.size());
    uint64_t per_source = 0, per_type = 0;
    for (const auto &[key, n] : counted.stats.sources()) per_source += n;
    for (const auto &[key, n] : counted.stats.message_types()) {
        EXPECT_EQ(key.second, "Plot");
        per_type += n;
    }
    EXPECT_EQ(per_source, want.size());
    EXPECT_EQ(per_type, want.size());
    for (const auto &[key, span] : counted.stats.source_spans()) {
        EXPECT_TRUE(std::get<0>(key) == 48 || std::get<0>(key) == 1);
        if (!span.has_time) continue;
        EXPECT_GE(span.first_ms, 36010000u);
        EXPECT_LE(span.last_ms, 36020500u);
    }
}

TEST(ToolFilter, ANonMatchingFilterKeepsNothing) {
    const RecordFilter filter = filter_of({"callsign=NOSUCH"});
    const SampleRun got = run_sample(&filter);
    EXPECT_TRUE(got.records.empty());
    EXPECT_EQ(got.stats.matched, 0u);
    EXPECT_GT(got.stats.records, 0u);
    EXPECT_TRUE(got.stats.sources().empty());
}

TEST(ToolFilter, KeywordNamesAndAliases) {
    struct Case {
        const char *name;
        int keyword;  // -1: unknown
    } cases[] = {
        {"SAC/SIC", AST_KEYWORD_SACSIC}, {"sacsic", AST_KEYWORD_SACSIC},       {"sac", AST_KEYWORD_SACSIC},
        {"Timestamp Tx", AST_KEYWORD_TIMESTAMP}, {"tod", AST_KEYWORD_TIMESTAMP}, {"TYPE", AST_KEYWORD_TYPE},
        {"track_number", AST_KEYWORD_TRACK_NUMBER}, {"track", AST_KEYWORD_TRACK_NUMBER},
        {"mode-3/a", AST_KEYWORD_MODE3A},   {"squawk", AST_KEYWORD_MODE3A},      {"fl", AST_KEYWORD_FLIGHT_LEVEL},
        {"Selected Altitude", AST_KEYWORD_SELECTED_ALTITUDE}, {"selalt", AST_KEYWORD_SELECTED_ALTITUDE},
        {"icao", AST_KEYWORD_ICAO_ADDRESS}, {"address", AST_KEYWORD_ICAO_ADDRESS},
        {"wgs84", AST_KEYWORD_WGS84},       {"position", AST_KEYWORD_WGS84},     {"polar", AST_KEYWORD_POLAR},
        {"speed", AST_KEYWORD_SPEED},       {"heading", AST_KEYWORD_HEADING},
        {"velocity", AST_KEYWORD_CARTESIAN_VELOCITY}, {"Vertical Rate", AST_KEYWORD_VERTICAL_RATE},
        {"vrate", AST_KEYWORD_VERTICAL_RATE},
        {"", -1}, {"tra", -1}, {"sacsicx", -1}, {"sac sic x", -1}, {"callsigns", -1},
    };
    for (const Case &c : cases) {
        uint32_t k = 99;
        const bool found = find_filter_keyword(c.name, k);
        EXPECT_EQ(found ? static_cast<int>(k) : -1, c.keyword) << "'" << c.name << "'";
    }
}

TEST(ToolFilter, BadFiltersAreRefusedWithTheKeywords) {
    const char *bad[] = {
        "nosuch=1",         "callsign",          "=DLH",              "sacsic=256/1",  "sacsic=25/x",
        "sacsic=",          "time=12:00:00",     "time=noon",         "type=Bogus",    "type=Track End",
        "track=-1",         "track=70000",       "track=12a",         "mode3a=7800",   "mode3a=77000",
        "fl=high",          "callsign=TOOLONGCS", "callsign=A B",     "icao=4CA1FG",   "icao=1234567",
        "position=91, 0",   "position=45",       "polar=R:1",         "speed=fast",    "heading=270",
        "heading=X:1",      "velocity=1 2",      "vrate=",            "vrate=nan",
    };
    for (const char *text : bad) {
        RecordFilter f;
        std::string error;
        EXPECT_FALSE(f.add_condition(text, error)) << text;
        EXPECT_NE(error.find("sacsic (SAC/SIC)"), std::string::npos) << text << ": " << error;
        EXPECT_NE(error.find("vrate (Vertical Rate)"), std::string::npos) << text << ": " << error;
        EXPECT_TRUE(f.empty()) << text;
    }
    const char *good[] = {
        "sacsic=025/013", "sacsic=25",          "time=12:34:56.789", "type=measurement", "track=0",
        "mode3a=7700",    "mode3a=0",           "fl=-200",           "selalt=24000",     "callsign=dlh4ab",
        "icao=4ca1ff",    "position=48.5, -11.25", "polar=R:12.5 T:90", "speed=450.5",   "heading=T:270",
        "heading=M:1 T:2", "velocity=VY:-3",    "vrate=-1200",       " Track Number = 12 ",
    };
    for (const char *text : good) {
        RecordFilter f;
        std::string error;
        EXPECT_TRUE(f.add_condition(text, error)) << text << ": " << error;
        EXPECT_FALSE(f.empty()) << text;
    }
}

TEST(ToolFilter, CategoryLists) {
    const Octets one = {0x80, 25, 1};  // I048/010 (or I062/010, I001/010: FRN 1 everywhere)
    AstDataRecord r48{}, r62{};
    ast_datarecord_decode(&r48, one.data(), one.size(), 48, &AST_UAP_STANDARD);
    ast_datarecord_decode(&r62, one.data(), one.size(), 62, &AST_UAP_STANDARD);
    ASSERT_EQ(r48.valid, 1);
    ASSERT_EQ(r62.valid, 1);
    struct Case {
        const char *list;
        bool ok, keeps48, keeps62;
    } cases[] = {
        {"48", true, true, false},   {"048,062", true, true, true}, {" 62 ", true, false, true},
        {"1,2,34", true, false, false}, {"256", false, false, false}, {"48,", false, false, false},
        {"", false, false, false},   {"-48", false, false, false}, {"cat48", false, false, false},
    };
    for (const Case &c : cases) {
        RecordFilter f;
        std::string error;
        EXPECT_EQ(f.set_categories(c.list, error), c.ok) << c.list;
        if (!c.ok) {
            EXPECT_NE(error.find("--cat"), std::string::npos);
            continue;
        }
        EXPECT_EQ(f.matches(r48), c.keeps48) << c.list;
        EXPECT_EQ(f.matches(r62), c.keeps62) << c.list;
    }
}

TEST(ToolFilter, TimeWindows) {
    // A CAT048 record holding I048/010 and I048/140 at the given 1/128 s count.
    auto at = [](uint32_t count) {
        return Octets{0xC0, 25, 1, static_cast<uint8_t>(count >> 16), static_cast<uint8_t>(count >> 8),
                      static_cast<uint8_t>(count)};
    };
    auto seconds = [](double s) { return static_cast<uint32_t>(s * 128); };
    struct Case {
        const char *window;
        double tod;  // seconds of the day; < 0: no time in the record
        bool ok, keeps;
    } cases[] = {
        {"12:00-12:30", 43200.0, true, true},
        {"12:00-12:30", 43199.9921875, true, false},
        {"12:00-12:30", 45059.9921875, true, true},   // 12:30:59.992: the last minute is in
        {"12:00-12:30", 45060.0, true, false},
        {"12:00:00-12:30:00", 45000.9921875, true, true},  // 12:30:00.992: the last second is in
        {"12:00:00-12:30:00", 45001.0, true, false},
        {"12:00:00.000-12:30:00.500", 45000.5, true, true},
        {"12:00:00.000-12:30:00.500", 45000.5078125, true, false},
        {"23:00-01:00", 86399.0, true, true},          // across midnight
        {"23:00-01:00", 1800.0, true, true},
        {"23:00-01:00", 43200.0, true, false},
        {"12:00-", 86000.0, true, true},
        {"-06:00", 43200.0, true, false},
        {"-06:00", 0.0, true, true},
        {"12:00-13:00", -1.0, true, false},
        {"24:00-", 0, false, false},
        {"12:60-13:00", 0, false, false},
        {"12-13", 0, false, false},
        {"12:00", 0, false, false},
        {"-", 0, false, false},
        {"12:00:00.1234-13:00", 0, false, false},
        {"12:00:05x-13:00", 0, false, false},
        {"12:30.5-13:00", 0, false, false},
    };
    for (const Case &c : cases) {
        RecordFilter f;
        std::string error;
        EXPECT_EQ(f.set_time_window(c.window, error), c.ok) << c.window;
        if (!c.ok) continue;
        const Octets o = c.tod < 0 ? Octets{0x80, 25, 1} : at(seconds(c.tod));
        AstDataRecord r{};
        ast_datarecord_decode(&r, o.data(), o.size(), 48, &AST_UAP_STANDARD);
        ASSERT_EQ(r.valid, 1);
        EXPECT_EQ(f.matches(r), c.keeps) << c.window << " at " << c.tod;
    }
}

TEST(ToolFilter, SourceTimeAndTypeAreComparedAsTheLibraryDoes) {
    // CAT048 records: I048/010 SAC/SIC, I048/140 time of day, I048/020 (a
    // plot from a primary radar, 0x20; a Mode S roll-call plot, 0xA0). A
    // CAT048 record is a plot with or without I048/020.
    const Octets plot = {0xE0, 25, 1, 0x46, 0x59, 0x1C, 0xA0};  // 10:00:18.218
    const Octets other = {0xC0, 25, 2, 0x46, 0x5A, 0x00};       // 10:00:20.000, no type
    const Octets far = {0xE0, 26, 1, 0x00, 0x00, 0x80, 0x20};   // 00:00:01.000
    const Octets none = {0x40, 0x46, 0x5A, 0x00};               // no source
    struct Case {
        const char *filter;
        bool plot, other, far, none;
    } cases[] = {
        {"sacsic=025/001", true, false, false, false}, {"sacsic=25", true, true, false, false},
        {"sacsic=26/1", false, false, true, false},    {"sacsic=1/25", false, false, false, false},
        {"sacsic=0", false, false, false, false},      {"time=10:00:18.218", true, false, false, false},
        {"time=10:00:20.0", false, true, false, true}, {"time=0:0:1.000", false, false, true, false},
        {"time=10:00:18.219", false, false, false, false}, {"type=plot", true, true, true, true},
        {"type=TRACK", false, false, false, false},
    };
    AstDataRecord records[4]{};
    const Octets *octets[] = {&plot, &other, &far, &none};
    for (size_t i = 0; i < 4; ++i) {
        ast_datarecord_decode(&records[i], octets[i]->data(), octets[i]->size(), 48, &AST_UAP_STANDARD);
        ASSERT_EQ(records[i].valid, 1) << i;
    }
    for (const Case &c : cases) {
        const RecordFilter f = filter_of({c.filter});
        const bool want[] = {c.plot, c.other, c.far, c.none};
        const std::string value = std::strchr(c.filter, '=') + 1;
        uint32_t keyword = 0;
        ASSERT_TRUE(find_filter_keyword(std::string(c.filter, std::strchr(c.filter, '=')), keyword));
        for (size_t i = 0; i < 4; ++i) {
            SCOPED_TRACE(std::string(c.filter) + " on record " + std::to_string(i));
            RecordFieldReader reader;
            RecordKeys keys;
            keys.start(records[i], reader);
            EXPECT_EQ(f.matches(records[i], keys), want[i]);
            EXPECT_EQ(f.matches(records[i]), want[i]);
            EXPECT_EQ(ast_datarecord_match_keyword(&records[i], keyword, value.c_str(), 0), want[i]);
        }
    }
    // A record that was not read whole matches nothing.
    AstDataRecord cut{};
    ast_datarecord_decode(&cut, plot.data(), 4, 48, &AST_UAP_STANDARD);
    ASSERT_NE(cut.valid, 1);
    EXPECT_FALSE(filter_of({"sacsic=25"}).matches(cut));
}

#endif  // KOVREL_HAVE_TOOL_CORE
