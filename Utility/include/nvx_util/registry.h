#pragma once

#include <cstddef>

namespace Nvx::Util {

/// What the maker's products store in the registry for each other.
class Registry
{
public:
    /// Writes the folder of the product's translators into the buffer of capacity characters, with a
    /// terminating zero. The string is empty if no folder is stored or if it does not fit.
    static void readKelvaneTranslatorsFolder(wchar_t *buffer, std::size_t capacity);
};

} // namespace Nvx::Util
