#pragma once

#include "localization/locale_folders.h"
#include "run/reporter.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace Localization {

/// Waits for a time.
using Pause = std::function<void(std::chrono::milliseconds)>;

/// A job for the translators, on a share that both sides can access. SHARE is the share's folder "pTrans":
///
///     SHARE\NVX360\CODE\       the files of a language, in both directions
///     SHARE\~cBuild\job\       "NVX360.job" is the request, "NVX360.done" means that the job is done
///
/// Failures are logged and not returned.
class TranslationJob : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pollInterval = std::chrono::seconds(10);
    static constexpr int maxPolls = 200;

    /// shareFolder is SHARE\NVX360\ and jobFolder is SHARE\~cBuild\job\; both are empty without a share.
    /// filePatterns match the files to download.
    TranslationJob(const LocaleFolders &folders, const QString &shareFolder, const QString &jobFolder,
                   const QStringList &filePatterns, Nvx::Run::Reporter &reporter, Pause pause);

    /// Writes the request, and first removes the ".done" file of an earlier one.
    void writeJobFile();

    /// Copies the collected files of every language to the share, and deletes those there that are no longer
    /// collected. The files of a language without a folder of collected files stay as they are.
    void upload();

    /// Looks for the ".done" file every pollInterval, and gives up after more than maxPolls attempts.
    void waitUntilDone();

    /// Copies the translators' files of every language into its locale folder, except incomplete translation
    /// files.
    void download();

private:
    QString jobPath(const QString &suffix) const;
    void remove(const QString &path);
    void upload(const QString &source, const QString &target);
    void download(const QString &source, const QString &target);
    bool downloadFile(const QString &source, const QString &target);

    LocaleFolders m_folders;
    QString m_shareFolder;
    QString m_jobFolder;
    QStringList m_filePatterns;
    Nvx::Run::Reporter &m_reporter;
    Pause m_pause;
};

} // namespace Localization
