// Links to web map services for a WGS-84 position, and the anchor that the
// position renderers put in their detail views.
#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/html.h"

namespace kovrel {
namespace {

// Work buffer of the link address inside an anchor.
constexpr size_t kUrlBuffer = 512;
// Work buffer of the position text shown by Baidu Map: the text is cut to 19
// characters, which existing links rely on.
constexpr size_t kBaiduLabelBuffer = 20;

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API const char *ast_map_get_service_name(int32_t service) {
    switch (service) {
    case AST_MAP_GOOGLE: return "Google Maps";
    case AST_MAP_OSM: return "OpenStreetMap";
    case AST_MAP_AMAP: return "AMap";
    case AST_MAP_BAIDU: return "Baidu Map";
    default: return "No Map";
    }
}

KOVREL_API bool ast_map_get_link_url_google(char *dst, size_t size, double latitude, double longitude) {
    kovrel::TextWriter w(dst, size);
    w.appendf("https://www.google.com/maps/place/%f,%f", latitude, longitude);
    return true;
}

KOVREL_API bool ast_map_get_link_url_osm(char *dst, size_t size, double latitude, double longitude) {
    kovrel::TextWriter w(dst, size);
    w.appendf("http://www.openstreetmap.org/?mlat=%f&mlon=%f", latitude, longitude);
    return true;
}

KOVREL_API bool ast_map_get_link_url_amap(char *dst, size_t size, double latitude, double longitude) {
    // AMap takes the longitude first.
    kovrel::TextWriter w(dst, size);
    w.appendf("https://uri.amap.com/marker?position=%f,%f", longitude, latitude);
    return true;
}

KOVREL_API bool ast_map_get_link_url_baidu(char *dst, size_t size, double latitude, double longitude) {
    // The marker's title and popup both show the position in degrees,
    // minutes and seconds.
    char label[kovrel::kBaiduLabelBuffer] = "";
    ast_latlong_to_str(label, sizeof label, latitude, longitude);
    kovrel::TextWriter w(dst, size);
    w.appendf("https://api.map.baidu.com/marker?location=%f,%f&title=%s&content=%s"
              "&output=html&coord_type=wgs84&src=kovrel.dev",
              latitude, longitude, label, label);
    return true;
}

KOVREL_API bool ast_map_get_link_url(char *dst, size_t size, int32_t service, double latitude,
                                     double longitude) {
    switch (service) {
    case AST_MAP_GOOGLE: return ast_map_get_link_url_google(dst, size, latitude, longitude);
    case AST_MAP_OSM: return ast_map_get_link_url_osm(dst, size, latitude, longitude);
    case AST_MAP_AMAP: return ast_map_get_link_url_amap(dst, size, latitude, longitude);
    case AST_MAP_BAIDU: return ast_map_get_link_url_baidu(dst, size, latitude, longitude);
    default: return false;
    }
}

KOVREL_API void ast_html_gen_location_map_link(char *dst, size_t size, int32_t service,
                                               double latitude, double longitude) {
    kovrel::TextWriter w(dst, size);
    char url[kovrel::kUrlBuffer];
    if (!ast_map_get_link_url(url, sizeof url, service, latitude, longitude)) return;
    w.appendf("<a href=\"%s\">%s</a>", url, ast_map_get_service_name(service));
}

}  // extern "C"
