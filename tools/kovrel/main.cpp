// kovrel: look at ASTERIX recordings, and write some, from the command line.
#include <CLI/CLI.hpp>
#include <kovrel/kovrel.h>

#include "commands.h"

namespace {

// `kovrel decode` and plain `kovrel` take the same options, bound to the
// same storage.
void add_decode_options(CLI::App *app, kovrel_tool::DecodeOptions &o) {
    app->add_option("--format", o.format,
                    "text (the default): one line per record; json: one JSON object per record (JSON Lines): "
                    "input, block, offset, packet and time (captures and framings with a time stamp; rx_time, the "
                    "receive time, for live input), src and dst (their addresses), cat, uap, record, length, "
                    "item_count, valid, "
                    "block_valid, a \"fields\" object (sac, sic, tod, msgtype, track, mode3a, fl, sel_alt, callsign, "
                    "icao, lat, lon, rho, theta, speed, heading, vx, vy, vrate: those the record has) and \"items\" "
                    "(id, name, len, hex, summary and the item's own \"fields\" when the library describes them); "
                    "csv: a header row and one row per record (see --columns); html: one self-contained page per "
                    "input, drawn by its own script with nothing fetched: an overview per source and the problems "
                    "found, a plot of the positions, the records as a table to sort and filter, and the record "
                    "opened with its item table, summaries, detail views and octets (see --html-limit)")
        ->check(CLI::IsMember({"text", "json", "csv", "html"}));
    app->add_option("--columns", o.columns,
                    "csv: comma-separated columns (implies --format csv). Record columns: input, block, offset, "
                    "packet, time, rx_time, cat, uap, record, length, item_count, valid, block_valid, src, dst and the "
                    "record fields "
                    "(sac ... vrate, as in json). Item fields: the item, a dot and the field's path in the item's "
                    "fields, e.g. I048/040.rho, I048/250.bds60.ias, I048/130.srl.srl, array elements by position "
                    "from 0 (I048/030.codes.0). Default: block, offset, cat, uap, record, valid and the record "
                    "fields. An unknown record column is refused; an item field cannot be checked before its item "
                    "is decoded, so a misspelt one stays empty. A cell is empty when the record has no such value");
    app->add_flag("--items", o.items, "text: one indented line per item (id, name, length, octets, summary)");
    app->add_option("--uap", o.uap,
                    "profile: auto (smart decoding), standard, cat001_plot, cat021_ver023, cat021_ver026, "
                    "cat021_ver21, cat021_ver27, asr10ss, asr10ss_mk2, thales, managair")
        ->capture_default_str();
    app->add_flag("--stats", o.stats,
                  "counts per category, source (with the earliest and latest time of day), message type and "
                  "profile, bad blocks grouped by reason, and MB/s, on standard error (with --format json: as one "
                  "JSON object {\"stats\": {...}} on one line); with a filter, the records that matched and only "
                  "those per source, type and profile; alone (no --format, --columns, --items or -o) the records "
                  "are decoded and counted, not printed");
    app->add_option("--filter", o.filters,
                    "KEYWORD=VALUE: keep only the records whose value matches (repeatable: all must match). "
                    "Keywords by name or alias (see kovrel keywords): sacsic=025/013 (or sacsic=25: every SIC of "
                    "SAC 25), time=12:34:56.789, type=Track (first word of the message type, any case), "
                    "track=1234, mode3a=7700 (octal), fl=35000 and selalt=24000 (feet), callsign=DLH4AB (any "
                    "case), icao=4CA1FF, position='48.5, 11.25' (within 1e-6 degree), polar='R:12.5 T:90', "
                    "speed=450 (kt, within 0.5), heading=T:270 (or M:270; within 0.005 degree), "
                    "velocity='VX:120 VY:-35' (m/s, within 0.25), vrate=-1200 (ft/min, within 6.25). A record "
                    "without the value never matches. An unknown keyword or unreadable value exits 2")
        ->allow_extra_args(false);
    app->add_option("--cat", o.categories,
                    "keep only records of these categories: a comma-separated list (48,62); repeatable")
        ->allow_extra_args(false);
    app->add_option("--time", o.time,
                    "FROM-TO: keep only records whose time of day lies in the window, both ends included; each "
                    "end HH:MM, HH:MM:SS or HH:MM:SS.mmm (12:00-12:30 runs to 12:30:59.999); an end may be left "
                    "out (12:00-); FROM later than TO wraps past midnight. Records without a time of day are "
                    "left out");
    app->add_option("-o,--output", o.output,
                    "write the records to FILE instead of standard output (-o /dev/null: records are not "
                    "formatted at all); html with several inputs (needs -o): FILE for the first, then FILE with "
                    "-2, -3, ... before the extension (out.html, out-2.html)");
    app->add_option("--html-limit", o.html_limit,
                    "html: embed at most N records in the page's table, plot and record views (the page says how "
                    "many were left out; its overview counts every record)")
        ->capture_default_str();
    app->add_option("--count", o.count,
                    "udp:// inputs: stop once N records were decoded (records of valid blocks that pass the "
                    "filters; the datagram that reaches N is decoded whole)")
        ->type_name("N");
    app->add_option("--duration", o.duration, "udp:// inputs: stop after SECONDS (fractions allowed)")
        ->type_name("SECONDS");
    app->add_option("--record", o.record,
                    "udp:// inputs: also write every datagram received to FILE as a pcap capture (raw IP, "
                    "receive time, addresses and ports), which decodes as the live input did")
        ->type_name("FILE");
    app->add_option("--framing", o.framing,
                    "recorder framing of raw inputs and UDP payloads: auto (told by content, the default), none "
                    "(blocks back to back), oradis (6-octet header: length, time stamp in ms of the day), final "
                    "(8-octet header: length, board, line, day, time of day in 10 ms; trailer A5 A5 A5 A5) or "
                    "length (2-octet length of the blocks that follow)");
    app->add_flag("--follow", o.follow,
                  "at the end of a file or pipe wait for more, like tail -f, until Ctrl-C (SIGINT) or SIGTERM; "
                  "then the rest is decoded and --stats printed");
    app->add_flag("--log", o.log, "library log lines on standard error (decodes on one thread)");
    app->add_option("--threads", o.threads,
                    "decoding threads (default: one per core this process may use); the output is the same with any number. "
                    "--format html and --log decode on one thread")
        ->check(CLI::Range(1u, 1024u));
    app->add_flag("--accept-empty-fspec", o.accept_empty_fspec,
                  "accept a compound item whose primary subfield announces no subfield, and a record whose FSPEC "
                  "announces no item (some recorders write them): they are read as holding nothing instead of "
                  "making the block bad");
    app->add_option("files", o.files,
                    "pcap, pcapng, raw data blocks (plain or in a recorder framing) or hexadecimal text (also "
                    "xxd and hexdump -C output) (\"-\": standard input; pipes are decoded as they arrive); "
                    "none: the built-in sample recording; or live UDP input, "
                    "udp://[SOURCE@]ADDRESS:PORT[?iface=NAME] (several may be given, not mixed with files)");
    app->footer(
        "Inputs are told apart by their content. Text lines read: block number, block location (\"@N\": "
        "octet N of a raw or hex input; \"pkt P+N\": octet N of the UDP payload of packet P, or of frame P of a "
        "recorder framing with a time stamp), category, "
        "profile, record number, record length, item count, valid, then SAC and SIC, time of day, message type "
        "and callsign (or Mode 3/A code) when the record has them. Bad blocks are reported on standard error "
        "(and, with html, on the page where they occur) and decoding goes on. CSV cells are quoted as RFC 4180 "
        "says; JSON output is valid JSON whatever the input octets. Exit status 1 when nothing could "
        "be read or writing failed, 2 for bad options (an unknown CSV column, a bad --filter, --cat or --time too). "
        "--filter, --cat and --time keep the records that pass all of them, in every format and in --stats. "
        "Live input: udp://ADDRESS:PORT binds a numeric IPv4 address or an [IPv6] one (0.0.0.0 or [::]: every "
        "local address; port 0: any free port, told on standard error); a multicast group (224.0.0.0/4, "
        "ff00::/8) is joined, source-specific with SOURCE@ (udp://10.1.2.3@232.1.1.1:8600), on the interface "
        "?iface=NAME (default: the routing table's choice). Each datagram is decoded as it arrives and its "
        "records written at once; they read as a capture's: \"pkt P+N\" is datagram P of its socket, time is "
        "the receive time, src and dst the sender and destination (\"src\" on text lines; \"src\", \"dst\" "
        "JSON keys and CSV columns, captures too). Runs until Ctrl-C or SIGTERM, --count or --duration, then "
        "prints --stats; receiving nothing is said on standard error, with exit status 0.");
}

}  // namespace

