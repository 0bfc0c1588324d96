#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <unistd.h>

#include <kovrel/kovrel.h>

#include "commands.h"
#include "profiles.h"
#include "progress.h"
#include "sample.h"
#include "session.h"

namespace kovrel_tool {
namespace {

int log_to_stderr(uint32_t level, const char *text) {
    static const char *const names[] = {"DEBUG", "INFO", "WARNING", "CRITICAL", "PANIC"};
    return std::fprintf(stderr, "kovrel: library %s: %s\n", level < 5 ? names[level] : "UNKNOWN", text);
}

}  // namespace

int run_decode(const DecodeOptions &options) {
    if (options.format == "html") {
        std::fprintf(stderr, "kovrel: --format html is not available yet; use --format text or json\n");
        return 2;
    }
    if (options.format != "text" && options.format != "json") {
        std::fprintf(stderr, "kovrel: unknown format '%s'; use text or json\n", options.format.c_str());
        return 2;
    }
    SessionSettings settings;
    settings.json = options.format == "json";
    settings.items = options.items;
    if (options.uap != "auto") {
        settings.uap = find_profile(options.uap);
        if (!settings.uap) {
            std::fprintf(stderr, "kovrel: unknown profile '%s'; known: auto", options.uap.c_str());
            for (const auto &p : profiles()) std::fprintf(stderr, " %s", p.name);
            std::fprintf(stderr, "\n");
            return 2;
        }
    }
    std::FILE *out = stdout;
    if (!options.output.empty()) {
        out = std::fopen(options.output.c_str(), "w");
        if (!out) {
            std::fprintf(stderr, "kovrel: cannot write %s: %s\n", options.output.c_str(), std::strerror(errno));
            return 2;
        }
    }
    // A reader that goes away (`kovrel | head`) ends the run quietly.
    std::signal(SIGPIPE, SIG_IGN);
    set_library_log(options.log ? log_to_stderr : nullptr);

    // The bar would tear the records apart when both go to one terminal.
    const bool bar = isatty(STDERR_FILENO) && (out != stdout || !isatty(STDOUT_FILENO));
    Progress progress(bar);
    DecodeSession session(settings, out, stderr);
    session.on_start = [&](const std::string &name, uint64_t total) { progress.start(name, total); };
    session.on_progress = [&](uint64_t done) { progress.update(done); };
    session.before_message = [&] { progress.clear(); };

    const auto started = std::chrono::steady_clock::now();
    if (options.files.empty()) {
        session.decode_memory("(built-in sample)", kSamplePcap, kSamplePcapSize);
    } else {
        for (const auto &file : options.files) {
            if (session.output_failed()) break;
            session.decode_file(file);
        }
    }
    progress.clear();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();

    int status = 0;
    int write_errno = session.output_errno();
    if (!session.output_failed() && std::fflush(out) != 0) write_errno = errno;
    if (out != stdout && std::fclose(out) != 0 && write_errno == 0) write_errno = errno;
    if ((session.output_failed() || write_errno != 0) && write_errno != EPIPE) {
        std::fprintf(stderr, "kovrel: writing the records failed: %s\n", std::strerror(write_errno));
        status = 1;
    }
    set_library_log(nullptr);

    const Stats &stats = session.stats();
    if (options.stats) stats.print(stderr, seconds);
    if (stats.unreadable == stats.inputs) {
        if (stats.inputs > 1) std::fprintf(stderr, "kovrel: no input could be read\n");
        return 1;
    }
    if (stats.blocks == 0) {
        std::fprintf(stderr, "kovrel: no valid data block found\n");
        return 1;
    }
    return status;
}

}  // namespace kovrel_tool
