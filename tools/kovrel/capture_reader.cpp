// The UDP datagrams of a capture, through libpcap, fragments reassembled.
#include "capture_reader.h"

#include <pcap/pcap.h>

#include "counted.h"

namespace kovrel_tool {

Chunk CapturedUdp::chunk() const {
    Chunk chunk;
    chunk.where = Location{packet, 0};
    chunk.data = payload.data;
    chunk.size = payload.size;
    chunk.time = time();
    chunk.src = payload.src;
    chunk.dst = payload.dst;
    return chunk;
}

CaptureReader::~CaptureReader() { close(); }

void CaptureReader::close() {
    if (pcap_) pcap_close(pcap_);
    pcap_ = nullptr;
}

bool CaptureReader::open(std::FILE *file, std::string &error) {
    close();
    stats_ = CaptureStats{};
    error_.clear();
    fragments_ = Reassembler{};
    char errbuf[PCAP_ERRBUF_SIZE] = {0};
    pcap_ = pcap_fopen_offline_with_tstamp_precision(file, PCAP_TSTAMP_PRECISION_NANO, errbuf);
    if (!pcap_) {
        std::fclose(file);  // libpcap keeps the stream only on success
        error = errbuf;
        return false;
    }
    stats_.linktype = pcap_datalink(pcap_);
    return true;
}

std::string CaptureReader::linktype_problem() const {
    const char *name = pcap_datalink_val_to_name(stats_.linktype);
    return "link type " + std::string(name ? name : "unknown") + " (" + std::to_string(stats_.linktype) +
           ") is not supported";
}

CaptureStats CaptureReader::stats() const {
    CaptureStats stats = stats_;
    stats.fragments_refused = fragments_.refused();
    stats.fragments_evicted = fragments_.evicted();
    stats.fragments_incomplete = fragments_.pending();
    return stats;
}

long CaptureReader::position() const { return pcap_ ? std::ftell(pcap_file(pcap_)) : -1; }

bool CaptureReader::next(CapturedUdp &out) {
    if (!pcap_) return false;
    IpFragment fragment;
    pcap_pkthdr *header = nullptr;
    const u_char *data = nullptr;
    int rc;
    while ((rc = pcap_next_ex(pcap_, &header, &data)) == 1) {
        ++stats_.packets;
        out = CapturedUdp{};
        out.packet = stats_.packets;
        // Read with nanosecond precision: tv_usec holds nanoseconds.
        out.seconds = header->ts.tv_sec;
        out.nanoseconds = static_cast<uint32_t>(header->ts.tv_usec);
        out.frame = data;
        out.caplen = header->caplen;
        FrameResult result = udp_payload(stats_.linktype, data, header->caplen, out.payload, &fragment);
        if (result == FrameResult::Fragment) {
            // A whole datagram comes out of its last fragment to arrive.
            ++stats_.fragments;
            if (fragments_.add(fragment) == FragmentResult::Complete) {
                ++stats_.reassembled;
                const std::vector<uint8_t> &datagram = fragments_.datagram();
                result = reassembled_udp(fragments_.version(), fragments_.protocol(), datagram.data(),
                                         datagram.size(), out.payload);
                if (result == FrameResult::Fragment) result = FrameResult::Truncated;
                if (result == FrameResult::Udp) {
                    // The addresses are those of the fragments' IP headers.
                    set_payload_addresses(out.payload, fragments_.version(), fragment.source, fragment.destination);
                    out.reassembled = true;
                    out.udp_header = out.payload.data - 8;
                }
            }
        }
        switch (result) {
        case FrameResult::Udp: ++stats_.udp; return true;
        case FrameResult::NotUdp: ++stats_.not_udp; break;
        case FrameResult::Fragment: break;
        case FrameResult::Truncated: ++stats_.truncated; break;
        }
    }
    if (rc == PCAP_ERROR) error_ = pcap_geterr(pcap_);
    close();
    return false;
}

std::vector<std::string> fragment_messages(const CaptureStats &capture) {
    std::vector<std::string> out;
    if (capture.fragments_refused)
        out.push_back(counted(capture.fragments_refused, "fragmented datagram") +
                      " given up: overlapping or inconsistent fragments");
    if (capture.fragments_evicted)
        out.push_back(counted(capture.fragments_evicted, "fragmented datagram") +
                      " given up: too many waiting for their fragments at once");
    if (capture.fragments_incomplete)
        out.push_back(counted(capture.fragments_incomplete, "fragmented datagram") +
                      " incomplete at the end of the capture");
    return out;
}

std::vector<std::string> capture_messages(const CaptureStats &capture) {
    std::vector<std::string> out = fragment_messages(capture);
    if (capture.truncated)
        out.push_back(counted(capture.truncated, "packet") + " skipped: cut short by the capture or malformed");
    if (capture.udp == 0 && capture.packets > 0) out.push_back("no UDP datagram in the capture");
    return out;
}

}  // namespace kovrel_tool
