#pragma once

#include "support/table_registry.h"

/// Puts into the registry what a script of the Registry Editor holds. Reads what the cases need: texts,
/// numbers, and values of other kinds, which count as neither.
void importScript(const QString &script, TableRegistry &registry);
