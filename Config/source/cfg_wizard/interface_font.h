#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

/// The fonts whose Chinese characters have the shapes that readers of a language ("ja-JP") expect: the same
/// character looks different in Japan, Korea, China and Taiwan. In the order of preference, whether the
/// machine has them or not; none for a language without such characters.
QStringList fontsOfLanguage(const QString &locale);

/// Lets the application take the characters that its own font lacks from the fonts of a language, while this
/// object lives. It would take them from those of the system's language.
class InterfaceFont
{
public:
    explicit InterfaceFont(const QString &locale);
    InterfaceFont(const InterfaceFont &) = delete;
    InterfaceFont &operator=(const InterfaceFont &) = delete;
    ~InterfaceFont();

private:
    QFont m_before;
    bool m_isChanged;
};
