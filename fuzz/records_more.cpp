// Dispatches a record to the exercise of its category's record operations.
#include "fuzz_records.h"

namespace fuzzing {

void exercise_record_more(const AstDataRecord &record) {
    switch (record.category) {
    case 4: exercise_record_004(record); break;
    case 8: exercise_record_008(record); break;
    case 10: exercise_record_010(record); break;
    case 15: exercise_record_015(record); break;
    case 16: exercise_record_016(record); break;
    case 19: exercise_record_019(record); break;
    case 20: exercise_record_020(record); break;
    case 21: exercise_record_021(record); break;
    case 23: exercise_record_023(record); break;
    case 62: exercise_record_062(record); break;
    case 63: exercise_record_063(record); break;
    case 65: exercise_record_065(record); break;
    case 240: exercise_record_240(record); break;
    default: break;
    }
}

}  // namespace fuzzing
