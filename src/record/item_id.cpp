// Text forms of item identifiers and categories.
#include <cstdio>

#include "kovrel/uap.h"

namespace {

// Variant items print the standard item number whose place they take.
struct VariantName {
    AstItemId id;
    const char *text;
};
constexpr VariantName kVariants[] = {
    {1901, "I001/130"},  {1902, "I001/210"},  {1903, "I001/130"},  {1904, "I001/210"},
    {2901, "I002/050"},  {2902, "I002/050"},  {21902, "I021/130"}, {21903, "I021/040"},
    {21904, "I021/131"}, {21905, "I021/090"}, {21906, "I021/210"}, {21907, "I021/271"},
    {21908, "I021/200"}, {21909, "I021/155"}, {21910, "I021/157"}, {21911, "I021/160"},
};

}  // namespace

extern "C" {

KOVREL_API char *ast_dataitem_type_to_str(char *buffer, size_t size, AstItemId id) {
    if (!buffer || size == 0) return nullptr;
    for (const VariantName &v : kVariants) {
        if (v.id == id) {
            std::snprintf(buffer, size, "%s", v.text);
            return buffer;
        }
    }
    const int category = static_cast<int>(id / 1000);
    const int item = static_cast<int>(id % 1000);
    switch (item) {
        case 997: std::snprintf(buffer, size, "I%03d/RFS", category); break;
        case 998: std::snprintf(buffer, size, "I%03d/REF", category); break;
        case 999: std::snprintf(buffer, size, "I%03d/SPF", category); break;
        default: std::snprintf(buffer, size, "I%03d/%03d", category, item); break;
    }
    return buffer;
}

KOVREL_API char *ast_category_to_str(char *buffer, size_t size, uint32_t category) {
    if (!buffer || size == 0) return nullptr;
    std::snprintf(buffer, size, "I%03d", static_cast<int>(category));
    return buffer;
}

}  // extern "C"
