#pragma once

#include <QString>

class QTextStream;

namespace Clt {
class MessageTable;
}

namespace Translation {

class TranslationTable;

/// Adds every source text of the messages (title, text, action, in key order) that the table does not have
/// in the message's context. Returns the number of added strings.
int addMessageTexts(TranslationTable &table, const Clt::MessageTable &messages);

/// Updates a translation file from a message table file and writes what it does to the log. A translation
/// file that does not exist is created. One that is not well formed is read up to the error, and saved as
/// NAME.damaged. One that was read with something left over is saved as NAME.before. What was left over from
/// either file, errors in them, and that copy are reported to `errors`. Returns false, with a line in the log
/// and no file replaced, if the message table cannot be loaded or the translation file cannot be saved or
/// copied.
bool synchronizeTranslationTable(const QString &messageTableFile, const QString &translationFile,
                                 QTextStream &log, QTextStream &errors);

} // namespace Translation
