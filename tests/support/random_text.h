#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>

#include <random>

/// The rows "seed" of a test that runs with the seeds from 1 to `last`.
inline void addSeedRows(quint32 last)
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= last; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Random strings, reproducible by their seed on every system.
class RandomText
{
public:
    explicit RandomText(quint32 seed)
        : m_numbers(seed)
    {
    }

    /// A number below the limit.
    quint32 below(quint32 limit) { return static_cast<quint32>(m_numbers()) % limit; }

    /// A string of up to eleven pieces: letters of many scripts, surrogate pairs, markup, line ends, blanks.
    QString text()
    {
        static const QStringList pieces{
            QStringLiteral("a"),      QStringLiteral("Value"),  QStringLiteral(" "),
            QStringLiteral("  "),     QStringLiteral("\n"),     QStringLiteral("\r"),
            QStringLiteral("\t"),     QStringLiteral("\r\n"),   QStringLiteral("<"),
            QStringLiteral(">"),      QStringLiteral("&"),      QStringLiteral("&amp;"),
            QStringLiteral("\""),     QStringLiteral("'"),      QStringLiteral("%1"),
            QStringLiteral("]]>"),    QStringLiteral("äß"),     QStringLiteral("保存"),
            QStringLiteral("𝄞"),      QStringLiteral("😀"),      QStringLiteral("שלום"),
            QStringLiteral("\u0085"), QStringLiteral("\u2028"), QStringLiteral("\ufeff"),
            QStringLiteral("\u007f"), QStringLiteral("<!--"),   QStringLiteral("</text>"),
            QStringLiteral("\ufffd")};
        QString text;
        for (quint32 count = below(12); count > 0; --count)
            text += pieces.at(below(static_cast<quint32>(pieces.size())));
        return text;
    }

    /// Such a string with one character that XML does not allow.
    QString unspeakableText()
    {
        static const QList<ushort> units{0x01,   0x08,   0x0b,   0x0c,   0x1b,  0x1f,
                                         0xd800, 0xdbff, 0xdc00, 0xfffe, 0xffff};
        const QChar unit(units.at(below(static_cast<quint32>(units.size()))));
        return text() + u'x' + unit + u'x' + text();
    }

private:
    std::mt19937 m_numbers;
};
