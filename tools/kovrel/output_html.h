// `kovrel decode --format html`: one self-contained page per input.
//
// The page is drawn in the browser by a small script of its own
// (html/report.js, with html/report.css) from data the tool embeds; nothing
// is fetched. It shows, from the top:
//   - the input, the kovrel version and the options it was decoded with;
//   - an overview: per category and SAC/SIC the records, time span and
//     message types; the counts; the problems found (bad blocks with their
//     reason, skipped octets, unreadable input), each linking to the record
//     where it occurs;
//   - a plot of the positioned records (see report.js);
//   - the records as one table, sortable and filterable, drawn a screenful
//     at a time;
//   - the record opened: its item table, and per item its summary, detail
//     view, hexadecimal and bit tables, made when it is opened.
//
// What is embedded, in <script type="application/x-kovrel-..."> elements
// that the browser parses but does not run:
//   - per group of up to kGroupRecords records, one "group" element holding
//     {"f":N,"r":[row,...],"d":"BASE64"}: the number of the first item the
//     group writes in full (see below), a row per record (kRowColumns), and
//     the base64 of the raw deflate stream (deflate.h) of a JSON array with
//     one entry per record:
//       [location, profile, video SVG,
//        [[id, name, length, octets in hex, summary, detail view HTML], ...]]
//     The detail view is null when it does not fit kDetailSize; the octets
//     are the first kHexTableOctets. An item equal to one written before on
//     the page (same profile, identifier and octets) is written as the
//     number of that one instead, counting the items written in full from 0
//     across the groups, so that opening a record may inflate the group that
//     wrote one of its items first.
//     The record's item table is made in the page from its items.
//   - at the end, one "meta" element: input, version, options, the counts,
//     embedded and left-out record counts, the message type names rows refer
//     to, the sources (html_overview.h) and the problems
//     [{"text":..., "row": index of the record that follows it, or -1}].
// A '<' inside them is written \u003c, so that no text closes the element.
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

// How a page is made.
struct PageOptions {
    // At most this many records are embedded; the overview counts all.
    uint64_t limit = 100000;
    // How the input was decoded, shown under the title ("profile auto").
    std::string settings = "profile auto";
};

// Records per group of embedded data; a group is also closed once its
// uncompressed texts pass kGroupOctets.
constexpr size_t kGroupRecords = 64;
constexpr size_t kGroupOctets = 512 * 1024;
// Octets of an item embedded for its tables (the bit table shows the
// first kBitTableOctets of them).
constexpr size_t kHexTableOctets = 1024;
constexpr size_t kBitTableOctets = 64;
constexpr size_t kDetailSize = 256 * 1024;

// A row of the record table, in this order: block, record number in the
// block, category, sac, sic, time of day (ms), message type (index into the
// meta's types), track number, Mode 3/A (as a number), callsign, ICAO
// address (as a number), flight level (feet), latitude, longitude, rho
// (NM), theta (degrees), flags (1: the record is where its block failed,
// 2: its block is bad). Absent values are null.
constexpr size_t kRowColumns = 17;

class HtmlPage {
public:
    HtmlPage(std::FILE *out, std::string_view input, const PageOptions &options = {});
    ~HtmlPage();
    HtmlPage(const HtmlPage &) = delete;
    HtmlPage &operator=(const HtmlPage &) = delete;

    // Document head, style sheet and the page's frame.
    void begin();
    void record(const RecordView &view);
    // A line about the input (a bad block, skipped octets, ...).
    void problem(std::string_view text);
    // The last group, the meta data, the script, and the end of the document.
    void end(const PageCounts &counts);

private:
    struct State;

    void put(std::string_view text);
    void close_group();

    std::FILE *out_;
    std::string input_;
    PageOptions options_;
    std::unique_ptr<State> state_;
};

// Writes the page of one input on out: the frame, what decode() makes the
// session find (its records and messages go to the page while it runs),
// and the counts of that input.
void write_page(DecodeSession &session, std::FILE *out, const std::string &input,
                const std::function<void()> &decode, const PageOptions &options = {});

// The file the page of input `index` (from 0) goes to with -o FILE: FILE
// for the first, then FILE with "-2", "-3", ... before its extension
// ("out.html", "out-2.html"; "page", "page-2").
std::string page_file_name(const std::string &output, size_t index);

// Text with &, < and > replaced by their entities.
std::string html_escape(std::string_view text);

// JSON text made safe inside a <script> element: every '<' written \u003c
// (a '<' of JSON text is always inside a string).
void append_script_json(std::string &out, std::string_view json);

}  // namespace kovrel_tool
