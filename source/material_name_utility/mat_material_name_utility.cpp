#include "material_name_utility/mat_material_name_utility.h"

#include "material_name_utility/material_files.h"
#include "material_name_utility/material_rows.h"
#include "materials/mat_translation_table.h"
#include "translation/translation_kept_file.h"
#include "window/dialogs.h"
#include "window/dropped_file.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>

using Window::Loading;
using Window::RowMark;

namespace mat {

namespace {

const QString iconFolder = QStringLiteral(":/MaterialNameUtility/images/");

bool isDatabase(const QString &fileName)
{
    return QFileInfo(fileName).suffix().compare(QLatin1String("mdb"), Qt::CaseInsensitive) == 0;
}

} // namespace

MaterialNameUtility::MaterialNameUtility(Window::Dialogs &dialogs, QSettings &settings)
    : TableWindow(dialogs, settings, texts())
{
    setObjectName(QStringLiteral("MaterialNameUtilityClass"));

    auto *synchronizing =
        new QAction(QIcon(iconFolder + QStringLiteral("synchronize.png")), tr("Synchronize..."), this);
    synchronizing->setObjectName(QStringLiteral("actionSynchronize"));
    synchronizing->setToolTip(tr("Synchronize with material database"));
    connect(synchronizing, &QAction::triggered, this, [this] { synchronize(); });
    addTableAction(synchronizing);

    Window::MarkedTableModel &model = view().rowsModel();
    model.setMarkWord(RowMark::New, tr("New"));
    model.setMarkWord(RowMark::Obsolete, tr("Obsolete"));
    model.setMarkToolTip(RowMark::New, tr("New in the material database, to be translated"));
    model.setMarkToolTip(RowMark::Obsolete,
                         tr("Obsolete: was not found in the material database; the translation is kept"));
}

Window::TableWindowTexts MaterialNameUtility::texts()
{
    Window::TableWindowTexts texts;
    texts.title = tr("Material Name Utility");
    texts.iconFolder = iconFolder;
    texts.headings = QStringList{tr("Name"), tr("Translation")};
    texts.widths = {440};
    texts.openTitle = tr("Open Translation Table");
    texts.saveTitle = tr("Save Translation Table");
    texts.filter = QStringLiteral("*.ts");
    texts.notLoaded = tr("Could not load translation table");
    texts.created = tr("Created new translation table");
    texts.opened = tr("Opened %1");
    texts.saved = tr("Saved translation table");
    texts.savedAs = tr("Saved translation table as %1");
    return texts;
}

void MaterialNameUtility::clearTable()
{
    m_table = Error::TranslationTable();
    m_newNames.clear();
    m_hasTable = true;
}

Loading MaterialNameUtility::loadTable(const QString &fileName)
{
    Window::WindowWork work(*this, tr("Open Translation Table"), tr("Reading %1").arg(fileName));
    TableReading reading = readTableFile(fileName, work);
    if (reading.loading.outcome == Loading::Outcome::Loaded) {
        m_table = std::move(reading.table);
        m_newNames.clear();
        m_hasTable = true;
    }
    return reading.loading;
}

bool MaterialNameUtility::saveTable(const QString &fileName)
{
    return m_table.save(fileName);
}

QString MaterialNameUtility::savedNote() const
{
    const QString kept = m_table.keptFile();
    return kept.isEmpty() ? QString() : Error::keptFileText(QFileInfo(kept).fileName());
}

Window::MarkedRows MaterialNameUtility::rows() const
{
    return rowsOf(m_table, m_newNames);
}

void MaterialNameUtility::synchronize(const QString &databaseFile)
{
    if (isBusy())
        return;
    QString chosen = databaseFile;
    if (chosen.isEmpty())
        chosen = chooseFileToOpen(tr("Open Material Database"), QStringLiteral("*.mdb"));
    if (chosen.isEmpty())
        return;
    m_databaseFile = QDir::toNativeSeparators(QFileInfo(chosen).absoluteFilePath());
    memory().rememberFolderOf(m_databaseFile);
    if (readDatabase())
        takeNames();
}

bool MaterialNameUtility::readDatabase()
{
    Loading loading;
    {
        Window::WindowWork work(*this, tr("Open Material Database"), tr("Reading %1").arg(m_databaseFile));
        DatabaseReading reading = readDatabaseFile(m_databaseFile, work);
        loading = reading.loading;
        if (loading.outcome == Loading::Outcome::Loaded)
            m_materialNames = std::move(reading.names);
    }
    if (loading.outcome == Loading::Outcome::Cancelled)
        showStatus(tr("Synchronization cancelled, the table is as it was"));
    if (loading.outcome == Loading::Outcome::Failed) {
        showStatus(QStringLiteral("%1: %2").arg(m_databaseFile, loading.reason));
        dialogs().warn(this, tr("Load Material Database"), tr("Cannot read material database"));
    }
    return loading.outcome == Loading::Outcome::Loaded;
}

void MaterialNameUtility::takeNames()
{
    const Window::WaitCursor wait;
    if (!m_hasTable)
        newTable();
    const NameSynchronization result = synchronizeNames(m_table, m_materialNames);
    m_newNames = QSet<QString>(result.added.begin(), result.added.end());
    if (result.isChanged)
        setUnsaved();
    enableSave();
    showTable();
    showStatus(tr("Found %1 names (%2 new, %3 existing, and %4 obsolete)")
                   .arg(result.counts.found)
                   .arg(result.counts.added)
                   .arg(result.counts.existing())
                   .arg(result.counts.obsolete));
}

// The program that the file comes from waits until this returns, so boxes come afterwards.
void MaterialNameUtility::dropEvent(QDropEvent *event)
{
    const QString file = Window::droppedFile(event->mimeData());
    if (!isDatabase(file)) {
        TableWindow::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, file] { synchronize(file); }, Qt::QueuedConnection);
}

} // namespace mat
