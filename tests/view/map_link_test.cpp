// Map service names, link addresses and the location anchor.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "kovrel/html.h"

namespace {

constexpr char kCanary = '\x5A';
constexpr size_t kGuard = 32;

using Fill = std::function<void(char *, size_t)>;

// Runs fill on a buffer followed by a guard zone; the text at each size from
// 0 to one past the full length must be the prefix that fits, and nothing
// behind the buffer may change.
void expect_cut_text(const std::string &full, const Fill &fill) {
    for (size_t size = 0; size <= full.size() + 8; ++size) {
        std::vector<char> mem(size + kGuard, kCanary);
        fill(mem.data(), size);
        for (size_t i = size; i < mem.size(); ++i) ASSERT_EQ(mem[i], kCanary) << "size " << size;
        if (size == 0) continue;
        ASSERT_NE(std::memchr(mem.data(), '\0', size), nullptr) << "size " << size;
        EXPECT_EQ(std::string(mem.data()), full.substr(0, size - 1)) << "size " << size;
    }
}

std::string url(int32_t service, double lat, double lon) {
    char buf[512] = "untouched";
    EXPECT_TRUE(ast_map_get_link_url(buf, sizeof buf, service, lat, lon));
    return buf;
}

}  // namespace

TEST(MapLink, ServiceNames) {
    EXPECT_STREQ(ast_map_get_service_name(AST_MAP_GOOGLE), "Google Maps");
    EXPECT_STREQ(ast_map_get_service_name(AST_MAP_OSM), "OpenStreetMap");
    EXPECT_STREQ(ast_map_get_service_name(AST_MAP_AMAP), "AMap");
    EXPECT_STREQ(ast_map_get_service_name(AST_MAP_BAIDU), "Baidu Map");
    EXPECT_STREQ(ast_map_get_service_name(0), "No Map");
    EXPECT_STREQ(ast_map_get_service_name(5), "No Map");
    EXPECT_STREQ(ast_map_get_service_name(-1), "No Map");
}

TEST(MapLink, LinkAddresses) {
    EXPECT_EQ(url(AST_MAP_GOOGLE, 40.0, 116.0), "https://www.google.com/maps/place/40.000000,116.000000");
    EXPECT_EQ(url(AST_MAP_OSM, 40.0, 116.0),
              "http://www.openstreetmap.org/?mlat=40.000000&mlon=116.000000");
    // AMap is the one service that takes the longitude first.
    EXPECT_EQ(url(AST_MAP_AMAP, 40.0, 116.0), "https://uri.amap.com/marker?position=116.000000,40.000000");
    EXPECT_EQ(url(AST_MAP_BAIDU, 48.5, 2.25),
              "https://api.map.baidu.com/marker?location=48.500000,2.250000&title=483000N0021500E"
              "&content=483000N0021500E&output=html&coord_type=wgs84&src=kovrel.dev");
    EXPECT_EQ(url(AST_MAP_GOOGLE, -33.5, -70.1234567),
              "https://www.google.com/maps/place/-33.500000,-70.123457");
    // The position label of Baidu Map is cut to 19 characters.
    EXPECT_EQ(url(AST_MAP_BAIDU, 12345.5, -123456.25),
              "https://api.map.baidu.com/marker?location=12345.500000,-123456.250000"
              "&title=123453000N123456150&content=123453000N123456150"
              "&output=html&coord_type=wgs84&src=kovrel.dev");

    // The per-service builders write what the dispatcher writes.
    using Builder = bool (*)(char *, size_t, double, double);
    const Builder builders[] = {ast_map_get_link_url_google, ast_map_get_link_url_osm,
                                ast_map_get_link_url_amap, ast_map_get_link_url_baidu};
    for (int32_t service = 1; service <= 4; ++service) {
        char buf[512];
        EXPECT_TRUE(builders[service - 1](buf, sizeof buf, -12.75, 45.5));
        EXPECT_EQ(buf, url(service, -12.75, 45.5)) << "service " << service;
        const std::string full = buf;
        expect_cut_text(full, [&](char *d, size_t n) {
            EXPECT_TRUE(ast_map_get_link_url(d, n, service, -12.75, 45.5));
        });
    }

    for (int32_t service : {0, 5, -3}) {
        char buf[16] = "untouched";
        EXPECT_FALSE(ast_map_get_link_url(buf, sizeof buf, service, 40.0, 116.0));
        EXPECT_STREQ(buf, "untouched");
    }
}

TEST(MapLink, LocationAnchor) {
    char buf[512];
    ast_html_gen_location_map_link(buf, sizeof buf, AST_MAP_GOOGLE, 40.0, 116.0);
    EXPECT_STREQ(buf, "<a href=\"https://www.google.com/maps/place/40.000000,116.000000\">Google Maps</a>");
    ast_html_gen_location_map_link(buf, sizeof buf, AST_MAP_AMAP, 40.0, 116.0);
    EXPECT_STREQ(buf, "<a href=\"https://uri.amap.com/marker?position=116.000000,40.000000\">AMap</a>");

    std::strcpy(buf, "stale");
    ast_html_gen_location_map_link(buf, sizeof buf, 0, 40.0, 116.0);
    EXPECT_STREQ(buf, "");

    expect_cut_text("<a href=\"http://www.openstreetmap.org/?mlat=1.000000&mlon=-2.000000\">"
                    "OpenStreetMap</a>",
                    [](char *d, size_t n) { ast_html_gen_location_map_link(d, n, AST_MAP_OSM, 1.0, -2.0); });
    expect_cut_text("", [](char *d, size_t n) { ast_html_gen_location_map_link(d, n, 7, 1.0, -2.0); });
}
