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
    Unfinished, ///< to be translated or checked
    Obsolete,   ///< gone from the sources
};

/// One text of a catalogue.
struct Entry
{
    QString context;
    QString source;
    QString comment;          ///< distinguishes equal texts of one context; usually empty
    QStringList translations; ///< one, or as many as the language has plural forms
    EntryState state = EntryState::Unfinished;
};

/// The contents of a TS file.
struct Catalogue
{
    QString language; ///< such as "de_DE"
    QList<Entry> entries;
};

/// Reads a TS file; std::nullopt if it is not a well-formed TS file.
std::optional<Catalogue> readCatalogue(QIODevice &device);

/// Reads the list "catalogues.txt": for each catalogue, the folders that its texts come from. A line contains
/// the name and the folders, separated by blanks; "#" begins a comment line.
QMap<QString, QStringList> readCatalogueList(QIODevice &list);
