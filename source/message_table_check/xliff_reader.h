#pragma once

class QXmlStreamReader;

namespace TableCheck {

struct TranslationDocument;

/// Reads the strings of the "xliff" element at whose start tag the reader is, to its end, and adds them to
/// the document. Unknown elements are skipped; the text of inline elements belongs to the string. A string is
/// finished if it is approved, or if its state says so and it is not disapproved.
void readXliff(QXmlStreamReader &xml, TranslationDocument &document);

} // namespace TableCheck
