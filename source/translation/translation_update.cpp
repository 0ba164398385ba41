#include "translation/translation_update.h"

#include "clt_message_table.h"
#include "translation/error_translation_table.h"

#include <QFile>
#include <QTextStream>

#include <iterator>

namespace Translation {

// Messages of the same context are mostly neighbours, and the contexts are in order, so each search starts
// where the previous one ended.
int addMessageTexts(TranslationTable &table, const Clt::MessageTable &messages)
{
    int added = 0;
    TranslationContext *context = nullptr;
    auto next = table.contexts().begin();
    for (const auto &[key, message] : messages) {
        for (const QString *text : {&message.sourceTitle(), &message.sourceText(), &message.sourceAction()}) {
            if (text->isEmpty())
                continue;
            if (!context || context->name() != key.context) {
                const auto found = table.contextNamed(key.context, next);
                context = &found->second;
                next = std::next(found);
            }
            if (context->addMissing(*text))
                ++added;
        }
    }
    return added;
}

bool synchronizeTranslationTable(const QString &messageTableFile, const QString &translationFile,
                                 QTextStream &log, QTextStream &errors)
{
    log << "Loading message table \"" << messageTableFile << "\"...\n";
    Clt::MessageTable messages;
    const bool isLoaded = messages.load(messageTableFile);
    Clt::writeReading(errors, messageTableFile, messages);
    if (!isLoaded) {
        log << "Could not load message table\n";
        return false;
    }

    TranslationTable table;
    if (QFile::exists(translationFile)) {
        log << "Loading translation table \"" << translationFile << "\"...\n";
        if (!table.load(translationFile))
            errors << translationFile << ": " << table.errorString() << '\n';
        for (const QString &line : table.leftovers().logLines(translationFile))
            errors << line << '\n';
    }

    log << "Added " << addMessageTexts(table, messages) << " new strings to the translation table\n";
    if (!table.save(translationFile)) {
        log << "Could not save translation table\n";
        return false;
    }
    if (!table.backupFile().isEmpty())
        errors << Clt::backupText(table.backupFile()) << '\n';
    return true;
}

} // namespace Translation
