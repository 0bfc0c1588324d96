#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <sched.h>
#include <cstring>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <kovrel/kovrel.h>

#include "commands.h"
#include "live.h"
#include "output_html.h"
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

// Flushes and closes an output (standard output is flushed only). Returns
// 0, or the errno of the first write that failed.
int finish_output(std::FILE *out, const DecodeSession &session) {
    int error = session.output_failed() ? (session.output_errno() ? session.output_errno() : EIO) : 0;
    if (error == 0 && (std::fflush(out) != 0 || std::ferror(out))) error = errno ? errno : EIO;
    if (out != stdout && std::fclose(out) != 0 && error == 0) error = errno;
    return error;
}

std::FILE *open_output(const std::string &path) {
    std::FILE *out = std::fopen(path.c_str(), "w");
    if (!out) std::fprintf(stderr, "kovrel: cannot write %s: %s\n", path.c_str(), std::strerror(errno));
    return out;
}

// True when path names the null device (writing there only costs time).
bool is_null_device(const std::string &path) {
    struct stat a, b;
    return stat(path.c_str(), &a) == 0 && stat("/dev/null", &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// The cores this process may run on (taskset and container limits
// included), at least 1.
unsigned cores() {
    cpu_set_t set;
    if (sched_getaffinity(0, sizeof set, &set) == 0 && CPU_COUNT(&set) > 0) return static_cast<unsigned>(CPU_COUNT(&set));
    return std::max(1u, std::thread::hardware_concurrency());
}

}  // namespace

int run_decode(const DecodeOptions &options) {
    std::string format = options.format;
    if (format.empty()) format = options.columns.empty() ? "text" : "csv";
    if (format != "text" && format != "json" && format != "csv" && format != "html") {
        std::fprintf(stderr, "kovrel: unknown format '%s'; use text, json, csv or html\n", format.c_str());
        return 2;
    }
    const bool html = format == "html";
    if (html && options.files.size() > 1 && options.output.empty()) {
        std::fprintf(stderr, "kovrel: --format html writes one page per input; give -o FILE for several inputs\n");
        return 2;
    }
    if (!options.columns.empty() && format != "csv") {
        std::fprintf(stderr, "kovrel: --columns goes with --format csv\n");
        return 2;
    }
    LiveOptions live;
    live.count = options.count;
    live.duration = options.duration;
    live.record = options.record;
    for (const auto &file : options.files) {
        if (!is_udp_url(file)) continue;
        UdpEndpoint endpoint;
        std::string error;
        if (!parse_udp_url(file, endpoint, error)) {
            std::fprintf(stderr, "kovrel: %s: %s\n", file.c_str(), error.c_str());
            return 2;
        }
        live.endpoints.push_back(std::move(endpoint));
    }
    const bool listening = !live.endpoints.empty();
    if (listening && live.endpoints.size() != options.files.size()) {
        std::fprintf(stderr, "kovrel: files and udp:// inputs do not mix; decode them in separate runs\n");
        return 2;
    }
    if (listening && html) {
        std::fprintf(stderr, "kovrel: --format html does not go with udp:// inputs\n");
        return 2;
    }
    if (!listening && (options.count || options.duration > 0 || !options.record.empty())) {
        std::fprintf(stderr, "kovrel: --count, --duration and --record go with udp:// inputs\n");
        return 2;
    }
    if (options.duration < 0) {
        std::fprintf(stderr, "kovrel: --duration must not be negative\n");
        return 2;
    }
    SessionSettings settings;
    settings.format = format == "json" ? RecordFormat::Json : format == "csv" ? RecordFormat::Csv : RecordFormat::Text;
    settings.items = options.items;
    if (settings.format == RecordFormat::Csv) {
        std::string error;
        if (!parse_csv_columns(options.columns.empty() ? default_csv_columns() : options.columns, settings.columns,
                               error)) {
            std::fprintf(stderr, "kovrel: --columns: %s\n", error.c_str());
            return 2;
        }
    }
    RecordFilter filter;
    {
        std::string error;
        bool ok = true;
        for (const auto &f : options.filters) ok = ok && filter.add_condition(f, error);
        for (const auto &c : options.categories) ok = ok && filter.set_categories(c, error);
        if (ok && !options.time.empty()) ok = filter.set_time_window(options.time, error);
        if (!ok) {
            std::fprintf(stderr, "kovrel: %s\n", error.c_str());
            return 2;
        }
    }
    settings.filter = &filter;
    settings.follow = options.follow;
    settings.framing_auto = options.framing == "auto";
    if (!settings.framing_auto && !parse_framing(options.framing, settings.framing)) {
        std::fprintf(stderr, "kovrel: unknown framing '%s'; use auto, none, oradis, final or length\n",
                     options.framing.c_str());
        return 2;
    }
    // Counting alone: --stats with nothing asked of the records, or records
    // thrown away.
    const bool count_only = (options.stats && options.format.empty() && options.columns.empty() && !options.items &&
                             options.output.empty()) ||
                            (!options.output.empty() && is_null_device(options.output));
    if (count_only && !html) settings.format = RecordFormat::None;
    if (options.uap != "auto") {
        settings.uap = find_profile(options.uap);
        if (!settings.uap) {
            std::fprintf(stderr, "kovrel: unknown profile '%s'; known: auto", options.uap.c_str());
            for (const auto &p : profiles()) std::fprintf(stderr, " %s", p.name);
            std::fprintf(stderr, "\n");
            return 2;
        }
    }
    if (options.accept_empty_fspec) ast_library_set_option(AST_OPTION_ACCEPT_EMPTY_FSPEC);
    // Library log lines are printed as they come, in the order of the
    // decoding threads; the page is written as the records come.
    settings.threads = options.threads ? options.threads : cores();
    // Live datagrams are decoded and written one by one as they arrive:
    // handing each to another thread would only add latency.
    if (html || options.log || listening) settings.threads = 1;
    std::FILE *out = stdout;
    if (!options.output.empty() && !(out = open_output(options.output))) return 1;
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

    const bool sample = options.files.empty();
    const size_t inputs = sample ? 1 : options.files.size();
    auto decode = [&](size_t i) {
        if (sample)
            session.decode_memory("(built-in sample)", kSamplePcap, kSamplePcapSize);
        else
            session.decode_file(options.files[i]);
    };
    auto input_name = [&](size_t i) -> std::string {
        if (sample) return "(built-in sample)";
        return options.files[i] == "-" ? "(standard input)" : options.files[i];
    };

    PageOptions page_options;
    page_options.limit = options.html_limit;
    page_options.settings = "profile " + options.uap;
    for (const auto &f : options.filters) page_options.settings += ", --filter " + f;
    for (const auto &c : options.categories) page_options.settings += ", --cat " + c;
    if (!options.time.empty()) page_options.settings += ", --time " + options.time;

    int status = 0;
    int write_errno = 0;
    const auto started = std::chrono::steady_clock::now();
    if (listening) status = decode_live(session, live, stderr);
    for (size_t i = 0; i < inputs && !listening && !session.output_failed(); ++i) {
        if (!html) {
            decode(i);
            continue;
        }
        // Each input has its own page; the first goes to the output opened above.
        std::FILE *page = i == 0 ? out : open_output(page_file_name(options.output, i));
        if (!page) {
            status = 1;
            break;
        }
        write_page(session, page, input_name(i), [&] { decode(i); }, page_options);
        if (i > 0 && (write_errno = finish_output(page, session)) != 0) break;
    }
    session.flush();
    progress.clear();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();

    const int last = finish_output(out, session);
    if (write_errno == 0) write_errno = last;
    if (write_errno != 0 && write_errno != EPIPE) {
        std::fprintf(stderr, "kovrel: writing the %s failed: %s\n", html ? "page" : "records",
                     std::strerror(write_errno));
        status = 1;
    }
    set_library_log(nullptr);

    const Stats &stats = session.stats();
    if (options.stats) {
        if (format == "json")
            stats.print_json(stderr, seconds);
        else
            stats.print(stderr, seconds);
    }
    if (listening) return status;
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
