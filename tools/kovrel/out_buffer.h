// The buffer that `kovrel decode` formats records into: one growing block
// of characters, reused for the whole run and handed to the output stream
// in large writes, so that a record costs no allocation and no stdio call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace kovrel_tool {

class OutBuffer {
public:
    // The buffer asks to be flushed once it holds flush_at characters.
    explicit OutBuffer(std::FILE *file = nullptr, size_t flush_at = 256 * 1024);
    OutBuffer(const OutBuffer &) = delete;
    OutBuffer &operator=(const OutBuffer &) = delete;

    // Where flush writes to (what is held is not flushed by this).
    void set_file(std::FILE *file) { file_ = file; }
    std::FILE *file() const { return file_; }

    // At least n writable characters at the end of what is held; advance()
    // then keeps the ones written. The pointer is good until the next call
    // that writes.
    char *room(size_t n) {
        if (capacity_ - used_ < n) grow(n);
        return data_.get() + used_;
    }
    void advance(size_t n) { used_ += n; }

    void put(char c) {
        if (used_ == capacity_) grow(1);
        data_[used_++] = c;
    }
    void put(const char *text, size_t n) {
        if (capacity_ - used_ < n) grow(n);
        std::memcpy(data_.get() + used_, text, n);
        used_ += n;
    }
    void put(std::string_view text) { put(text.data(), text.size()); }
    // value in decimal
    void put_unsigned(uint64_t value);
    void put_signed(int64_t value);
    // value in decimal, at least `digits` digits (leading zeros).
    void put_zero_padded(uint64_t value, int digits);
    // text, then blanks up to width characters (nothing when longer).
    void put_left(std::string_view text, size_t width);
    void put_left(uint64_t value, size_t width);

    size_t size() const { return used_; }
    // Forgets what was written after the first `size` characters.
    void truncate(size_t size) {
        if (size < used_) used_ = size;
    }
    std::string_view view() const { return {data_.get(), used_}; }
    void clear() { used_ = 0; }
    // Exchanges what two buffers hold (their files and flush sizes stay).
    void swap_contents(OutBuffer &other) {
        std::swap(data_, other.data_);
        std::swap(capacity_, other.capacity_);
        std::swap(used_, other.used_);
    }

    bool full() const { return used_ >= flush_at_; }
    // Writes what is held to the file and empties the buffer. Returns false
    // when the write fails (errno tells why); what could not be written is
    // dropped.
    bool flush();

private:
    void grow(size_t n);

    std::FILE *file_;
    size_t flush_at_;
    std::unique_ptr<char[]> data_;
    size_t capacity_ = 0;
    size_t used_ = 0;
};

}  // namespace kovrel_tool
