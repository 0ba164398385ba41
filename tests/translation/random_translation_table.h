#pragma once

#include "support/random_text.h"
#include "translation/error_translation_table.h"

/// A random table. One string in three has a character that XML cannot represent.
inline Translation::TranslationTable randomTranslationTable(quint32 seed)
{
    using namespace Qt::Literals::StringLiterals;
    RandomText random(seed);
    const auto text = [&random] { return random.below(3) == 0 ? random.unspeakableText() : random.text(); };
    const QStringList types{QString(), u"unfinished"_s, u"obsolete"_s};
    Translation::TranslationTable table;
    table.setVersion(u"2.1"_s);
    table.setLanguage(u"de_DE"_s);
    table.setDefaultCodec(random.text());
    for (quint32 contexts = random.below(8); contexts > 0; --contexts) {
        Translation::TranslationContext context(random.text());
        for (quint32 messages = random.below(12); messages > 0; --messages)
            context.append({text(), text(), types.at(random.below(3)), text()});
        table.setContext(context);
    }
    return table;
}
