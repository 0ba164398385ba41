#pragma once

#include <cstddef>

namespace Nvx::Util {

/// What the maker's products record about each other in the registry.
class Registry
{
public:
    /// Fills the buffer of capacity characters with the folder of the product's translators, a text ended by
    /// a zero character. The text is empty when no folder is recorded, and also when it does not fit: a
    /// folder is never cut short.
    static void readKelvaneTranslatorsFolder(wchar_t *buffer, std::size_t capacity);
};

} // namespace Nvx::Util
