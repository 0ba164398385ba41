#include "message_table_utility/error_message_table_utility.h"

#include "message_table_utility/adoption.h"
#include "message_table_utility/message_rows.h"
#include "message_table_utility/message_table_file.h"
#include "message_table_utility/project_scan.h"
#include "scanner/error_visual_studio_project.h"
#include "synchronisation/message_table_synchronisation.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"
#include "window/dialogs.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;
using Window::RowMark;

namespace {

const QString iconFolder = u":/ErrorTableUtility/images/"_s;
const QString statusGap = u"   "_s; // between two messages in the status bar

} // namespace

MessageTableUtility::MessageTableUtility(Window::Dialogs &dialogs, QSettings &settings)
    : TableWindow(dialogs, settings, texts())
{
    setObjectName(u"MessageTableUtilityClass"_s);

    auto *synchronizing = new QAction(QIcon(iconFolder + u"synchronize.png"_s), tr("Synchronize..."), this);
    synchronizing->setObjectName(u"actionSynchronize"_s);
    synchronizing->setToolTip(tr("Synchronize with source code"));
    connect(synchronizing, &QAction::triggered, this, &MessageTableUtility::synchronize);
    addTableAction(synchronizing);

    auto *translating = new QAction(tr("Update Translation..."), this);
    translating->setObjectName(u"actionTranslate"_s);
    translating->setToolTip(tr("Update translation"));
    translating->setIconText(tr("tr"));
    connect(translating, &QAction::triggered, this, &MessageTableUtility::updateTranslation);
    addTableAction(translating);

    auto *file = findChild<QMenu *>(u"menuFile"_s);
    file->addSeparator();
    file->addActions({synchronizing, translating});

    makeEditMenu();
    makePanel();
    makeFindings();
    makeFindDialog();
    connectStore();

    view().rowsModel().setMarkToolTip(RowMark::New, tr("Found in the sources, not reviewed yet"));
    view().rowsModel().setMarkToolTip(RowMark::Obsolete, tr("No longer found in the sources"));
}

Window::TableWindowTexts MessageTableUtility::texts()
{
    Window::TableWindowTexts texts;
    texts.title = tr("Message Table Utility");
    texts.iconFolder = iconFolder;
    texts.headings = QStringList{tr("Process"), tr("Context"), tr("Tag"), tr("State")};
    texts.widths = {110, 280, 250};
    texts.size = {1160, 680};
    texts.openTitle = tr("Open Message Table");
    texts.saveTitle = tr("Save Message Table");
    texts.filter = u"*.xml"_s;
    texts.loading = tr("Loading message table \"%1\"...");
    texts.notLoaded = tr("Could not load message table");
    texts.saved = tr("Table saved");
    texts.savedAs = tr("Table saved as %1");
    return texts;
}

void MessageTableUtility::clearTable()
{
    m_store.reset({});
    hideFindings();
}

Outcome MessageTableUtility::loadTable(const QString &fileName, Window::Progress &progress)
{
    Result<Clt::MessageTable> table = MessageWindow::readMessageTableFile(fileName, progress);
    if (!table)
        return Failure{table.error()};
    m_store.reset(*std::move(table));
    hideFindings();
    return Done();
}

QString MessageTableUtility::lossBySaving() const
{
    const int unsaved = m_store.status().unsaved;
    return unsaved == 0 ? QString()
                        : tr("Messages with a title or an action that is not saved with their severity: %L1")
                              .arg(unsaved);
}

bool MessageTableUtility::saveTable(const QString &fileName)
{
    return m_store.save(fileName);
}

Window::MarkedRows MessageTableUtility::rows() const
{
    return MessageWindow::messageRows(messages());
}

void MessageTableUtility::synchronize()
{
    if (isBusy())
        return;
    const QString projectFile = chooseFileToOpen(tr("Open Visual Studio Project"), u"*.vcxproj"_s);
    if (projectFile.isEmpty())
        return;
    const Nvx::Util::Result<Scan::VisualStudioProject> project = Scan::readVisualStudioProject(projectFile);
    if (!project) {
        dialogs().warn(this, tr("Visual Studio Project Error"), tr("Could not parse %1").arg(projectFile));
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const std::optional<MessageWindow::ProjectScan> scan = scanShowingProgress(projectFile, *project);
    const qint64 milliseconds = timer.elapsed();
    if (!scan) {
        showStatus(tr("Synchronization cancelled; the table is unchanged"));
        return;
    }
    if (!scan->errors.isEmpty() || !project->notes.isEmpty())
        dialogs().warn(this, tr("Parser Error"), MessageWindow::scanErrorText(scan->errors, project->notes));
    synchronizeWith(scan->keys, milliseconds);
}

std::optional<MessageWindow::ProjectScan>
MessageTableUtility::scanShowingProgress(const QString &projectFile, const Scan::VisualStudioProject &project)
{
    const auto scan = [&](Window::Progress &progress) {
        return MessageWindow::scanProject(project, [&](qsizetype files, qsizetype keys) {
            showStatus(tr("Found %1 keys").arg(keys));
            return progress.report(files, project.sources.size());
        });
    };
    return withProgress(tr("Parsing"), tr("Parsing source files from %1").arg(projectFile), scan);
}

// Save is enabled only if the table changed.
void MessageTableUtility::synchronizeWith(const Scan::FoundKeys &keys, qint64 milliseconds)
{
    const Window::WaitCursor wait;
    Clt::MessageTable table = messages();
    const Synchronisation::KeyCounts counts = Synchronisation::synchronizeKeys(table, keys);
    if (counts.added > 0 || counts.becameObsolete > 0)
        m_store.replaceTable(tr("Synchronize..."), std::move(table));
    else
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

std::optional<Outcome> MessageTableUtility::loadTranslation(Translation::TranslationTable &table,
                                                            const QString &fileName)
{
    const auto load = [&](Window::Progress &progress) -> Outcome {
        Window::ProgressFile file(fileName, progress);
        if (!table.load(file))
            return Failure{table.errorString()};
        return Done();
    };
    return withProgress(tr("Update translation"), tr("Reading %1").arg(fileName), load);
}

void MessageTableUtility::updateTranslation()
{
    if (isBusy())
        return;
    const QString file = chooseFileToOpen(tr("Open Qt Translation File"), u"*.ts"_s);
    if (file.isEmpty())
        return;
    Translation::TranslationTable table;
    const std::optional<Outcome> loaded = loadTranslation(table, file);
    if (!loaded) {
        showStatus(tr("Update cancelled; the translation is unchanged"));
        return;
    }
    if (!*loaded) {
        dialogs().warn(this, tr("Qt Translation File Error"),
                       tr("Could not load '%1': %2").arg(file, loaded->error()));
        return;
    }
    const int added = Translation::addMessageTexts(table, messages());
    const int adoptable = MessageWindow::adoptableTranslations(table);
    if (adoptable > 0 &&
        dialogs().confirm(this, tr("Update translation"),
                          tr("Untranslated strings with a translation in another context: %L1\n\nTake these "
                             "translations over? The strings stay unfinished.")
                              .arg(adoptable)))
        MessageWindow::adoptTranslations(table);
    const Window::WaitCursor wait;
    if (!table.save(file)) {
        showStatus(tr("Could not save %1").arg(file));
        return;
    }
    showStatus(withBackupNote(tr("Added %1 new strings to %2").arg(QString::number(added), file),
                              table.backupFile()));
    showFindings(MessageWindow::translationFindings(table, file, messages()));
}
