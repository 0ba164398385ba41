#pragma once

#include "localization/locale_folders.h"
#include "run/reporter.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace util {

/// Lets time pass.
using Pause = std::function<void(std::chrono::milliseconds)>;

/// A piece of work for the translators, handed over on a share that both sides reach:
///
///     SHARE\NVX360\CODE\       the files of a language, both ways
///     SHARE\~cBuild\job\       "NVX360.job" asks for the work, "NVX360.done" says that it is done
///
/// where SHARE is the share's folder "pTrans". Nothing here fails for the caller; what goes wrong is logged.
class TranslationJob : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pollInterval = std::chrono::seconds(10);
    static constexpr int maxPolls = 200;

    /// shareFolder is the folder of the files, SHARE\NVX360\, and jobFolder the one of the job file; both are
    /// empty when there is no share. filePatterns name the files that come back.
    TranslationJob(const LocaleFolders &folders, const QString &shareFolder, const QString &jobFolder,
                   const QStringList &filePatterns, Reporter &reporter, Pause pause);

    /// Asks for the work. An answer to an earlier request is removed first.
    void writeJobFile();

    /// Puts the collected files of every language on the share, each replaced whole, and takes out those that
    /// are gone. A language whose collected files have no folder stays there as it is.
    void upload();

    /// Looks for the answer every pollInterval, and gives up after more than maxPolls looks.
    void waitUntilDone();

    /// Takes the translators' files of every language over, each replaced whole. A translation file that is
    /// not whole stays where it is.
    void download();

private:
    QString jobPath(const QString &suffix) const;
    void remove(const QString &path);
    void upload(const QString &source, const QString &target);
    void download(const QString &source, const QString &target);
    bool takeOver(const QString &source, const QString &target);

    LocaleFolders m_folders;
    QString m_shareFolder;
    QString m_jobFolder;
    QStringList m_filePatterns;
    Reporter &m_reporter;
    Pause m_pause;
};

} // namespace util
