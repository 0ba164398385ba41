#pragma once

#include "support/table_registry.h"

/// Puts the contents of a Registry Editor script into the registry. Reads what the cases need: strings,
/// numbers, and values of other types, which are read as empty.
void importScript(const QString &script, TableRegistry &registry);
