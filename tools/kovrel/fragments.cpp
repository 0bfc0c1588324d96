// IP fragment reassembly.
#include "fragments.h"

#include <cstring>

namespace kovrel_tool {

Reassembler::Reassembler(size_t max_datagrams, size_t max_size)
    : max_datagrams_(max_datagrams ? max_datagrams : 1), max_size_(max_size) {}

bool Reassembler::same(const Held &h, const IpFragment &f) const {
    return h.version == f.version && h.protocol == f.protocol && h.id == f.id &&
           std::memcmp(h.source, f.source, sizeof h.source) == 0 &&
           std::memcmp(h.destination, f.destination, sizeof h.destination) == 0;
}

FragmentResult Reassembler::add(const IpFragment &f) {
    size_t i = 0;
    while (i < held_.size() && !same(held_[i], f)) ++i;
    if (i == held_.size()) {
        if (held_.size() >= max_datagrams_) {
            // Room is made by giving up the datagram waiting longest.
            size_t oldest = 0;
            for (size_t k = 1; k < held_.size(); ++k)
                if (held_[k].age < held_[oldest].age) oldest = k;
            held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(oldest));
            ++evicted_;
        }
        Held h{};
        h.version = f.version;
        h.protocol = f.protocol;
        h.id = f.id;
        std::memcpy(h.source, f.source, sizeof h.source);
        std::memcpy(h.destination, f.destination, sizeof h.destination);
        held_.push_back(std::move(h));
        i = held_.size() - 1;
    }
    Held &h = held_[i];
    h.age = ++clock_;
    const size_t begin = f.offset;
    const size_t end = f.offset + f.size;
    bool bad = end > max_size_ || f.size == 0 || (f.more && f.size % 8 != 0);
    if (!bad && h.total != 0 && (end > h.total || (!f.more && end != h.total))) bad = true;  // beyond the end
    if (!bad && !f.more) {
        for (const auto &[b, e] : h.parts)
            if (e > end) bad = true;  // a part beyond the announced end
    }
    for (const auto &[b, e] : h.parts)
        if (begin < e && b < end) bad = true;  // overlap (a repeated fragment too)
    if (bad) {
        held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(i));
        ++refused_;
        return FragmentResult::Refused;
    }
    if (!f.more) h.total = end;
    if (h.octets.size() < end) h.octets.resize(end);
    std::memcpy(h.octets.data() + begin, f.data, f.size);
    h.parts.emplace_back(begin, end);
    if (h.total == 0) return FragmentResult::Pending;
    size_t covered = 0;
    for (const auto &part : h.parts) covered += part.second - part.first;
    if (covered != h.total) return FragmentResult::Pending;  // parts do not overlap: the sum tells
    done_.swap(h.octets);
    done_.resize(h.total);
    done_protocol_ = h.protocol;
    done_version_ = h.version;
    held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(i));
    return FragmentResult::Complete;
}

}  // namespace kovrel_tool
