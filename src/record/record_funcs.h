// Record accessors of each category (filled in by the category folders).
#pragma once

#include "kovrel/datarecord.h"

namespace kovrel {

// The accessors of a category, or nullptr when it has none yet.
const AstDataRecordFuncs *find_record_funcs(uint32_t category);

// Accessor tables, one per category folder.
extern const AstDataRecordFuncs kRecordFuncs001;
extern const AstDataRecordFuncs kRecordFuncs002;
extern const AstDataRecordFuncs kRecordFuncs004;
extern const AstDataRecordFuncs kRecordFuncs010;
extern const AstDataRecordFuncs kRecordFuncs008;
extern const AstDataRecordFuncs kRecordFuncs015;
extern const AstDataRecordFuncs kRecordFuncs016;
extern const AstDataRecordFuncs kRecordFuncs019;
extern const AstDataRecordFuncs kRecordFuncs020;
extern const AstDataRecordFuncs kRecordFuncs021;
extern const AstDataRecordFuncs kRecordFuncs023;
extern const AstDataRecordFuncs kRecordFuncs034;
extern const AstDataRecordFuncs kRecordFuncs048;
extern const AstDataRecordFuncs kRecordFuncs062;
extern const AstDataRecordFuncs kRecordFuncs063;
extern const AstDataRecordFuncs kRecordFuncs065;
extern const AstDataRecordFuncs kRecordFuncs240;

}  // namespace kovrel
