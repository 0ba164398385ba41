#include "message_table_utility/error_message_table_utility.h"

#include "message_table_utility/message_rows.h"
#include "message_table_utility/message_table_file.h"
#include "message_table_utility/project_scan.h"
#include "scanner/error_visual_studio_project.h"
#include "synchronisation/message_table_synchronisation.h"
#include "translation/error_translation_table.h"
#include "translation/translation_kept_file.h"
#include "translation/translation_update.h"
#include "window/dialogs.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>

#include <algorithm>

using Window::RowMark;

namespace {

const QString iconFolder = QStringLiteral(":/ErrorTableUtility/images/");
const QString statusGap = QStringLiteral("   "); // between two statements in the status bar

auto obsoleteMessages(const Clt::MessageTable &table)
{
    return std::count_if(table.begin(), table.end(), [](const auto &entry) {
        return entry.second.state() == Clt::MessageState::Obsolete;
    });
}

} // namespace

MessageTableUtility::MessageTableUtility(Window::Dialogs &dialogs, QSettings &settings)
    : TableWindow(dialogs, settings, texts())
{
    setObjectName(QStringLiteral("MessageTableUtilityClass"));

    auto *synchronizing =
        new QAction(QIcon(iconFolder + QStringLiteral("synchronize.png")), tr("Synchronize..."), this);
    synchronizing->setObjectName(QStringLiteral("actionSynchronize"));
    synchronizing->setToolTip(tr("Synchronize with source code"));
    connect(synchronizing, &QAction::triggered, this, &MessageTableUtility::synchronize);
    addTableAction(synchronizing);

    auto *translating = new QAction(tr("Update Translation..."), this);
    translating->setObjectName(QStringLiteral("actionTranslate"));
    translating->setToolTip(tr("Update translation"));
    translating->setIconText(tr("tr"));
    connect(translating, &QAction::triggered, this, &MessageTableUtility::updateTranslation);
    addTableAction(translating);

    view().rowsModel().setMarkToolTip(RowMark::New, tr("Found in the sources, not reviewed yet"));
    view().rowsModel().setMarkToolTip(RowMark::Obsolete, tr("Not found in the sources any more"));
}

Window::TableWindowTexts MessageTableUtility::texts()
{
    Window::TableWindowTexts texts;
    texts.title = tr("Message Table Utility");
    texts.iconFolder = iconFolder;
    texts.headings = QStringList{tr("Process"), tr("Context"), tr("Tag"), tr("State")};
    texts.widths = {120, 360, 320};
    texts.openTitle = tr("Open Message Table");
    texts.saveTitle = tr("Save Message Table");
    texts.filter = QStringLiteral("*.xml");
    texts.notLoaded = tr("Could not load message table");
    texts.saved = tr("Table saved");
    texts.savedAs = tr("Table saved as %1");
    return texts;
}

void MessageTableUtility::clearTable()
{
    m_messages = Clt::MessageTable();
}

Window::Loading MessageTableUtility::loadTable(const QString &fileName)
{
    Window::WindowWork work(*this, tr("Open Message Table"),
                            tr("Loading message table \"%1\"...").arg(fileName));
    Error::MessageTableReading reading = Error::readMessageTableFile(fileName, work);
    if (reading.loading.outcome == Window::Loading::Outcome::Loaded)
        m_messages = std::move(reading.table);
    return reading.loading;
}

bool MessageTableUtility::saveTable(const QString &fileName)
{
    return m_messages.save(fileName);
}

Window::MarkedRows MessageTableUtility::rows() const
{
    return Error::rowsOf(m_messages);
}