int main(int argc, char **argv) {
    // The tool reports problems itself; library log lines only on request.
    ast_log_handler_reg(nullptr);
    ast_library_init("kovrel");

    CLI::App app{"kovrel: decode, inspect and encode Eurocontrol ASTERIX data"};
    app.require_subcommand(0, 1);
    app.set_version_flag("--version", std::string("kovrel ") + ast_library_version());

    auto *info = app.add_subcommand("info", "library version, revision and build date");
    auto *keywords = app.add_subcommand(
        "keywords", "the search keywords of --filter: name, aliases, description and the categories that serve each");
    keywords->footer(
        "A category serves a keyword when the library has a record accessor for it in that category; a record of "
        "that category matches only when it holds the value.");

    std::string profile = "standard";
    unsigned category = 0;
    auto *uap = app.add_subcommand("uap", "FRN table of a category in a profile");
    uap->add_option("--profile", profile,
                    "profile: standard, cat001_plot, cat021_ver023, cat021_ver026, cat021_ver21, "
                    "cat021_ver27, asr10ss, asr10ss_mk2, thales, managair")
        ->capture_default_str();
    uap->add_option("category", category, "category number (all supported categories when omitted)");

    kovrel_tool::EncodeOptions encode_options;
    auto *encode = app.add_subcommand(
        "encode", "write data blocks from JSON Lines (items of any category, record fields of CAT001, 002, 008, 010, 015, 016, 019, 020, 021, 034 and 048)");
    encode->add_option("file", encode_options.file, "JSON Lines, one record per line (\"-\" or none: standard input)");
    encode->add_option("-o,--output", encode_options.output, "write the blocks to FILE instead of standard output");
    encode->add_option("--block-records", encode_options.block_records,
                       "most records per block, 1 to 64 (blocks also end where the category changes)")
        ->capture_default_str();
    encode->footer(
        "Each line is one JSON object shaped like those of `kovrel decode --format json`: \"cat\", \"uap\" (a "
        "profile name; default standard, for CAT021 cat021_ver21), and \"items\", \"fields\" (those categories) or both. \"items\" lists objects "
        "{\"id\": \"I048/040\", \"fields\": {...}} or {\"id\": ..., \"hex\": \"0c 80 20 00\"}: an item the library "
        "encodes is built from its fields, each set by its dotted path (a nested object is a group, a list an array set element by element: devices[0], devices[1]) from numbers, "
        "booleans and texts, Mode 3/A codes and addresses from octal or hexadecimal digits, null leaving the "
        "default; any other item is copied from hex, which must be exactly one item of that id. Items may come in "
        "any order; the FSPEC follows the profile. The record fields of CAT048: sac and sic (required without "
        "items), tod (\"HH:MM:SS.fff\"), typ (0-7; without items default 5 with icao, else 2), "
        "rho (NM) with theta (degrees), x with y (metres), mode3a (octal digits, as a string), fl (feet), icao (hexadecimal digits), "
        "callsign, track, speed (knots) with heading (degrees); the other keys of decoded fields are left out. "
        "CAT001: sac, sic, msgtype (Plot or Track: I001/020, written without items), track, rho with theta, "
        "x with y, mode3a, fl, tod (I001/141, the low 16 bits), speed with heading; use uap cat001_plot for plots. CAT002 "
        "and CAT034: sac, sic, msgtype (North or Sector; both required without items), tod, sector (degrees). "
        "CAT021, in the line's edition: sac, sic, tod, track, mode3a, fl, sel_alt, icao, callsign, lat with lon, "
        "speed with heading, vrate (see the README for the items of each edition). CAT010 and CAT020: sac, sic, tod, "
        "track, mode3a, fl (without items), icao, callsign, lat with lon, x with y, vx with vy; CAT015: sac, sic, "
        "tod, track; CAT062: sac, sic, tod, track, mode3a; CAT008, 016, 019: sac, sic, tod (set as the fields of their "
        "items). The other fields a decoded record shows are accepted and left out (their items come as items). "
        "Values are rounded to the nearest step of their item; an item in items wins over the same item from "
        "fields. Consecutive records of a category share a block; the blocks are written back to back. Bad lines "
        "are reported on standard error with their line number, item and field (\"in.jsonl:3: I048/010.sac: value "
        "out of range\") and skipped. Exit status 0 when at least one record was written, 1 when none was, 2 for "
        "bad options.");

    kovrel_tool::ConvertOptions convert_options;
    auto *convert = app.add_subcommand("convert", "convert CAT048 to CAT001 and CAT034 to CAT002");
    convert->add_option("files", convert_options.files,
                        "pcap, pcapng, raw data blocks or hexadecimal text (\"-\": standard input); none: the "
                        "built-in sample recording");
    convert->add_option("-o,--output", convert_options.output,
                        "write to FILE (\"-\" or none: standard output, which must not be a terminal)");
    convert->add_flag("--drop-others", convert_options.drop_others,
                      "leave out the blocks of categories other than 048 and 034 (by default they are written "
                      "unchanged)");
    convert->add_flag("--stats", convert_options.stats,
                      "counts on standard error: inputs, blocks read and written, records converted, passed, "
                      "dropped and failed, packets read and written");
    convert->footer(
        "Every CAT048 record becomes a CAT001 record and every CAT034 record a CAT002 record (decoded, "
        "disassembled, converted and assembled by the library); the records of one block stay together in one "
        "block of the older category (a CAT001 block may mix plots and tracks: a record with I048/161 becomes a "
        "track, one without it a plot). Carried to CAT001: I048/010, 020, 040, 042 (halved to 1/64 NM), 070, "
        "090, 140 (as I001/141, the time of day modulo 512 s), 161, 170 and 200; the measured position is "
        "written in CAT001 steps; a plot has no place for 042, 170 and 200, which it loses. Carried to CAT002: I034/000 (North marker and sector crossing only), 010, 020 "
        "and 030. Everything else is dropped. Blocks of other categories are written unchanged unless "
        "--drop-others. Several inputs go to one output, whose kind the first input decides: a pcap or pcapng "
        "capture gives a pcap file (nanosecond time stamps, the first capture's link type) with one packet per "
        "input UDP packet that still carries a payload, keeping its time stamp, addresses and ports, with the "
        "IP and UDP lengths and checksums made to match the new payload; IP fragments are put together and "
        "the converted datagram written whole as one packet at its last fragment (it may exceed the MTU); "
        "packets that are not UDP or are cut short are not written, and neither are later inputs that are not captures of the same link type "
        "(reported). Any other first input gives raw data blocks back to back (captures after it give their UDP "
        "payloads' blocks). A record that cannot be converted (for instance one holding no item that CAT001 "
        "carries) is reported on standard error with its location, \"kovrel: in.pcap: block 3 at pkt "
        "12+0, record 2 (CAT048): not converted: ...\" (locations as in kovrel decode), and left out; so is the "
        "rest of a CAT048 or CAT034 block that cannot be read. Exit status 0 when at least one record was "
        "converted, 1 when none was or the output cannot be written, 2 for bad options or binary output to a "
        "terminal.");

    // Added last: subcommands take over the help footer of their parent.
    kovrel_tool::DecodeOptions decode_options;
    auto *decode = app.add_subcommand("decode", "decode recordings (the default command)");
    add_decode_options(decode, decode_options);
    add_decode_options(&app, decode_options);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &e) {
        // Help and version end with status 0; any other problem with the options is a bad option.
        return app.exit(e) == 0 ? 0 : 2;
    }

    if (*encode) return kovrel_tool::run_encode(encode_options);
    if (*convert) return kovrel_tool::run_convert(convert_options);
    if (*uap) return kovrel_tool::run_uap(stdout, profile, category);
    if (*info) return kovrel_tool::run_info(stdout);
    if (*keywords) return kovrel_tool::run_keywords(stdout);
    return kovrel_tool::run_decode(decode_options);
}
