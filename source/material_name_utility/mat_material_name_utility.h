#pragma once

#include "translation/error_translation_table.h"
#include "window/table_window.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace mat {

/// The window on a translation table of material names: opens and saves it, and brings it in step with a
/// material database.
class MaterialNameUtility : public Window::TableWindow
{
    Q_OBJECT

public:
    /// The dialogs and the settings live longer than the window.
    MaterialNameUtility(Window::Dialogs &dialogs, QSettings &settings);

    const Error::TranslationTable &table() const { return m_table; }

    /// The material database that was chosen last; empty before.
    const QString &databaseFile() const { return m_databaseFile; }

    /// The names that the database had, as often as it had them.
    const QStringList &materialNames() const { return m_materialNames; }

public slots:
    /// Brings the table in step with the database; without one, asks which.
    void synchronize(const QString &databaseFile = QString());

protected:
    void clearTable() override;
    Window::Loading loadTable(const QString &fileName) override;
    bool saveTable(const QString &fileName) override;
    QString savedNote() const override;
    Window::MarkedRows rows() const override;

    /// A material database is synchronised with, any other file is opened.
    void dropEvent(QDropEvent *event) override;

private:
    static Window::TableWindowTexts texts();

    // Whether the database's names are in m_materialNames now. If not, the user knows why.
    bool readDatabase();
    void takeNames();

    Error::TranslationTable m_table;
    bool m_hasTable = false;
    QString m_databaseFile;
    QStringList m_materialNames;
    QSet<QString> m_newNames; // those that the last synchronisation added
};

} // namespace mat
