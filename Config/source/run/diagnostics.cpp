#include "run/diagnostics.h"

Q_LOGGING_CATEGORY(diagnostics, "nvx.configuration")
