// Raw deflate (no zlib or gzip wrapper) with the fixed Huffman codes, and
// base64: how the HTML page carries the texts of a group of records so that
// the browser inflates them (DecompressionStream('deflate-raw')) only when
// one of them is opened.
//
// The matcher keeps, for every position, the last earlier position whose
// next four octets hashed alike, and tries a few of them; that is enough for
// markup that repeats itself record after record, and it costs a few
// nanoseconds per octet.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace kovrel_tool {

// Appends the deflate stream of data (one final block, fixed codes) to out.
// Any size, empty included.
void deflate_raw(const uint8_t *data, size_t size, std::string &out);

// Appends data in base64 (RFC 4648 alphabet, '=' padding) to out.
void append_base64(const uint8_t *data, size_t size, std::string &out);

}  // namespace kovrel_tool
