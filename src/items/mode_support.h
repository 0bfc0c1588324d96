// The pulse quality letters of the Mode 3/A and Mode C confidence items.
#pragma once

#include "core/text.h"

namespace kovrel::items {

// "QTY:ABCD" from the quality flags qa4 to qd1 of a confidence structure:
// each digit's letter in lower case when any of its three reply pulses is of
// low quality.
template <typename Confidence>
void append_quality(TextWriter &w, const Confidence &q) {
    const bool low[4] = {q.qa4 || q.qa2 || q.qa1, q.qb4 || q.qb2 || q.qb1, q.qc4 || q.qc2 || q.qc1,
                         q.qd4 || q.qd2 || q.qd1};
    w.append("QTY:");
    for (int i = 0; i < 4; ++i) w.append_char(static_cast<char>((low[i] ? 'a' : 'A') + i));
}

}  // namespace kovrel::items
