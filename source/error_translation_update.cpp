#include "error_translation_update.h"

#include "clt_message_table.h"
#include "error_translation_table.h"
#include "nvx_util/whole_file.h"

#include <QFile>
#include <QTextStream>

namespace Error {

// The messages of one context mostly follow each other, so the context is looked up when it changes only.
int addMessageTexts(TranslationTable &table, const Clt::MessageTable &messages)
{
    int added = 0;
    QString name;
    const TranslationContext *context = table.context(name);
    for (const auto &[key, message] : messages) {
        if (key.context != name) {
            name = key.context;
            context = table.context(name);
        }
        for (const QString *text : {&message.sourceTitle(), &message.sourceText(), &message.sourceAction()}) {
            if (text->isEmpty() || (context && context->contains(*text)))
                continue;
            context = &table.addString(name, *text);
            ++added;
        }
    }
    return added;
}

bool keepDamagedFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray contents = file.readAll();
    return file.error() == QFile::NoError &&
           Nvx::Util::replaceWholeFile(fileName + QStringLiteral(".damaged"), contents);
}

bool synchronizeTranslationTable(const QString &messageTableFile, const QString &translationFile,
                                 QTextStream &log)
{
    log << "Loading message table \"" << messageTableFile << "\"...\n";
    Clt::MessageTable messages;
    if (!messages.load(messageTableFile)) {
        log << "Could not load message table\n";
        return false;
    }

    TranslationTable table;
    bool damaged = false;
    if (QFile::exists(translationFile)) {
        log << "Loading translation table \"" << translationFile << "\"...\n";
        damaged = !table.load(translationFile);
    }

    log << "Added " << addMessageTexts(table, messages) << " new strings to the translation table\n";
    if ((damaged && !keepDamagedFile(translationFile)) || !table.save(translationFile)) {
        log << "Could not save translation table\n";
        return false;
    }
    return true;
}

} // namespace Error
