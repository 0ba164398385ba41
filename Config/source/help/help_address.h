#pragma once

#include <QString>

/// Where help is read.
enum class HelpPlace
{
    Online,
    Installed
};

/// What the addresses of help are composed of.
struct HelpSettings
{
    QString prefix; ///< the scheme, such as "http://"
    QString url;    ///< where the help lies
    QString direct; ///< stands before the id of a topic
    QString search; ///< stands before the text of a search
    QString suffix; ///< stands behind the id of a topic
};

/// The language of the help for an interface language: "DEU" for "de-DE", "JPN" for "ja-JP". "ENU" for a
/// language without a help of its own.
QString helpLanguage(const QString &locale);

/// The address of a topic; with empty settings the bare id.
QString topicAddress(const HelpSettings &settings, const QString &contextId);

/// The address of a search, with the text as it is. The suffix is part of an online search only.
QString searchAddress(const HelpSettings &settings, HelpPlace place, const QString &text);
