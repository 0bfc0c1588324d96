// `kovrel encode` over CAT021 record fields: the items each edition gets
// from the fields the decoder shows, and the fields it refuses.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "encode_json.h"

namespace {

using Octets = std::vector<uint8_t>;
using Items = std::map<AstItemId, Octets>;

// The items of a record made from `fields` in profile `uap`; empty with
// the reason in `error` when refused.
Items items_of(const char *uap, const nlohmann::json &fields, std::string *error = nullptr,
               const nlohmann::json *items = nullptr) {
    nlohmann::json line = {{"cat", 21}, {"uap", uap}, {"fields", fields}};
    if (items) line["items"] = *items;
    kovrel_tool::RecordRequest request;
    std::string why;
    Items out;
    if (!kovrel_tool::record_from_json(line, request, why)) {
        if (error) *error = why;
        return out;
    }
    for (const auto &item : request.items) out[item.id] = item.octets;
    return out;
}

const nlohmann::json kFields = {
    {"sac", 25},       {"sic", 51},        {"tod", "10:00:00.500"}, {"msgtype", "ADS-B"},  {"fl", 35000},
    {"sel_alt", 35000}, {"icao", "4B1801"}, {"lat", 45.0},            {"lon", 5.625},       {"speed", 439.453125},
    {"heading", 180},  {"vrate", -1200},
};

}  // namespace

TEST(Cat021Tool, FieldsBecomeTheItemsOfTheRecordsEdition) {
    // Editions 2.x: descriptor I021/040, time of transmission, 6-octet
    // position, I021/160 and the rate with its RE bit.
    const Items v2x = {
        {21010, {0x19, 0x33}},
        {21040, {0x00}},
        {21077, {0x46, 0x50, 0x40}},
        {21145, {0x05, 0x78}},
        {21146, {0x05, 0x78}},
        {21080, {0x4B, 0x18, 0x01}},
        {21130, {0x20, 0x00, 0x00, 0x04, 0x00, 0x00}},
        {21160, {0x07, 0xD0, 0x80, 0x00}},
        {21155, {0x7F, 0x40}},
    };
    EXPECT_EQ(items_of("cat021_ver21", kFields), v2x);
    EXPECT_EQ(items_of("cat021_ver27", kFields), v2x);

    // Editions 0.2x: the two-octet descriptor, I021/030, the ground vector
    // and the rate of the early editions; 0.26 takes its 8-octet position.
    Items v026 = {
        {21010, {0x19, 0x33}},
        {21903, {0x00, 0x28}},
        {21030, {0x46, 0x50, 0x40}},
        {21145, {0x05, 0x78}},
        {21146, {0x05, 0x78}},
        {21080, {0x4B, 0x18, 0x01}},
        {21902, {0x00, 0x80, 0x00, 0x00, 0x00, 0x10, 0x00, 0x00}},
        {21911, {0x07, 0xD0, 0x80, 0x00}},
        {21909, {0xFF, 0x40}},
    };
    EXPECT_EQ(items_of("cat021_ver026", kFields), v026);
    EXPECT_EQ(items_of("standard", kFields), v026);
    Items v023 = v026;
    v023.erase(21902);
    v023[21130] = {0x20, 0x00, 0x00, 0x04, 0x00, 0x00};
    EXPECT_EQ(items_of("cat021_ver023", kFields), v023);

    // Track number and Mode 3/A code where the edition has them.
    const nlohmann::json more = {{"sac", 1}, {"sic", 2}, {"track", 500}, {"mode3a", "1234"}};
    const Items with_track = items_of("cat021_ver27", more);
    EXPECT_EQ(with_track.at(21161), (Octets{0x01, 0xF4}));
    EXPECT_EQ(with_track.at(21070), (Octets{0x02, 0x9C}));
    std::string error;
    EXPECT_TRUE(items_of("cat021_ver023", {{"sac", 1}, {"sic", 2}, {"mode3a", "1234"}}, &error).empty());
    EXPECT_NE(error.find("not in profile"), std::string::npos) << error;

    // Given items win; the descriptor is not added then.
    const nlohmann::json given = nlohmann::json::array({{{"id", "I021/040"}, {"hex", "60"}}});
    const Items mixed = items_of("cat021_ver21", {{"fl", 100}}, nullptr, &given);
    EXPECT_EQ(mixed, (Items{{21040, {0x60}}, {21145, {0x00, 0x04}}}));
}

TEST(Cat021Tool, FieldsItRefuses) {
    const struct {
        nlohmann::json fields;
        const char *reason;
    } cases[] = {
        {{{"sac", 1}, {"sic", 2}, {"msgtype", "Plot"}}, "msgtype: not ADS-B"},
        {{{"sac", 1}}, "sac and sic go together"},
        {{{"tod", "10:00:00"}}, "sac and sic are required"},
        {{{"sac", 1}, {"sic", 2}, {"speed", 100}}, "speed needs heading"},
        {{{"sac", 1}, {"sic", 2}, {"fl", 900000}}, "fl: out of range"},
        {{{"sac", 1}, {"sic", 2}, {"sel_alt", 110000}}, "sel_alt: out of range"},
        {{{"sac", 1}, {"sic", 2}, {"rho", 5}}, "rho: unknown field"},
        {{{"sac", 1}, {"sic", 2}, {"icao", "000000"}}, "icao: 000000 cannot be written"},
    };
    for (const auto &c : cases) {
        std::string error;
        EXPECT_TRUE(items_of("cat021_ver21", c.fields, &error).empty()) << c.reason;
        EXPECT_EQ(error, c.reason);
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
