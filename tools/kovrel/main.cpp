// kovrel: look at ASTERIX recordings from the command line.
#include <CLI/CLI.hpp>
#include <kovrel/kovrel.h>

#include "commands.h"

namespace {

// `kovrel decode` and plain `kovrel` take the same options, bound to the
// same storage.
void add_decode_options(CLI::App *app, kovrel_tool::DecodeOptions &o) {
    app->add_option("--format", o.format,
                    "text: one line per record; json: one JSON object per record; html: one self-contained "
                    "page per input (records as collapsible sections with item tables, detail views, octets)")
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
        "profile, record number, record length, item count, valid. Bad blocks are reported on standard error "
        "(and, with html, on the page where they occur) and decoding goes on. Exit status 1 when nothing could "
        "be read or writing failed, 2 for bad options.");
}

}  // namespace

int main(int argc, char **argv) {
    // The tool reports problems itself; library log lines only on request.
    ast_log_handler_reg(nullptr);
    ast_library_init("kovrel");

    CLI::App app{"kovrel: decode and inspect Eurocontrol ASTERIX data"};
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

    // Added last: subcommands take over the help footer of their parent.
    kovrel_tool::DecodeOptions decode_options;
    auto *decode = app.add_subcommand("decode", "decode recordings (the default command)");
    add_decode_options(decode, decode_options);
    add_decode_options(&app, decode_options);

    CLI11_PARSE(app, argc, argv);

    if (*uap) return kovrel_tool::run_uap(stdout, profile, category);
    if (*info) return kovrel_tool::run_info(stdout);
    return kovrel_tool::run_decode(decode_options);
}
