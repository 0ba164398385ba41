#include "scanner/found_keys.h"

#include "scanner/source_scanner.h"

#include <algorithm>

namespace Scan {

// Two families may share a key: an error and a message with the same tag.
void addKeys(FoundKeys &found, const SourceScanner &scanner)
{
    for (const auto &[family, lines] : scanner.keys()) {
        for (auto key = lines.keyValueBegin(); key != lines.keyValueEnd(); ++key) {
            SourcePlace &place = found[key->first];
            if (place.line == 0)
                place = {scanner.fileName(), key->second};
            else if (place.file == scanner.fileName())
                place.line = std::min(place.line, key->second);
        }
    }
}

} // namespace Scan
