#include "udp_url.h"

#include <arpa/inet.h>
#include <net/if.h>

namespace kovrel_tool {
namespace {

constexpr std::string_view kScheme = "udp://";

bool is_multicast(const NetAddress &a) {
    return a.family == 4 ? (a.octets[0] & 0xF0) == 0xE0 : a.octets[0] == 0xFF;
}

bool is_unspecified(const NetAddress &a) {
    const size_t n = a.family == 4 ? 4 : 16;
    for (size_t i = 0; i < n; ++i)
        if (a.octets[i]) return false;
    return true;
}

// A numeric address: IPv4, or IPv6 in brackets. `what` names it in errors.
bool parse_host(std::string_view text, NetAddress &out, const char *what, std::string &error) {
    std::string host;
    if (!text.empty() && text.front() == '[') {
        if (text.size() < 2 || text.back() != ']') {
            error = std::string("the ") + what + " '" + std::string(text) + "' lacks its closing ']'";
            return false;
        }
        host.assign(text.substr(1, text.size() - 2));
        out.family = 6;
        if (inet_pton(AF_INET6, host.c_str(), out.octets) != 1) {
            error = std::string("the ") + what + " '" + host + "' is not an IPv6 address";
            return false;
        }
        return true;
    }
    host.assign(text);
    if (host.empty()) {
        error = std::string("the ") + what + " is missing";
        return false;
    }
    if (host.find(':') != std::string::npos) {
        error = std::string("the ") + what + " '" + host + "' looks like IPv6, which goes in brackets: [" + host + "]";
        return false;
    }
    out.family = 4;
    if (inet_pton(AF_INET, host.c_str(), out.octets) != 1) {
        error = std::string("the ") + what + " '" + host +
                "' is not a numeric IPv4 address (host names are not looked up)";
        return false;
    }
    return true;
}

bool parse_port(std::string_view text, uint16_t &port, std::string &error) {
    if (text.empty() || text.size() > 5) {
        error = text.empty() ? "the port is missing" : "the port '" + std::string(text) + "' is not 0 to 65535";
        return false;
    }
    unsigned value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') {
            error = "the port '" + std::string(text) + "' is not a number";
            return false;
        }
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    if (value > 65535) {
        error = "the port '" + std::string(text) + "' is not 0 to 65535";
        return false;
    }
    port = static_cast<uint16_t>(value);
    return true;
}

bool parse_query(std::string_view query, UdpEndpoint &out, std::string &error) {
    constexpr std::string_view kIface = "iface=";
    if (query.substr(0, kIface.size()) != kIface) {
        error = "unknown option '" + std::string(query) + "'; the one option is ?iface=NAME";
        return false;
    }
    const std::string_view name = query.substr(kIface.size());
    if (name.empty() || name.size() >= IF_NAMESIZE || name.find_first_of("&?/ ") != std::string_view::npos) {
        error = "'" + std::string(name) + "' is not an interface name";
        return false;
    }
    out.iface.assign(name);
    return true;
}

}  // namespace

bool is_udp_url(std::string_view text) { return text.substr(0, kScheme.size()) == kScheme; }

bool parse_udp_url(std::string_view text, UdpEndpoint &out, std::string &error) {
    out = UdpEndpoint{};
    out.text.assign(text);
    if (!is_udp_url(text)) {
        error = "a live input starts with udp://";
        return false;
    }
    std::string_view rest = text.substr(kScheme.size());
    const size_t question = rest.find('?');
    if (question != std::string_view::npos) {
        if (!parse_query(rest.substr(question + 1), out, error)) return false;
        rest = rest.substr(0, question);
    }
    const size_t at = rest.find('@');
    if (at != std::string_view::npos) {
        if (!parse_host(rest.substr(0, at), out.source, "source", error)) return false;
        rest = rest.substr(at + 1);
    }
    if (!rest.empty() && rest.front() == '[' && rest.find(']') == std::string_view::npos) {
        error = "the address '" + std::string(rest) + "' lacks its closing ']'";
        return false;
    }
    const size_t colon = rest.rfind(':');
    if (colon == std::string_view::npos || (!rest.empty() && rest.front() == '[' && colon < rest.find(']'))) {
        error = "the port is missing (udp://ADDRESS:PORT)";
        return false;
    }
    if (!parse_host(rest.substr(0, colon), out.address, "address", error)) return false;
    if (!parse_port(rest.substr(colon + 1), out.address.port, error)) return false;
    out.multicast = is_multicast(out.address);
    if (out.source.known()) {
        if (!out.multicast) {
            error = "a source goes with a multicast group (224.0.0.0/4, ff00::/8)";
            return false;
        }
        if (out.source.family != out.address.family) {
            error = "the source and the group are not of the same IP version";
            return false;
        }
        if (is_multicast(out.source) || is_unspecified(out.source)) {
            error = "the source must be a unicast address";
            return false;
        }
    }
    // Interface- and link-local IPv6 groups (ff01::, ff02::) exist per link.
    if (out.multicast && out.address.family == 6 && (out.address.octets[1] & 0x0F) <= 2 && out.iface.empty()) {
        error = "a link-local group needs its interface: ?iface=NAME";
        return false;
    }
    if (!out.iface.empty() && !out.multicast) {
        error = "?iface= names the interface a multicast group is joined on, and this address is not a group";
        return false;
    }
    return true;
}

std::string udp_url(const UdpEndpoint &endpoint, uint16_t port) {
    std::string url(kScheme);
    if (endpoint.source.known()) {
        NetAddress source = endpoint.source;
        source.port = 0;
        std::string text = format_address(source);
        url += text.substr(0, text.rfind(':')) + "@";
    }
    NetAddress address = endpoint.address;
    address.port = port;
    url += format_address(address);
    if (!endpoint.iface.empty()) url += "?iface=" + endpoint.iface;
    return url;
}

}  // namespace kovrel_tool