void MessageTableUtility::synchronize()
{
    if (isBusy())
        return;
    const QString projectFile =
        chooseFileToOpen(tr("Open Visual Studio Project"), QStringLiteral("*.vcxproj"));
    if (projectFile.isEmpty())
        return;
    const Nvx::Util::Result<Scan::VisualStudioProject> project = Scan::readVisualStudioProject(projectFile);
    if (!project) {
        dialogs().warn(this, tr("Visual Studio Project Error"), tr("Could not parse %1").arg(projectFile));
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const std::optional<Error::ProjectScan> scan = scanShowingProgress(projectFile, *project);
    const qint64 milliseconds = timer.elapsed();
    if (!scan) {
        showStatus(tr("Synchronization cancelled, the table is as it was"));
        return;
    }
    if (!scan->errors.isEmpty())
        dialogs().warn(this, tr("Parser Error"), Error::scanErrorText(scan->errors));
    takeKeys(scan->keys, milliseconds);
}

std::optional<Error::ProjectScan>
MessageTableUtility::scanShowingProgress(const QString &projectFile, const Scan::VisualStudioProject &project)
{
    Window::WindowWork work(*this, tr("Parsing"), tr("Parsing source files from %1").arg(projectFile));
    const auto receive = [&](qsizetype files, qsizetype keys) {
        showStatus(tr("Found %1 keys").arg(keys));
        return work.report(files, project.sourceFiles.size());
    };
    Error::ProjectScan scan = Error::scanProject(projectFile, project, receive);
    if (work.isCancelled())
        return std::nullopt;
    return scan;
}

// Save is for tables that differ from their file, so it stays as it is when the sources brought nothing new.
void MessageTableUtility::takeKeys(const Scan::FoundKeys &keys, qint64 milliseconds)
{
    const Window::WaitCursor wait;
    const auto obsoleteBefore = obsoleteMessages(m_messages);
    const Synchronisation::KeyCounts counts = Synchronisation::synchronizeKeys(m_messages, keys);
    if (counts.added > 0 || obsoleteMessages(m_messages) != obsoleteBefore)
        setUnsaved();
    showTable();
    const QString found = counts.found == 0 ? tr("Found 0 keys")
                                            : tr("Found %1 keys (%2 new, %3 existing, and %4 obsolete)")
                                                  .arg(counts.found)
                                                  .arg(counts.added)
                                                  .arg(counts.existing)
                                                  .arg(counts.obsolete);
    const QString seconds = QLocale().toString(static_cast<double>(milliseconds) / 1000, 'f', 1);
    showStatus(found + statusGap + tr("Elapsed time: %1 sec").arg(seconds));
}

Window::Loading MessageTableUtility::loadTranslation(Error::TranslationTable &table, const QString &fileName)
{
    using Outcome = Window::Loading::Outcome;
    Window::WindowWork work(*this, tr("Update translation"), tr("Reading %1").arg(fileName));
    Window::ProgressFile file(fileName, work);
    const bool isLoaded = table.load(file);
    if (work.isCancelled())
        return {Outcome::Cancelled, QString()};
    if (!isLoaded)
        return {Outcome::Failed, table.errorString()};
    return {};
}

void MessageTableUtility::updateTranslation()
{
    if (isBusy())
        return;
    const QString file = chooseFileToOpen(tr("Open Qt Translation File"), QStringLiteral("*.ts"));
    if (file.isEmpty())
        return;
    Error::TranslationTable table;
    const Window::Loading loading = loadTranslation(table, file);
    if (loading.outcome == Window::Loading::Outcome::Cancelled) {
        showStatus(tr("Update cancelled, the translation is as it was"));
        return;
    }
    if (loading.outcome == Window::Loading::Outcome::Failed) {
        dialogs().warn(this, tr("Qt Translation File Error"),
                       tr("Could not load '%1': %2").arg(file, loading.reason));
        return;
    }
    const Window::WaitCursor wait;
    const int added = Error::addMessageTexts(table, m_messages);
    if (!table.save(file)) {
        showStatus(tr("Could not save %1").arg(file));
        return;
    }
    QString text = tr("Added %1 new strings to %2").arg(QString::number(added), file);
    if (!table.keptFile().isEmpty())
        text += statusGap + Error::keptFileText(QFileInfo(table.keptFile()).fileName());
    showStatus(text);
}
