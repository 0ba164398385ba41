#include "localization/translatable_texts.h"

#include "scanner/tokenizer.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace Localization {

namespace {

constexpr std::array<std::string_view, 8> markers = {
    "tr",
    "translate",
    "trUtf8",
    "qtTrId",
    "QT_TR_NOOP",
    "QT_TRID_NOOP",
    "QT_TRANSLATE_NOOP",
    "QT_TRANSLATE_NOOP3",
};

bool isMarker(const Scan::Tokenizer &tokens)
{
    return tokens.kind() == Scan::TokenKind::Identifier &&
           std::ranges::find(markers, tokens.text()) != markers.end();
}

} // namespace

int countTranslatableCalls(const QByteArray &source)
{
    Scan::Tokenizer tokens(std::string_view(source.constData(), static_cast<size_t>(source.size())));
    int count = 0;
    while (tokens.kind() != Scan::TokenKind::EndOfFile) {
        const bool marker = isMarker(tokens);
        tokens.next();
        if (!marker || tokens.kind() != Scan::TokenKind::LeftParen)
            continue;
        tokens.next();
        if (tokens.kind() == Scan::TokenKind::String)
            ++count;
    }
    return count;
}

int countTranslatableStrings(const QByteArray &form)
{
    QXmlStreamReader reader(form);
    int count = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != "string"_L1)
            continue;
        const bool excluded = reader.attributes().value("notr"_L1) == "true"_L1;
        const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements);
        if (!excluded && !text.isEmpty() && !reader.hasError())
            ++count;
    }
    return count;
}

} // namespace Localization
