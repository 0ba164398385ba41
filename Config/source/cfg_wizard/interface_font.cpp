#include "cfg_wizard/interface_font.h"

#include <QApplication>
#include <QHash>

QStringList fontsOfLanguage(const QString &locale)
{
    // Those of Windows 8 and later, of Windows 7, and of Linux.
    static const QHash<QString, QStringList> fonts{
        {QStringLiteral("ja-JP"),
         {QStringLiteral("Yu Gothic UI"), QStringLiteral("Meiryo UI"), QStringLiteral("Noto Sans CJK JP")}},
        {QStringLiteral("ko-KR"), {QStringLiteral("Malgun Gothic"), QStringLiteral("Noto Sans CJK KR")}},
        {QStringLiteral("zh-CN"),
         {QStringLiteral("Microsoft YaHei UI"), QStringLiteral("Microsoft YaHei"),
          QStringLiteral("Noto Sans CJK SC")}},
        {QStringLiteral("zh-TW"),
         {QStringLiteral("Microsoft JhengHei UI"), QStringLiteral("Microsoft JhengHei"),
          QStringLiteral("Noto Sans CJK TC")}},
    };
    return fonts.value(locale);
}

InterfaceFont::InterfaceFont(const QString &locale)
    : m_before(QApplication::font())
    , m_isChanged(!fontsOfLanguage(locale).isEmpty())
{
    if (!m_isChanged)
        return;
    QFont font = m_before;
    font.setFamilies(font.families() + fontsOfLanguage(locale));
    QApplication::setFont(font);
}

InterfaceFont::~InterfaceFont()
{
    if (m_isChanged)
        QApplication::setFont(m_before);
}
