#pragma once

#include "message_table_check/translation_strings.h"
#include "nvx_util/result.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace TableCheck {

/// The strings of a translation file in any of the forms that translators' tools exchange.
struct TranslationDocument
{
    QString language; ///< such as "de_DE"; empty if the document does not name it
    TranslationStrings strings;
};

/// Reads a translation file (TS) or an XLIFF 1.2 document; its root element decides which of the two it is.
/// Fails if the document is neither, is not well formed, or has plural forms or length variants, which our
/// translation files cannot hold. The error names the line.
Nvx::Util::Result<TranslationDocument> readTranslationDocument(QIODevice &device);

/// Copies a translation file without the elements "defaultcodec", which the tools of Qt 6 refuse. Everything
/// else is copied, including what our own reader leaves out. Fails as above, except for plural forms.
Nvx::Util::Result<QByteArray> translationFileForQt6(QIODevice &device);

// XLIFF 1.2 as Qt's lconvert writes and reads it:
//
//    <xliff version="1.2" xmlns="urn:oasis:names:tc:xliff:document:1.2">
//       <file original="client_de.ts" datatype="plaintext" source-language="en"
//       target-language="de-DE"><body>
//          <group restype="x-trolltech-linguist-context" resname="Clt::Session">
//             <trans-unit id="_msg1" approved="yes">
//                <source xml:space="preserve">No server</source>
//                <target xml:space="preserve">Kein Server</target>
//                <context-group><context context-type="x-gettext-msgctxt">a comment</context></context-group>
//             </trans-unit>
//          </group>
//       </body></file>
//    </xliff>
//
// A finished string is approved, an obsolete one has translate="no".

/// The document as XLIFF; `original` is the name of the file that it comes from. Fails with the line of the
/// first string with a character that XML cannot represent.
Nvx::Util::Result<QByteArray> xliffOf(const TranslationDocument &document, const QString &original);

} // namespace TableCheck
