#pragma once

#include "nvx_util/result.h"

class QIODevice;

namespace Translation {

class TranslationTable;

// A translation file in the format of Qt's tools:
//
//    <!DOCTYPE TS>
//    <TS version="2.1" language="de_DE">
//       <defaultcodec>UTF-8</defaultcodec>
//       <context>
//          <name>Clt::Session</name>
//          <message>
//             <source>No server</source>
//             <translation type="unfinished">No server</translation>
//             <comment>Title of a message box</comment>
//          </message>
//       </context>
//    </TS>
//
// The reader accepts the root at any depth. It skips unknown elements, such as locations, with their
// contents, and they are not written again. A character that XML cannot represent is written as an empty
// element "byte" whose attribute "value" is its number; an "x" precedes hexadecimal digits.

/// Whether a well-formed document is a translation file.
enum class TranslationRoot
{
    Found,
    Missing
};

/// Reads the document from the open device into the table. Fails with "ERROR at line LINE" if it is not well
/// formed; the table then has the messages that were complete before the error.
Nvx::Util::Result<TranslationRoot> readTranslationTable(QIODevice &device, TranslationTable &table);

/// The same, slower. readTranslationTable() does this for a document with anything unusual in it.
Nvx::Util::Result<TranslationRoot> readTranslationTableWithQt(QIODevice &device, TranslationTable &table);

/// Writes the table to the open device. False if the device fails or a string has a character that cannot be
/// written at all, a NUL; the output is then useless.
bool writeTranslationTable(QIODevice &device, const TranslationTable &table);

} // namespace Translation
