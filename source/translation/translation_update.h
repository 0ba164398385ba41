#pragma once

#include <QString>

class QTextStream;

namespace Clt {
class MessageTable;
}

namespace Error {

class TranslationTable;

/// Adds every source text of the messages (title, text, action, in key order) that the table does not have
/// under the message's context. Returns how many that were.
int addMessageTexts(TranslationTable &table, const Clt::MessageTable &messages);

/// Brings a translation file up to date with a message-table file and tells about it in lines on the log. A
/// translation file that does not exist is made; one that is not well formed is taken as far as it could be
/// read, and kept as NAME.damaged. One with plural forms or length variants is kept as NAME.before, which is
/// a line on the errors. False, with its line in the log and nothing replaced, when the message table cannot
/// be loaded, or the translation file cannot be saved or kept.
bool synchronizeTranslationTable(const QString &messageTableFile, const QString &translationFile,
                                 QTextStream &log, QTextStream &errors);

} // namespace Error
