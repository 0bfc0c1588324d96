#include "progress.h"

#include <cstdio>

namespace kovrel_tool {

void Progress::start(const std::string &name, uint64_t total) {
    clear();
    name_ = name;
    total_ = total;
    started_ = Clock::now();
}

void Progress::update(uint64_t done) {
    if (!enabled_ || total_ == 0) return;
    const auto now = Clock::now();
    if (now - started_ < std::chrono::seconds(1)) return;
    if (shown_ && now - drawn_ < std::chrono::milliseconds(100)) return;
    drawn_ = now;
    shown_ = true;
    if (done > total_) done = total_;
    constexpr int kWidth = 30;
    const double part = static_cast<double>(done) / static_cast<double>(total_);
    const int filled = static_cast<int>(part * kWidth);
    char bar[kWidth + 1];
    for (int i = 0; i < kWidth; ++i) bar[i] = i < filled ? '#' : '.';
    bar[kWidth] = '\0';
    std::string name = name_;
    if (name.size() > 30) name = "..." + name.substr(name.size() - 27);
    std::fprintf(stderr, "\r%-30s [%s] %3d%% %.1f/%.1f MB", name.c_str(), bar, static_cast<int>(part * 100),
                 static_cast<double>(done) / 1e6, static_cast<double>(total_) / 1e6);
    std::fflush(stderr);
}

void Progress::clear() {
    if (!shown_) return;
    std::fprintf(stderr, "\r\033[K");
    std::fflush(stderr);
    shown_ = false;
}

}  // namespace kovrel_tool
