#pragma once

#include <QIODevice>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

enum class EntryState
{
    Finished,   ///< a translator has released it
    Unfinished, ///< still to be translated or looked at
    Obsolete,   ///< gone from the sources
};

/// One text of a catalogue.
struct Entry
{
    QString context;
    QString source;
    QString comment;          ///< tells equal texts of one context apart; mostly empty
    QStringList translations; ///< one, or as many as the language has plural forms
    EntryState state = EntryState::Unfinished;
};

/// What a TS file holds.
struct Catalogue
{
    QString language; ///< as "de_DE"
    QList<Entry> entries;
};

/// Reads a TS file; nothing when it is no well-formed TS file.
std::optional<Catalogue> readCatalogue(QIODevice &device);

/// Reads the list "catalogues.txt": for the name of each catalogue the folders that its texts come from. A
/// line holds the name and the folders, between blanks; "#" begins a comment line.
QMap<QString, QStringList> readCatalogueList(QIODevice &list);
