// Bounded text building into caller buffers.
//
// Every text the library composes goes through TextWriter: it remembers the
// buffer, its size and the length written so far, cuts every piece to the
// room left and keeps the text NUL-terminated. A zero-size buffer is never
// touched.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "core/format.h"

namespace kovrel {

class TextWriter {
public:
    // Starts an empty text at buf (writes the NUL when size > 0).
    TextWriter(char *buf, size_t size) : buf_(buf), size_(buf ? size : 0), len_(0) {
        if (size_ > 0) buf_[0] = '\0';
    }

    // Continues the text already in buf (its length is measured, bounded by size).
    static TextWriter continuing(char *buf, size_t size) {
        TextWriter w(buf, size, 0);
        if (w.size_ > 0) {
            const void *nul = std::memchr(buf, '\0', w.size_);
            w.len_ = nul ? static_cast<size_t>(static_cast<const char *>(nul) - buf) : w.size_ - 1;
            buf[w.len_] = '\0';
        }
        return w;
    }

    // Appends text, cut to the room left.
    void append(const char *text) {
        if (!text || size_ == 0) return;
        size_t room = size_ - 1 - len_;
        size_t n = std::strlen(text);
        if (n > room) n = room;
        std::memcpy(buf_ + len_, text, n);
        len_ += n;
        buf_[len_] = '\0';
    }

    void append_char(char c) {
        if (size_ == 0 || len_ + 1 >= size_) return;
        buf_[len_++] = c;
        buf_[len_] = '\0';
    }

    // Appends printf-formatted text, cut to the room left.
    void appendf(const char *format, ...) __attribute__((format(printf, 2, 3))) {
        va_list ap;
        va_start(ap, format);
        vappendf(format, ap);
        va_end(ap);
    }

    void vappendf(const char *format, va_list ap) {
        if (size_ == 0) return;
        advance(vformat_into(buf_ + len_, size_ - len_, format, ap));
    }

    // Single numbers, written as the printf conversion named with each,
    // cut to the room left.

    // "%0<width>lld": v with zeros up to width characters, the sign included.
    void append_int(long long v, unsigned width = 0) {
        if (size_ > 0) advance(format_signed_into(buf_ + len_, size_ - len_, v, width));
    }
    // "%0<width>llu".
    void append_uint(unsigned long long v, unsigned width = 0) {
        if (size_ > 0) advance(format_unsigned_into(buf_ + len_, size_ - len_, v, 10, width));
    }
    // "%0<width>llo".
    void append_octal(unsigned long long v, unsigned width = 0) {
        if (size_ > 0) advance(format_unsigned_into(buf_ + len_, size_ - len_, v, 8, width));
    }
    // "%0<width>llX": upper-case digits.
    void append_hex(unsigned long long v, unsigned width = 0) {
        if (size_ > 0) advance(format_unsigned_into(buf_ + len_, size_ - len_, v, 16, width));
    }
    // "%.<decimals>f": rounded to nearest, ties to even, on the exact binary
    // value; "nan", "-nan", "inf" as printf writes them.
    void append_fixed(double v, unsigned decimals) {
        if (size_ > 0) advance(format_fixed_into(buf_ + len_, size_ - len_, v, decimals));
    }

    // Removes the last character (used to drop the trailing blank of flag lists).
    void drop_last() {
        if (len_ > 0) buf_[--len_] = '\0';
    }

    size_t length() const { return len_; }
    size_t room() const { return size_ > len_ ? size_ - 1 - len_ : 0; }
    bool full() const { return size_ == 0 || len_ + 1 >= size_; }
    char *end() const { return buf_ ? buf_ + len_ : nullptr; }
    // Room behind end(), NUL included: what a builder that overwrites may use.
    size_t end_size() const { return size_ > len_ ? size_ - len_ : 0; }
    char *data() const { return buf_; }

    // Re-measures after a builder wrote at end() directly.
    void resync() {
        if (size_ == 0) return;
        const void *nul = std::memchr(buf_ + len_, '\0', size_ - len_);
        len_ = nul ? static_cast<size_t>(static_cast<const char *>(nul) - buf_) : size_ - 1;
        buf_[len_] = '\0';
    }

private:
    // Takes in the n characters a formatter stored at end() (cut to the room
    // it had, NUL written); n < 0 leaves the text as it was.
    void advance(int n) {
        const size_t room = size_ - len_;
        if (n < 0) {
            buf_[len_] = '\0';
            return;
        }
        len_ += (static_cast<size_t>(n) < room) ? static_cast<size_t>(n) : room - 1;
    }

    TextWriter(char *buf, size_t size, int) : buf_(buf), size_(buf ? size : 0), len_(0) {}
    char *buf_;
    size_t size_;
    size_t len_;
};

}  // namespace kovrel
