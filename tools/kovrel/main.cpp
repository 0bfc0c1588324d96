// kovrel: look at ASTERIX recordings, and write some, from the command line.
#include <CLI/CLI.hpp>
#include <kovrel/kovrel.h>

#include "commands.h"

namespace {

// `kovrel decode` and plain `kovrel` take the same options, bound to the
// same storage.
void add_decode_options(CLI::App *app, kovrel_tool::DecodeOptions &o) {
    app->add_option("--format", o.format,
                    "text: one line per record; json: one JSON object per record, with a \"fields\" object (sac, "
                    "sic, tod, msgtype, track, mode3a, fl, sel_alt, callsign, icao, lat, lon, rho, theta, speed, "
                    "heading, vx, vy, vrate: those the record has); html: one self-contained page per input "
                    "(records as collapsible sections with item tables, detail views, octets)")
        ->check(CLI::IsMember({"text", "json", "html"}))
        ->capture_default_str();
    app->add_flag("--items", o.items, "text: one indented line per item (id, name, length, octets, summary)");
    app->add_option("--uap", o.uap,
                    "profile: auto (smart decoding), standard, cat001_plot, cat021_ver023, cat021_ver026, "
                    "cat021_ver21, cat021_ver27, asr10ss, asr10ss_mk2, thales, managair")
        ->capture_default_str();
    app->add_flag("--stats", o.stats, "counts per category, source, message type and profile; MB/s");
    app->add_option("-o,--output", o.output,
                    "write the records to FILE instead of standard output; html with several inputs (needs -o): "
                    "FILE for the first, then FILE with -2, -3, ... before the extension (out.html, out-2.html)");
    app->add_flag("--log", o.log, "library log lines on standard error");
    app->add_option("files", o.files,
                    "pcap, pcapng, raw data blocks or hexadecimal text (\"-\": standard input); "
                    "none: the built-in sample recording");
    app->footer(
        "Inputs are told apart by their content. Text lines read: block number, block location (\"@N\": "
        "octet N of a raw or hex input; \"pkt P+N\": octet N of the UDP payload of packet P), category, "
        "profile, record number, record length, item count, valid, then SAC and SIC, time of day, message type "
        "and callsign (or Mode 3/A code) when the record has them. Bad blocks are reported on standard error "
        "(and, with html, on the page where they occur) and decoding goes on. Exit status 1 when nothing could "
        "be read or writing failed, 2 for bad options.");
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

    std::string profile = "standard";
    unsigned category = 0;
    auto *uap = app.add_subcommand("uap", "FRN table of a category in a profile");
    uap->add_option("--profile", profile,
                    "profile: standard, cat001_plot, cat021_ver023, cat021_ver026, cat021_ver21, "
                    "cat021_ver27, asr10ss, asr10ss_mk2, thales, managair")
        ->capture_default_str();
    uap->add_option("category", category, "category number (all supported categories when omitted)");

    kovrel_tool::EncodeOptions encode_options;
    auto *encode = app.add_subcommand("encode", "write data blocks from JSON Lines (CAT048)");
    encode->add_option("file", encode_options.file, "JSON Lines, one record per line (\"-\" or none: standard input)");
    encode->add_option("-o,--output", encode_options.output, "write the blocks to FILE instead of standard output");
    encode->add_option("--block-records", encode_options.block_records,
                       "most records per block, 1 to 64 (blocks also end where the category changes)")
        ->capture_default_str();
    encode->footer(
        "Each line is one JSON object shaped like those of `kovrel decode --format json`: \"cat\": 48 and a "
        "\"fields\" object with sac and sic (required), tod (\"HH:MM:SS.fff\"), typ (0-7; default 5 with icao, "
        "else 2), rho (NM) with theta (degrees), mode3a (octal digits, as a string), fl (feet), icao (hexadecimal "
        "digits), callsign, track, speed (knots) with heading (degrees); the other keys of decoded fields are left "
        "out. Values are rounded to the nearest step of their item. Consecutive records share a block; the "
        "blocks are written back to back. Bad lines are reported on standard error with their line number and "
        "skipped. Exit status 0 when at least one record was written, 1 when none was, 2 for bad options.");

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
    if (*uap) return kovrel_tool::run_uap(stdout, profile, category);
    if (*info) return kovrel_tool::run_info(stdout);
    return kovrel_tool::run_decode(decode_options);
}
