// Dispatches a record to the exercise of its category's record operations.
#include "fuzz_records.h"

namespace fuzzing {

void exercise_record_more(const AstDataRecord &record) {
    switch (record.category) {
    default: break;
    }
}

}  // namespace fuzzing
