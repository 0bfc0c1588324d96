// `kovrel decode udp://... --record FILE`: the datagrams received, written
// to a pcap file as raw IP packets (IPv4 or IPv6 header, UDP header,
// payload) with their receive time, addresses and ports, so that the file
// decodes as the live input did.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "input_udp.h"
#include "pcap_writer.h"

namespace kovrel_tool {

// Builds the raw IP packet of a datagram into out: an IPv4 header (no
// options, TTL 64, checksum set) or an IPv6 header (hop limit 64), the UDP
// header with its checksum, then the payload. False when the addresses are
// not of one IP version or the packet would be longer than IP allows.
bool build_udp_packet(const NetAddress &src, const NetAddress &dst, const uint8_t *payload, size_t size,
                      std::vector<uint8_t> &out);

class DatagramRecorder {
public:
    DatagramRecorder() = default;
    ~DatagramRecorder();
    DatagramRecorder(const DatagramRecorder &) = delete;
    DatagramRecorder &operator=(const DatagramRecorder &) = delete;

    // Creates the file and writes its header. False with error set when it
    // cannot.
    bool open(const std::string &path, std::string &error);
    bool is_open() const { return file_ != nullptr; }
    // One datagram; false when writing failed (error then tells why).
    // Datagrams whose packet cannot be built are skipped (true).
    bool write(const Datagram &datagram, std::string &error);
    // Hands what was written to the system (after each batch received).
    bool flush(std::string &error);
    // Flushes and closes; false when the last writes failed.
    bool close(std::string &error);

private:
    std::FILE *file_ = nullptr;
    PcapWriter writer_{nullptr};
    std::vector<uint8_t> packet_;
};

}  // namespace kovrel_tool
