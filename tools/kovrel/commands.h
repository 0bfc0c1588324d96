// The sub-commands of the kovrel tool.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace kovrel_tool {

// `kovrel info`: library version, revision and build date.
int run_info(std::FILE *out);

// `kovrel uap [--profile NAME] [CATEGORY]`: the FRN table of one category
// (or of every supported category when category is 0) in a profile.
int run_uap(std::FILE *out, const std::string &profile, unsigned category);

// Options of `kovrel [decode] [FILE...]`.
struct DecodeOptions {
    std::vector<std::string> files;  // none: the built-in sample recording
    std::string format;              // text | json | csv | html (one page per input); "": text, or
                                     // nothing with --stats alone
    std::string columns;             // csv: comma-separated columns; "": the default ones
    bool items = false;              // text: one line per item too
    std::string uap = "auto";        // auto (smart decoding) or a profile name
    bool stats = false;              // counts and throughput on standard error
    std::string output;              // write records here instead of stdout (html: see page_file_name)
    bool log = false;                // library log lines on standard error
    std::vector<std::string> filters;  // --filter KEYWORD=VALUE, all must match (see filter.h)
    std::vector<std::string> categories;  // --cat LIST (repeatable; lists add up)
    std::string time;                // --time FROM-TO, time of day
    // Live input (files are udp:// URLs, see udp_url.h):
    uint64_t count = 0;              // stop after this many records (0: no limit)
    double duration = 0;             // stop after this many seconds (0: no limit)
    std::string record;              // write the datagrams received to this pcap file
    std::string framing = "auto";    // --framing auto|none|oradis|final|length
    bool follow = false;             // --follow: read on as files and pipes grow
    uint64_t html_limit = 100000;    // html: records embedded in a page (the overview counts all)
    unsigned threads = 0;            // decoding threads; 0: one per core
    bool accept_empty_fspec = false;  // let compound items with an empty primary subfield through
};

// `kovrel [decode] [FILE...]`: decodes recordings (pcap, pcapng, raw
// blocks, hexadecimal text). Exit status 0, or 1 when nothing could be
// read (no input readable, or no valid block in any of them) or writing
// failed, 2 for bad options (also: html for several inputs without -o, an
// unknown CSV column, a bad --filter, --cat or --time). Records are not formatted at all with --stats and
// neither a format, --items nor -o, and with -o /dev/null: the inputs are
// decoded and counted only. udp:// inputs are listened to (see live.h) until
// a signal, --count or --duration; receiving nothing is not an error there.
int run_decode(const DecodeOptions &options);

// `kovrel keywords`: the search keywords with their filter names, their
// descriptions and the categories whose records can answer each.
int run_keywords(std::FILE *out);

// Options of `kovrel encode [FILE] [-o OUT]`.
struct EncodeOptions {
    std::string file = "-";     // JSON Lines; "-": standard input
    std::string output;         // data blocks go here instead of stdout
    unsigned block_records = 64;  // most records per block, 1 to 64
};

// `kovrel encode`: JSON Lines (see encode_json.h) to data blocks (see
// encoder.h). Exit status 0 when at least one record was written, 1 when
// none was (or writing failed), 2 for bad options.
int run_encode(const EncodeOptions &options);

// Options of `kovrel convert [FILE...] [-o OUT]`.
struct ConvertOptions {
    std::vector<std::string> files;  // none: the built-in sample recording
    std::string output;              // "" or "-": standard output (not a terminal)
    bool drop_others = false;        // leave out categories other than 048 and 034
    bool stats = false;              // counts on standard error
};

// `kovrel convert`: CAT048 to CAT001 and CAT034 to CAT002 (see convert.h).
// Exit status 0 when at least one record was converted, 1 when none was,
// or writing failed, 2 for bad options (and standard output a terminal).
int run_convert(const ConvertOptions &options);

}  // namespace kovrel_tool
