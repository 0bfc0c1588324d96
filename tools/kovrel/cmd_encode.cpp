#include <cerrno>
#include <csignal>
#include <cstring>
#include <unistd.h>

#include "commands.h"
#include "encoder.h"

namespace kovrel_tool {

int run_encode(const EncodeOptions &options) {
    if (options.block_records < 1 || options.block_records > 64) {
        std::fprintf(stderr, "kovrel: --block-records takes 1 to 64\n");
        return 2;
    }
    std::FILE *out = stdout;
    if (!options.output.empty()) {
        if (!(out = std::fopen(options.output.c_str(), "wb"))) {
            std::fprintf(stderr, "kovrel: cannot write %s: %s\n", options.output.c_str(), std::strerror(errno));
            return 2;
        }
    } else if (isatty(STDOUT_FILENO)) {
        std::fprintf(stderr, "kovrel: data blocks are binary; give -o FILE or redirect standard output\n");
        return 2;
    }
    const bool from_stdin = options.file.empty() || options.file == "-";
    const std::string name = from_stdin ? "(standard input)" : options.file;
    std::FILE *in = from_stdin ? stdin : std::fopen(options.file.c_str(), "r");
    if (!in) {
        std::fprintf(stderr, "kovrel: %s: cannot open: %s\n", name.c_str(), std::strerror(errno));
        if (out != stdout) std::fclose(out);
        return 1;
    }
    // A reader that goes away ends the run quietly.
    std::signal(SIGPIPE, SIG_IGN);

    const EncodeCounts counts = encode_lines(in, name, out, stderr, options.block_records);
    if (std::ferror(in)) std::fprintf(stderr, "kovrel: %s: cannot read: %s\n", name.c_str(), std::strerror(errno));
    if (in != stdin) std::fclose(in);
    int error = counts.output_failed ? counts.output_errno : 0;
    if (error == 0 && (std::fflush(out) != 0 || std::ferror(out))) error = errno ? errno : EIO;
    if (out != stdout && std::fclose(out) != 0 && error == 0) error = errno;
    if (error != 0 && error != EPIPE) {
        std::fprintf(stderr, "kovrel: writing the blocks failed: %s\n", std::strerror(error));
        return 1;
    }
    if (counts.records == 0) {
        std::fprintf(stderr, "kovrel: no record written\n");
        return 1;
    }
    return 0;
}

}  // namespace kovrel_tool
