// Live UDP inputs named as URLs:
//   udp://[SOURCE@]ADDRESS:PORT[?iface=NAME]
// ADDRESS is a numeric IPv4 address or an IPv6 address in brackets
// ("udp://[ff02::1234]:50000"). A multicast group (224.0.0.0/4, ff00::/8)
// is joined; SOURCE (a unicast address of the same family) makes the join
// source-specific; iface names the interface the group is joined on
// (default: the one the routing table picks; link-local IPv6 groups, ff02::
// and ff01::, need it). A unicast address, 0.0.0.0
// or [::] is bound and nothing is joined. PORT 0 binds any free port.
#pragma once

#include <string>
#include <string_view>

#include "input.h"

namespace kovrel_tool {

struct UdpEndpoint {
    std::string text;      // the URL as given
    NetAddress address;    // the group or local address, and the port
    bool multicast = false;
    NetAddress source;     // source-specific join: the source (port 0); family 0: any source
    std::string iface;     // "": the system's choice
};

// True when text starts with "udp://".
bool is_udp_url(std::string_view text);

// Reads a URL. On a bad one returns false with error set to what is wrong
// with it (without the URL itself).
bool parse_udp_url(std::string_view text, UdpEndpoint &out, std::string &error);

// The URL of an endpoint with the given port ("udp://239.1.2.3:8600",
// "udp://10.0.0.1@[ff3e::8600]:8600?iface=eth0").
std::string udp_url(const UdpEndpoint &endpoint, uint16_t port);

}  // namespace kovrel_tool
