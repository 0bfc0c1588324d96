// Captures: UDP payloads out of pcap and pcapng files, through libpcap.
#include "capture_reader.h"
#include "input.h"

namespace kovrel_tool {

bool read_capture(std::FILE *file, const ChunkSink &sink, CaptureStats &stats, std::string &error,
                  const ProgressFn &progress) {
    CaptureReader reader;
    if (!reader.open(file, error)) return false;
    stats.linktype = reader.linktype();
    if (!linktype_supported(reader.linktype())) {
        error = reader.linktype_problem();
        return false;
    }
    CapturedUdp udp;
    while (reader.next(udp)) {
        if (!sink(udp.chunk())) {
            stats = reader.stats();
            return true;
        }
        if (progress && (reader.stats().packets & 0xFF) == 0) {
            const long pos = reader.position();
            if (pos >= 0) progress(static_cast<uint64_t>(pos));
        }
    }
    stats = reader.stats();
    error = reader.read_error();
    return true;
}

}  // namespace kovrel_tool
