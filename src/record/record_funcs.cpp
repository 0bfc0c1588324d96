// Central switch of the per-category record accessors. A category that
// gains accessors adds its table here (one line), defined in its folder.
#include "record/record_funcs.h"

namespace kovrel {

const AstDataRecordFuncs *find_record_funcs(uint32_t category) {
    switch (category) {
        case 1: return &kRecordFuncs001;
        case 2: return &kRecordFuncs002;
        case 4: return &kRecordFuncs004;
        case 10: return &kRecordFuncs010;
        case 8: return &kRecordFuncs008;
        case 15: return &kRecordFuncs015;
        case 16: return &kRecordFuncs016;
        case 19: return &kRecordFuncs019;
        case 20: return &kRecordFuncs020;
        case 21: return &kRecordFuncs021;
        case 23: return &kRecordFuncs023;
        case 34: return &kRecordFuncs034;
        case 48: return &kRecordFuncs048;
        case 62: return &kRecordFuncs062;
        case 63: return &kRecordFuncs063;
        case 65: return &kRecordFuncs065;
        case 240: return &kRecordFuncs240;
        default: return nullptr;
    }
}

}  // namespace kovrel
