#pragma once

#include <QString>

class QIODevice;

namespace Error {

class TranslationTable;

// A translation file as Qt's own tools read it:
//
//    <!DOCTYPE TS>
//    <TS version="2.1" language="de_DE">
//       <defaultcodec>UTF-8</defaultcodec>
//       <context>
//          <name>Clt::Session</name>
//          <message>
//             <source>No server</source>
//             <translation type="unfinished">No server</translation>
//             <comment>Title of a box</comment>
//          </message>
//       </context>
//    </TS>
//
// Read, the root may stand at any depth. Other elements, locations among them, are skipped with all that they
// hold and are not written again. A character that XML cannot carry stands in a text as an empty element
// "byte" with its number, "x" before hexadecimal digits, in the attribute "value".

/// What a document gave.
struct TranslationReading
{
    QString error;          ///< empty, or "ERROR at line LINE" for a document that is not well formed
    bool foundRoot = false; ///< whether it is a translation file at all
    bool hasForms = false;  ///< whether it has plural forms or length variants, which the table cannot hold
};

/// Reads the document on the open device into the table. Of one that is not well formed the messages that
/// were complete before the error are taken.
TranslationReading readTranslationTable(QIODevice &device, TranslationTable &table);

/// Writes the table's document to the open device. False when the device fails or a text has a character that
/// cannot be written at all, a NUL; what was written is then of no use.
bool writeTranslationTable(QIODevice &device, const TranslationTable &table);

} // namespace Error
