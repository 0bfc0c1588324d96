#include "categories/cat021/support.h"

#include <cstdio>

namespace kovrel::cat021 {

Detail::Detail(TextWriter &w) : table_(w) { table_.header("Bit", "ID", "Name", "Value"); }

void Detail::row(const char *bits, const char *id, const char *name, const char *value) {
    table_.row(bits, id, name, value);
}

void Detail::rowf(const char *bits, const char *id, const char *name, const char *format, ...) {
    char value[96];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(value, sizeof value, format, ap);
    va_end(ap);
    table_.row(bits, id, name, value);
}

void Detail::end() { table_.end(); }

}  // namespace kovrel::cat021
