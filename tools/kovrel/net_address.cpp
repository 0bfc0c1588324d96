// Addresses and ports as text.
#include <arpa/inet.h>
#include <cstdio>
#include <cstring>

#include "input.h"

namespace kovrel_tool {

size_t format_address(char *text, const NetAddress &address) {
    if (address.family != 4 && address.family != 6) {
        text[0] = '\0';
        return 0;
    }
    char host[INET6_ADDRSTRLEN] = {};
    inet_ntop(address.family == 4 ? AF_INET : AF_INET6, address.octets, host, sizeof host);
    const int n = std::snprintf(text, kAddressSize, address.family == 4 ? "%s:%u" : "[%s]:%u", host,
                                static_cast<unsigned>(address.port));
    return n > 0 ? static_cast<size_t>(n) : 0;
}

std::string format_address(const NetAddress &address) {
    char text[kAddressSize];
    return std::string(text, format_address(text, address));
}

}  // namespace kovrel_tool
