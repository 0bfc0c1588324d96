// `kovrel decode --format html`: one self-contained page per input.
//
// The page carries its own small style sheet and nothing else: no script,
// no font, no image file (radar video is drawn as inline SVG), nothing fetched. It holds, in this order:
//   - a header naming the input;
//   - one collapsible <details> per record: a heading (block number and
//     location, record number, category and profile, SAC/SIC and time of
//     day when the record has them, item count), the library's table of
//     the record's items, then per item its identifier, name, length,
//     summary, the library's detail view (left out when empty), and its
//     octets as a hexadecimal and a bit table;
//   - a line for each problem found (bad blocks with their location and
//     reason, octets skipped, unreadable input), where it was found;
//   - the counts of the input, shown right below the header although they
//     are written last.
// Records are rendered one at a time into buffers the page keeps and
// reuses, and written out at once, so memory stays the same whatever the
// size of the input.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "output.h"

namespace kovrel_tool {

class DecodeSession;

// What one input held, for the counts at the top of its page.
struct PageCounts {
    uint64_t blocks = 0;   // valid blocks
    uint64_t invalid = 0;  // bad blocks and unusable runs of octets
    uint64_t records = 0;  // records of valid blocks
    uint64_t items = 0;
    uint64_t octets = 0;
};

// Octets of an item shown in its tables; longer items show their first
// octets and say so.
constexpr size_t kHexTableOctets = 1024;
constexpr size_t kBitTableOctets = 64;

class HtmlPage {
public:
    HtmlPage(std::FILE *out, std::string_view input);
    ~HtmlPage();
    HtmlPage(const HtmlPage &) = delete;
    HtmlPage &operator=(const HtmlPage &) = delete;

    // Document head, style sheet and the header naming the input.
    void begin();
    void record(const RecordView &view);
    // A line about the input (a bad block, skipped octets, ...).
    void problem(std::string_view text);
    // The counts, and the end of the document.
    void end(const PageCounts &counts);

private:
    struct Buffers;

    void put(std::string_view text);
    void item(const AstDataItem &item);
    void dump(bool bits, const AstDataItem &item);

    std::FILE *out_;
    std::string input_;
    std::unique_ptr<Buffers> buf_;
    uint64_t shown_ = 0;  // records written so far
};

// Writes the page of one input on out: the header, what decode() makes the
// session find (its records and messages go to the page while it runs),
// and the counts of that input.
void write_page(DecodeSession &session, std::FILE *out, const std::string &input,
                const std::function<void()> &decode);

// The file the page of input `index` (from 0) goes to with -o FILE: FILE
// for the first, then FILE with "-2", "-3", ... before its extension
// ("out.html", "out-2.html"; "page", "page-2").
std::string page_file_name(const std::string &output, size_t index);

// Text with &, < and > replaced by their entities.
std::string html_escape(std::string_view text);

}  // namespace kovrel_tool
