// `kovrel decode udp://...` end to end: the tool listens on loopback (unicast
// IPv4 and IPv6, multicast groups on lo) while the test sends it datagrams;
// the records, their sender and receive time, the counts, --record and the
// ways a run ends. Datagrams only ever go to loopback.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <net/if.h>
#include <netinet/in.h>
#include <nlohmann/json.hpp>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

#include "support/run_tool.h"
#include "support/run_tool.h"
#include "tools/capture_builder.h"

using kovrel_test::run_tool;
using kovrel_test::ToolProcess;
using kovrel_test::ToolRun;
using kovrel_tool_test::concat;
using kovrel_tool_test::Octets;
using kovrel_tool_test::sacsic_block;
using nlohmann::json;

namespace {

class UdpLive : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kovrel_test::tool_available()) GTEST_SKIP() << "the kovrel binary is not built";
    }
};

// The ports the tool says it listens on, in order.
std::vector<uint16_t> listening_ports(const std::string &err) {
    std::vector<uint16_t> ports;
    const std::string marker = "listening on ";
    for (size_t at = err.find(marker); at != std::string::npos; at = err.find(marker, at + 1)) {
        const size_t end = err.find_first_of("?\n", at);
        const size_t colon = err.rfind(':', end);
        ports.push_back(static_cast<uint16_t>(std::stoul(err.substr(colon + 1, end - colon - 1))));
    }
    return ports;
}

