#include "datagram_recorder.h"

#include <cerrno>
#include <cstring>
#include <pcap/pcap.h>

namespace kovrel_tool {
namespace {

void put16(uint8_t *p, size_t v) {
    p[0] = static_cast<uint8_t>(v >> 8);
    p[1] = static_cast<uint8_t>(v);
}

uint32_t sum_words(const uint8_t *p, size_t n) {
    uint32_t sum = 0;
    for (size_t i = 0; i + 1 < n; i += 2) sum += static_cast<uint32_t>(p[i] << 8 | p[i + 1]);
    return sum;
}

}  // namespace

bool build_udp_packet(const NetAddress &src, const NetAddress &dst, const uint8_t *payload, size_t size,
                      std::vector<uint8_t> &out) {
    if (src.family != dst.family || (src.family != 4 && src.family != 6)) return false;
    const bool v4 = src.family == 4;
    const size_t ip = v4 ? 20 : 40;
    const size_t udp_length = 8 + size;
    if (udp_length > 0xFFFF || (v4 && ip + udp_length > 0xFFFF)) return false;
    out.assign(ip + udp_length, 0);
    uint8_t *p = out.data();
    const size_t address = v4 ? 4 : 16;
    if (v4) {
        p[0] = 0x45;
        put16(p + 2, ip + udp_length);
        p[6] = 0x40;  // don't fragment
        p[8] = 64;
        p[9] = 17;
        std::memcpy(p + 12, src.octets, 4);
        std::memcpy(p + 16, dst.octets, 4);
        put16(p + 10, internet_checksum(p, 20));
    } else {
        p[0] = 0x60;
        put16(p + 4, udp_length);
        p[6] = 17;
        p[7] = 64;
        std::memcpy(p + 8, src.octets, 16);
        std::memcpy(p + 24, dst.octets, 16);
    }
    uint8_t *u = p + ip;
    put16(u, src.port);
    put16(u + 2, dst.port);
    put16(u + 4, udp_length);
    if (size) std::memcpy(u + 8, payload, size);
    // Pseudo header: both addresses, the protocol and the UDP length.
    const uint32_t pseudo = sum_words(src.octets, address) + sum_words(dst.octets, address) + 17 +
                            static_cast<uint32_t>(udp_length);
    uint16_t checksum = internet_checksum(u, udp_length, pseudo);
    if (checksum == 0) checksum = 0xFFFF;  // 0 would mean "no checksum"
    put16(u + 6, checksum);
    return true;
}

DatagramRecorder::~DatagramRecorder() {
    std::string ignored;
    close(ignored);
}

bool DatagramRecorder::open(const std::string &path, std::string &error) {
    file_ = std::fopen(path.c_str(), "wb");
    if (!file_) {
        error = std::strerror(errno);
        return false;
    }
    writer_ = PcapWriter(file_);
    if (!writer_.begin(DLT_RAW)) {
        error = std::strerror(errno);
        return false;
    }
    return true;
}

bool DatagramRecorder::write(const Datagram &d, std::string &error) {
    if (!file_) return true;
    if (!build_udp_packet(d.src, d.dst, d.data, d.size, packet_)) return true;
    if (writer_.packet(d.seconds, d.nanoseconds, packet_.data(), packet_.size())) return true;
    error = std::strerror(errno);
    return false;
}

bool DatagramRecorder::flush(std::string &error) {
    if (!file_ || std::fflush(file_) == 0) return true;
    error = std::strerror(errno);
    return false;
}

bool DatagramRecorder::close(std::string &error) {
    if (!file_) return true;
    const bool ok = std::fflush(file_) == 0 && !std::ferror(file_);
    if (!ok) error = std::strerror(errno);
    const bool closed = std::fclose(file_) == 0;
    file_ = nullptr;
    if (ok && !closed) error = std::strerror(errno);
    return ok && closed;
}

}  // namespace kovrel_tool
