// The parts of a decode session that live input needs.
#include "session.h"

#include <cerrno>

namespace kovrel_tool {

void DecodeSession::add_live_input(const CaptureStats &datagrams) {
    ++stats_.inputs;
    stats_.add_capture(datagrams);
}

bool DecodeSession::decode_datagram(const std::string &name, const Chunk &chunk, uint64_t &blocks) {
    block_no_ = blocks;
    decode_chunk(name, chunk, false);
    blocks = block_no_;
    return !output_failed_;
}

bool DecodeSession::write_out() {
    flush();
    if (!output_failed_ && out_ && std::fflush(out_) != 0) {
        output_failed_ = true;
        output_errno_ = errno;
    }
    return !output_failed_;
}

}  // namespace kovrel_tool