double now_seconds() {
    timespec ts;
    clock_gettime(CLOCK_REALTIME, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

// A socket bound to a loopback address, sending to one destination.
class Sender {
public:
    ~Sender() {
        if (fd_ >= 0) close(fd_);
    }
    // "" when ready, else why not.
    std::string open(bool v6, const char *to, uint16_t port, bool multicast) {
        fd_ = socket(v6 ? AF_INET6 : AF_INET, SOCK_DGRAM, 0);
        if (fd_ < 0) return std::strerror(errno);
        std::memset(&to_, 0, sizeof to_);
        sockaddr_storage self{};
        if (v6) {
            auto *s = reinterpret_cast<sockaddr_in6 *>(&self);
            s->sin6_family = AF_INET6;
            s->sin6_addr = in6addr_loopback;
            auto *d = reinterpret_cast<sockaddr_in6 *>(&to_);
            d->sin6_family = AF_INET6;
            d->sin6_port = htons(port);
            inet_pton(AF_INET6, to, &d->sin6_addr);
            to_size_ = sizeof *d;
            if (multicast) {
                const unsigned lo = if_nametoindex("lo");
                const int on = 1;
                d->sin6_scope_id = lo;
                setsockopt(fd_, IPPROTO_IPV6, IPV6_MULTICAST_IF, &lo, sizeof lo);
                setsockopt(fd_, IPPROTO_IPV6, IPV6_MULTICAST_LOOP, &on, sizeof on);
            }
        } else {
            auto *s = reinterpret_cast<sockaddr_in *>(&self);
            s->sin_family = AF_INET;
            s->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            auto *d = reinterpret_cast<sockaddr_in *>(&to_);
            d->sin_family = AF_INET;
            d->sin_port = htons(port);
            inet_pton(AF_INET, to, &d->sin_addr);
            to_size_ = sizeof *d;
            if (multicast) {
                in_addr lo{htonl(INADDR_LOOPBACK)};
                const unsigned char on = 1;
                setsockopt(fd_, IPPROTO_IP, IP_MULTICAST_IF, &lo, sizeof lo);
                setsockopt(fd_, IPPROTO_IP, IP_MULTICAST_LOOP, &on, sizeof on);
            }
        }
        if (bind(fd_, reinterpret_cast<sockaddr *>(&self), v6 ? sizeof(sockaddr_in6) : sizeof(sockaddr_in)) != 0)
            return std::strerror(errno);
        socklen_t length = sizeof self;
        getsockname(fd_, reinterpret_cast<sockaddr *>(&self), &length);
        char host[INET6_ADDRSTRLEN];
        if (v6) {
            const auto *s = reinterpret_cast<sockaddr_in6 *>(&self);
            inet_ntop(AF_INET6, &s->sin6_addr, host, sizeof host);
            name_ = "[" + std::string(host) + "]:" + std::to_string(ntohs(s->sin6_port));
        } else {
            const auto *s = reinterpret_cast<sockaddr_in *>(&self);
            inet_ntop(AF_INET, &s->sin_addr, host, sizeof host);
            name_ = std::string(host) + ":" + std::to_string(ntohs(s->sin_port));
        }
        return "";
    }
    // "" when sent, else why not.
    std::string send(const Octets &octets) {
        if (sendto(fd_, octets.data(), octets.size(), 0, reinterpret_cast<sockaddr *>(&to_), to_size_) !=
            static_cast<ssize_t>(octets.size()))
            return std::strerror(errno);
        return "";
    }
    const std::string &name() const { return name_; }  // "127.0.0.1:40000"

private:
    int fd_ = -1;
    sockaddr_storage to_{};
    socklen_t to_size_ = 0;
    std::string name_;
};

std::vector<json> json_lines(const std::string &text) {
    std::vector<json> lines;
    size_t start = 0;
    for (size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
        lines.push_back(json::parse(text.substr(start, end - start)));
    return lines;
}

// What every case sends, in order: garbage, a block cut short, a datagram
// of two blocks (three records), a block of one record. Four records of
// valid blocks: --count 4 ends the run on the last datagram.
const std::vector<Octets> kDatagrams = {
    {'h', 'e', 'l', 'l', 'o'},
    {48, 0, 9, 0x80, 25, 1},
    concat({sacsic_block(1), sacsic_block(2, 2)}),
    sacsic_block(3),
};

struct Expected {
    uint64_t packet, offset, sic, record;
};
const std::vector<Expected> kRecords = {{3, 0, 1, 1}, {3, 6, 2, 1}, {3, 6, 2, 2}, {4, 0, 3, 1}};

struct LiveCase {
    const char *name;
    bool v6;
    const char *url;     // port 0: the tool picks one
    const char *target;  // where the test sends
    bool multicast;
    bool record;         // also --record, then decode the recording
};

}  // namespace

TEST_F(UdpLive, DecodesDatagramsAsTheyArrive) {
    const std::vector<LiveCase> cases = {
        {"IPv4 unicast", false, "udp://127.0.0.1:0", "127.0.0.1", false, true},
        {"IPv6 unicast", true, "udp://[::1]:0", "::1", false, true},
        {"IPv4 group", false, "udp://239.255.77.1:0?iface=lo", "239.255.77.1", true, false},
        {"IPv4 group, one source", false, "udp://127.0.0.1@232.255.77.2:0?iface=lo", "232.255.77.2", true, false},
        {"IPv6 group", true, "udp://[ff02::7701]:0?iface=lo", "ff02::7701", true, true},
    };
    for (const LiveCase &c : cases) {
        SCOPED_TRACE(c.name);
        const std::string recording = ::testing::TempDir() + "kovrel_udp_live.pcap";
        std::vector<std::string> args = {"decode", c.url, "--count", "4", "--duration", "10", "--format", "json",
                                         "--stats"};
        if (c.record) args.insert(args.end(), {"--record", recording});
        ToolProcess tool;
        ASSERT_TRUE(tool.start(args));
        if (!tool.wait_for_err("listening on", 5000)) {
            const ToolRun run = tool.finish(5);
            if (c.multicast && run.err.find("cannot join") != std::string::npos) {
                std::printf("skipped %s: lo refuses the group here: %s", c.name, run.err.c_str());
                continue;
            }
            FAIL() << run.err;
        }
        const std::vector<uint16_t> ports = listening_ports(tool.err());
        ASSERT_EQ(ports.size(), 1u) << tool.err();
        Sender sender;
        std::string why = sender.open(c.v6, c.target, ports[0], c.multicast);
        ASSERT_EQ(why, "");
        const double before = now_seconds();
        for (const Octets &d : kDatagrams) {
            if (!(why = sender.send(d)).empty()) break;
            usleep(2000);
        }
        if (!why.empty() && c.multicast) {
            tool.send_signal(SIGTERM);
            tool.finish(5);
            std::printf("skipped %s: lo does not carry the group here: %s\n", c.name, why.c_str());
            continue;
        }
        ASSERT_EQ(why, "");
        const ToolRun run = tool.finish(15);
        const double after = now_seconds();
        ASSERT_EQ(run.status, 0) << run.err;
        if (c.multicast && run.err.find("nothing received") != std::string::npos) {
            std::printf("skipped %s: lo took the datagrams but does not deliver the group here\n", c.name);
            continue;
        }

        // The records of valid blocks, with the sender, the group or local
        // address, and a receive time between sending and the end.
        std::vector<json> valid;
        const std::vector<json> lines = json_lines(run.out);
        for (const json &line : lines)
            if (line["block_valid"] == true) valid.push_back(line);
        ASSERT_EQ(valid.size(), kRecords.size()) << run.out;
        const std::string dst =
            (c.v6 ? "[" + std::string(c.target) + "]" : std::string(c.target)) + ":" + std::to_string(ports[0]);
        for (size_t i = 0; i < valid.size(); ++i) {
            const json &r = valid[i];
            EXPECT_EQ(r["packet"], kRecords[i].packet) << r;
            EXPECT_EQ(r["offset"], kRecords[i].offset) << r;
            EXPECT_EQ(r["record"], kRecords[i].record) << r;
            EXPECT_EQ(r["fields"]["sic"], kRecords[i].sic) << r;
            EXPECT_EQ(r["src"], sender.name()) << r;
            EXPECT_EQ(r["dst"], dst) << r;
            EXPECT_FALSE(r.contains("time")) << r;  // the receive time is rx_time
            const double time = r["rx_time"];
            EXPECT_GE(time, before - 1) << r;
            EXPECT_LE(time, after + 1) << r;
        }
        // The bad datagrams are reported, each by its number.
        EXPECT_NE(run.err.find("block 1 at pkt 1+0 (CAT104, LEN 25964)"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("block 2 at pkt 2+0 (CAT048, LEN 9)"), std::string::npos) << run.err;
        // The counts: four datagrams, four blocks of which two bad.
        const size_t brace = run.err.find("{\"stats\"");
        ASSERT_NE(brace, std::string::npos) << run.err;
        const json stats = json::parse(run.err.substr(brace, run.err.find('\n', brace) - brace))["stats"];
        EXPECT_EQ(stats["inputs"], 1);
        EXPECT_EQ(stats["packets"]["read"], 4);
        EXPECT_EQ(stats["blocks"]["read"], 5);
        EXPECT_EQ(stats["blocks"]["valid"], 3);
        EXPECT_EQ(stats["blocks"]["invalid"], 2);
        EXPECT_EQ(stats["records"]["read"], 4);
        EXPECT_EQ(stats["records"]["printed"], 4);

        if (!c.record) continue;
        // The recording decodes to the same records, the input's name aside.
        const ToolRun replay = run_tool({"decode", "--format", "json", recording});
        EXPECT_EQ(replay.status, 0) << replay.err;
        std::vector<json> replayed = json_lines(replay.out);
        ASSERT_EQ(replayed.size(), lines.size()) << replay.out;
        for (size_t i = 0; i < lines.size(); ++i) {
            json live = lines[i], again = replayed[i];
            live.erase("input");
            again.erase("input");
            // The receive time comes back as the packet's capture time.
            live["time"] = live["rx_time"];
            live.erase("rx_time");
            EXPECT_EQ(live, again);
        }
        std::remove(recording.c_str());
    }
}

TEST_F(UdpLive, SeveralSocketsAtOnce) {
    ToolProcess tool;
    ASSERT_TRUE(tool.start({"decode", "udp://127.0.0.1:0", "udp://[::1]:0", "--count", "2", "--duration", "10"}));
    ASSERT_TRUE(tool.wait_for_err("listening on udp://[::1]", 5000)) << tool.err();
    const std::vector<uint16_t> ports = listening_ports(tool.err());
    ASSERT_EQ(ports.size(), 2u);
    Sender four, six;
    ASSERT_EQ(four.open(false, "127.0.0.1", ports[0], false), "");
    ASSERT_EQ(six.open(true, "::1", ports[1], false), "");
    ASSERT_EQ(four.send(sacsic_block(4)), "");
    usleep(2000);
    ASSERT_EQ(six.send(sacsic_block(6)), "");
    const ToolRun run = tool.finish(15);
    ASSERT_EQ(run.status, 0) << run.err;
    // Text lines: each input numbers its own blocks and datagrams.
    EXPECT_NE(run.out.find("blk 1     pkt 1+0        CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 4"
                           "  Plot  src " + four.name() + "\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("sac 25 sic 6  Plot  src " + six.name() + "\n"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find("blk 2"), std::string::npos) << run.out;
}

TEST_F(UdpLive, EndsOnSignalsAndTimeWithNothingReceived) {
    struct StopCase {
        std::vector<std::string> args;
        int signal;  // 0: none sent
    };
    const std::vector<StopCase> cases = {
        {{"decode", "udp://127.0.0.1:0", "--duration", "0.2", "--stats"}, 0},
        {{"decode", "udp://127.0.0.1:0", "--stats"}, SIGTERM},
        {{"decode", "udp://[::1]:0", "--format", "csv", "--stats"}, SIGINT},
    };
    for (const StopCase &c : cases) {
        SCOPED_TRACE(c.args[1] + " " + std::to_string(c.signal));
        ToolProcess tool;
        ASSERT_TRUE(tool.start(c.args));
        ASSERT_TRUE(tool.wait_for_err("listening on", 5000)) << tool.err();
        if (c.signal) tool.send_signal(c.signal);
        const ToolRun run = tool.finish(10);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_NE(run.err.find(": nothing received\n"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("records         0 read, 0 printed\n"), std::string::npos) << run.err;
    }
}

TEST_F(UdpLive, RefusedOptions) {
    struct Case {
        std::vector<std::string> args;
        const char *err;
    };
    const std::vector<Case> cases = {
        {{"decode", "udp://127.0.0.1:0", "capture.pcap"}, "files and udp:// inputs do not mix"},
        {{"decode", "udp://127.0.0.1:0", "--format", "html"}, "--format html does not go with udp:// inputs"},
        {{"decode", "--count", "3"}, "--count, --duration and --record go with udp:// inputs"},
        {{"decode", "--record", "x.pcap", "in.pcap"}, "go with udp:// inputs"},
        {{"decode", "udp://127.0.0.1:0", "--duration", "-1"}, "--duration must not be negative"},
        {{"decode", "udp://127.0.0.1"}, "kovrel: udp://127.0.0.1: the port is missing"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.args[1]);
        const ToolRun run = run_tool(c.args, {}, 10);
        EXPECT_EQ(run.status, 2) << run.err;
        EXPECT_NE(run.err.find(c.err), std::string::npos) << run.err;
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
