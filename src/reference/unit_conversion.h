#pragma once

// Definitions taken down to base units.

#include "reference/unit_record.h"
#include "reference/unit_table.h"

namespace quorix {

/// Replaces the terms of `record` by their definitions until base units, unknown terms and units with an
/// offset are left. The record's own offset goes when a term is replaced. False when definitions nest deeper
/// than kDeepestDefinition or give more terms than kMostExpandedTerms; `record` is then unspecified.
bool ExpandUnit(const UnitTable& table, UnitRecord& record);

/// Cancels equal terms above and below the line, the first of them first, then drops the terms "1". The order
/// of the others stays.
void SimplifyUnit(UnitRecord& record);

}  // namespace quorix
