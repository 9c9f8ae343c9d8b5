// Every field of the shared record under its own name.
#pragma once

#include "replay/field_table.h"
#include "session/record/public_values.h"

namespace quorrin {

void addRecordFields(FieldTable& table, const PublicValues& values);

// The pieces of it, by groups of the record.
void addSessionFields(FieldTable& table, const PublicValues& values);
void addRobotFields(FieldTable& table, const PublicValues& values);
void addNavigationFields(FieldTable& table, const PublicValues& values);

}  // namespace quorrin
