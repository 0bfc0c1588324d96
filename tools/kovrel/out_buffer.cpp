#include "out_buffer.h"

#include <cerrno>
#include <charconv>
#include <cstring>

namespace kovrel_tool {

OutBuffer::OutBuffer(std::FILE *file, size_t flush_at) : file_(file), flush_at_(flush_at) {
    grow(flush_at + 64 * 1024);
}

void OutBuffer::grow(size_t n) {
    size_t capacity = capacity_ ? capacity_ * 2 : 4096;
    while (capacity - used_ < n) capacity *= 2;
    std::unique_ptr<char[]> data(new char[capacity]);
    if (used_) std::memcpy(data.get(), data_.get(), used_);
    data_ = std::move(data);
    capacity_ = capacity;
}

void OutBuffer::put_unsigned(uint64_t value) {
    char *at = room(20);
    used_ += static_cast<size_t>(std::to_chars(at, at + 20, value).ptr - at);
}

void OutBuffer::put_signed(int64_t value) {
    char *at = room(20);
    used_ += static_cast<size_t>(std::to_chars(at, at + 20, value).ptr - at);
}

void OutBuffer::put_zero_padded(uint64_t value, int digits) {
    char text[20];
    const size_t n = static_cast<size_t>(std::to_chars(text, text + sizeof text, value).ptr - text);
    for (size_t pad = n; pad < static_cast<size_t>(digits); ++pad) put('0');
    put(text, n);
}

void OutBuffer::put_left(std::string_view text, size_t width) {
    put(text);
    if (text.size() < width) {
        const size_t pad = width - text.size();
        std::memset(room(pad), ' ', pad);
        used_ += pad;
    }
}

void OutBuffer::put_left(uint64_t value, size_t width) {
    char text[20];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    put_left(std::string_view(text, static_cast<size_t>(end - text)), width);
}

bool OutBuffer::flush() {
    if (used_ == 0 || !file_) {
        used_ = 0;
        return true;
    }
    const size_t n = used_;
    used_ = 0;
    errno = 0;
    const bool ok = std::fwrite(data_.get(), 1, n, file_) == n && !std::ferror(file_);
    if (!ok && errno == 0) errno = EIO;
    return ok;
}

}  // namespace kovrel_tool
