// kovrel: look at ASTERIX recordings from the command line.
#include <CLI/CLI.hpp>
#include <kovrel/kovrel.h>

#include "commands.h"

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

    CLI11_PARSE(app, argc, argv);

    if (*uap) return kovrel_tool::run_uap(stdout, profile, category);
    (void)info;
    return kovrel_tool::run_info(stdout);
}
