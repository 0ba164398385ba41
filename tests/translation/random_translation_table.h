#pragma once

#include "support/random_text.h"
#include "translation/error_translation_table.h"

/// The table of a seed. Every third text has a character that XML itself cannot carry.
inline Error::TranslationTable randomTranslationTable(quint32 seed)
{
    RandomText random(seed);
    const auto text = [&random] { return random.below(3) == 0 ? random.unspeakableText() : random.text(); };
    const QStringList types{QString(), QStringLiteral("unfinished"), QStringLiteral("obsolete")};
    Error::TranslationTable table;
    table.setVersion(QStringLiteral("2.1"));
    table.setLanguage(QStringLiteral("de_DE"));
    table.setDefaultCodec(random.text());
    for (quint32 contexts = random.below(8); contexts > 0; --contexts) {
        Error::TranslationContext context(random.text());
        for (quint32 messages = random.below(12); messages > 0; --messages)
            context.append({text(), text(), types.at(random.below(3)), text()});
        table.setContext(context);
    }
    return table;
}
