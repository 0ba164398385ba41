#include "material_name_utility/material_name_utility.h"

#include "material_name_utility/material_rows.h"
#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "window/dialogs.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;
using Translation::TranslationTable;
using Window::RowMark;

namespace mat {

namespace {

const QString iconFolder = u":/MaterialNameUtility/images/"_s;

bool isDatabase(const QString &fileName)
{
    return QFileInfo(fileName).suffix().compare("mdb"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

MaterialNameUtility::MaterialNameUtility(Window::Dialogs &dialogs, QSettings &settings)
    : TableWindow(dialogs, settings, texts())
{
    setObjectName(u"MaterialNameUtilityClass"_s);

    auto *synchronizing = new QAction(QIcon(iconFolder + u"synchronize.png"_s), tr("Synchronize..."), this);
    synchronizing->setObjectName(u"actionSynchronize"_s);
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
    texts.filter = u"*.ts"_s;
    texts.loading = tr("Reading %1");
    texts.notLoaded = tr("Could not load translation table");
    texts.created = tr("Created new translation table");
    texts.opened = tr("Opened %1");
    texts.saved = tr("Saved translation table");
    texts.savedAs = tr("Saved translation table as %1");
    return texts;
}

void MaterialNameUtility::clearTable()
{
    m_table = TranslationTable();
    m_newNames.clear();
    m_hasTable = true;
}

Outcome MaterialNameUtility::loadTable(const QString &fileName, Window::Progress &progress)
{
    Result<TranslationTable> table =
        Window::readFile(fileName, QIODevice::ReadOnly, progress, Materials::readTable);
    if (!table)
        return Failure{table.error()};
    m_table = *std::move(table);
    m_newNames.clear();
    m_hasTable = true;
    return Done();
}

bool MaterialNameUtility::saveTable(const QString &fileName)
{
    return m_table.save(fileName);
}

Window::MarkedRows MaterialNameUtility::rows() const
{
    return MaterialWindow::materialRows(m_table, m_newNames);
}

void MaterialNameUtility::synchronize(const QString &databaseFile)
{
    if (isBusy())
        return;
    QString chosen = databaseFile;
    if (chosen.isEmpty())
        chosen = chooseFileToOpen(tr("Open Material Database"), u"*.mdb"_s);
    if (chosen.isEmpty())
        return;
    m_databaseFile = QDir::toNativeSeparators(QFileInfo(chosen).absoluteFilePath());
    memory().rememberFolderOf(m_databaseFile);
    if (readDatabase())
        synchronizeWithNames();
}

bool MaterialNameUtility::readDatabase()
{
    const auto read = [this](Window::Progress &progress) {
        return Window::readFile(m_databaseFile, QIODevice::ReadOnly, progress,
                                [](QIODevice &device) { return Materials::readMaterialNames(device); });
    };
    const std::optional<Result<QStringList>> names =
        withProgress(tr("Open Material Database"), tr("Reading %1").arg(m_databaseFile), read);
    if (!names) {
        showStatus(tr("Synchronization cancelled; the table is unchanged"));
        return false;
    }
    if (!*names) {
        showStatus(u"%1: %2"_s.arg(m_databaseFile, names->error()));
        dialogs().warn(this, tr("Load Material Database"), tr("Cannot read material database"));
        return false;
    }
    m_materialNames = **names;
    return true;
}

void MaterialNameUtility::synchronizeWithNames()
{
    const Window::WaitCursor wait;
    if (!m_hasTable)
        newTable();
    const Materials::NameSynchronization result = Materials::synchronizeNames(m_table, m_materialNames);
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

// The program that the file is dragged from waits until this returns, so message boxes must come later.
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
