// `kovrel decode udp://...`: decoding datagrams as they arrive.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "session.h"
#include "udp_url.h"

namespace kovrel_tool {

struct LiveOptions {
    std::vector<UdpEndpoint> endpoints;
    uint64_t count = 0;     // stop once this many records were decoded (0: no limit)
    double duration = 0;    // stop after this many seconds (0: no limit)
    std::string record;     // write the datagrams to this pcap file ("": no)
};

// Opens a socket per endpoint (telling each "listening on URL" on
// messages), then decodes every datagram into the session as it arrives,
// each one a chunk located by its number on its socket (from 1) and
// stamped with its receive time and addresses, until SIGINT or SIGTERM,
// `count` records (those of valid blocks that pass the filters; the
// datagram that reaches the count is decoded whole) or `duration`. Then
// tells on messages what each socket received when that was nothing, and
// how many datagrams the system dropped when it dropped some. Returns 0,
// or 1 when a socket cannot be opened, receiving or recording fails.
int decode_live(DecodeSession &session, const LiveOptions &options, std::FILE *messages);

}  // namespace kovrel_tool
