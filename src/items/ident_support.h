// Pieces shared by the identification and time items: the span check, the
// encode results and a writer that appends HTML builder output to one text.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/text.h"
#include "kovrel/dataitem.h"
#include "kovrel/html.h"

namespace kovrel::ident {

// True when the span may be read as an item of exactly `length` octets.
inline bool span_ok(const AstDataItem *item, uint64_t length) {
    return item && item->valid == 1 && item->data && item->length == length;
}

// Encode results: the written octets, or a zero-length invalid span.
inline void encoded(AstDataItem *out, uint8_t *buffer, uint64_t length) { *out = AstDataItem{buffer, length, 0, 1}; }
inline void encode_failed(AstDataItem *out, uint8_t *buffer) { *out = AstDataItem{buffer, 0, 0, 0}; }

// Builds a detail view by appending builder output at the end of the text.
// The buffer is emptied on construction (when it has room for the NUL).
class HtmlView {
public:
    HtmlView(char *buffer, size_t size) : w_(buffer, size) {}

    void title(const char *text) {
        ast_html_gen_title_h4(w_.end(), w_.end_size(), "%s", text);
        w_.resync();
    }
    void table_begin() {
        ast_html_gen_table_begin(w_.end(), w_.end_size());
        w_.resync();
    }
    template <typename... Cells>
    void header(Cells... cells) {
        row_of(1, cells...);
    }
    template <typename... Cells>
    void row(Cells... cells) {
        row_of(0, cells...);
    }
    void table_end() {
        ast_html_gen_table_end(w_.end(), w_.end_size());
        w_.resync();
    }

private:
    template <typename... Cells>
    void row_of(int is_header, Cells... cells) {
        ast_html_gen_table_row(w_.end(), w_.end_size(), is_header, static_cast<const char *>(cells)...,
                               AST_HTML_TABLE_END_OF_ROW);
        w_.resync();
    }
    TextWriter w_;
};

}  // namespace kovrel::ident
