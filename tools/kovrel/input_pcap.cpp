// Captures: UDP payloads out of pcap and pcapng files, through libpcap.
#include <pcap/pcap.h>

#include "input.h"

namespace kovrel_tool {

bool read_capture(std::FILE *file, const ChunkSink &sink, CaptureStats &stats, std::string &error,
                  const ProgressFn &progress) {
    char errbuf[PCAP_ERRBUF_SIZE] = {0};
    pcap_t *pcap = pcap_fopen_offline_with_tstamp_precision(file, PCAP_TSTAMP_PRECISION_NANO, errbuf);
    if (!pcap) {
        std::fclose(file);  // libpcap keeps the stream only on success
        error = errbuf;
        return false;
    }
    stats.linktype = pcap_datalink(pcap);
    if (!linktype_supported(stats.linktype)) {
        const char *name = pcap_datalink_val_to_name(stats.linktype);
        error = "link type " + std::string(name ? name : "unknown") + " (" + std::to_string(stats.linktype) +
                ") is not supported";
        pcap_close(pcap);
        return false;
    }
    Reassembler fragments;
    IpFragment fragment;
    pcap_pkthdr *header = nullptr;
    const u_char *data = nullptr;
    int rc;
    while ((rc = pcap_next_ex(pcap, &header, &data)) == 1) {
        ++stats.packets;
        Payload payload;
        FrameResult result = udp_payload(stats.linktype, data, header->caplen, payload, &fragment);
        if (result == FrameResult::Fragment) {
            // A whole datagram comes out of its last fragment to arrive.
            ++stats.fragments;
            if (fragments.add(fragment) == FragmentResult::Complete) {
                ++stats.reassembled;
                result = reassembled_udp(fragments.version(), fragments.protocol(), fragments.datagram().data(),
                                         fragments.datagram().size(), payload);
                if (result == FrameResult::Fragment) result = FrameResult::Truncated;
                // The addresses are those of the fragments' IP headers.
                if (result == FrameResult::Udp)
                    set_payload_addresses(payload, fragments.version(), fragment.source, fragment.destination);
            }
        }
        switch (result) {
        case FrameResult::Udp: {
            ++stats.udp;
            Chunk chunk;
            chunk.where = Location{stats.packets, 0};
            chunk.data = payload.data;
            chunk.size = payload.size;
            chunk.time = static_cast<double>(header->ts.tv_sec) + static_cast<double>(header->ts.tv_usec) * 1e-9;
            chunk.src = payload.src;
            chunk.dst = payload.dst;
            if (!sink(chunk)) {
                stats.fragments_incomplete = fragments.pending();
                pcap_close(pcap);
                return true;
            }
            break;
        }
        case FrameResult::NotUdp:
            ++stats.not_udp;
            break;
        case FrameResult::Fragment:
            break;
        case FrameResult::Truncated:
            ++stats.truncated;
            break;
        }
        if (progress && (stats.packets & 0xFF) == 0) {
            const long pos = std::ftell(pcap_file(pcap));
            if (pos >= 0) progress(static_cast<uint64_t>(pos));
        }
    }
    stats.fragments_refused = fragments.refused();
    stats.fragments_evicted = fragments.evicted();
    stats.fragments_incomplete = fragments.pending();
    if (rc == PCAP_ERROR) error = pcap_geterr(pcap);
    pcap_close(pcap);
    return true;
}

}  // namespace kovrel_tool
