#include <cerrno>
#include <csignal>
#include <cstring>
#include <unistd.h>

#include "commands.h"
#include "convert.h"
#include "sample.h"

namespace kovrel_tool {

int run_convert(const ConvertOptions &options) {
    std::FILE *out = stdout;
    const bool to_stdout = options.output.empty() || options.output == "-";
    if (to_stdout && isatty(STDOUT_FILENO)) {
        std::fprintf(stderr, "kovrel: the converted data is binary; give -o FILE or redirect standard output\n");
        return 2;
    }
    if (!to_stdout && !(out = std::fopen(options.output.c_str(), "wb"))) {
        std::fprintf(stderr, "kovrel: cannot write %s: %s\n", options.output.c_str(), std::strerror(errno));
        return 1;
    }
    // A reader that goes away ends the run quietly.
    std::signal(SIGPIPE, SIG_IGN);

    ConvertSettings settings;
    settings.drop_others = options.drop_others;
    ConvertSession session(settings, out, stderr);
    if (options.files.empty()) {
        session.convert_memory("(built-in sample)", kSamplePcap, kSamplePcapSize);
    } else {
        for (const std::string &file : options.files) {
            session.convert_file(file);
            if (session.output_failed()) break;
        }
    }
    int error = session.output_failed() ? session.output_errno() : 0;
    if (error == 0 && (std::fflush(out) != 0 || std::ferror(out))) error = errno ? errno : EIO;
    if (out != stdout && std::fclose(out) != 0 && error == 0) error = errno;
    const ConvertCounts &counts = session.counts();
    if (options.stats) std::fputs(stats_text(counts, session.capture_output()).c_str(), stderr);
    if (error != 0 && error != EPIPE) {
        std::fprintf(stderr, "kovrel: writing the output failed: %s\n", std::strerror(error));
        return 1;
    }
    if (counts.converted() == 0) {
        std::fprintf(stderr, "kovrel: no record converted\n");
        return 1;
    }
    return 0;
}

}  // namespace kovrel_tool
