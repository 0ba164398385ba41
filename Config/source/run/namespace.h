#pragma once

namespace Nvx::Run {
}

// The modules that have no namespace yet use the names of this one without a prefix. To be removed with the
// last of them.
using namespace Nvx::Run;
