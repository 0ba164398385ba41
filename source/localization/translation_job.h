#pragma once

#include "localization/locale_folders.h"
#include "run/reporter.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace Nvx::Util {
struct Language;
}

namespace Localization {

struct AnswerContext;

/// The contents of the job file for the translators: UTF-8, one line per source, "enu\" and its name, each
/// ended by a line feed.
QByteArray jobFile(const QStringList &sourceNames);

/// Waits for a time.
using Pause = std::function<void(std::chrono::milliseconds)>;

/// A job for the translators, on a share that both sides can access. SHARE is the share's folder "pTrans":
///
///     SHARE\NVX360\CODE\       the files of a language, in both directions
///     SHARE\~cBuild\job\       "NVX360.job" is the request, "NVX360.done" means that the job is done
///
/// Others can write to the share, so no link in it is followed. Failures are logged and not returned.
class TranslationJob : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pollInterval = std::chrono::seconds(10);
    static constexpr int maxPolls = 200;
    static constexpr qsizetype maxFiles = 200;                      ///< that are downloaded for a language
    static constexpr qint64 maxFileSize = qint64{64} * 1024 * 1024; ///< of a file that is downloaded

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

    /// Copies the translators' files of every language into its locale folder, except translation files that
    /// are incomplete or that reasonToRefuse refuses, and files of more than maxFileSize.
    void download();

    /// How many translation files of a locale the last download refused.
    int refusedFiles(const QString &locale) const { return m_refused.value(locale); }

private:
    QString jobPath(const QString &suffix) const;
    void remove(const QString &path);
    void upload(const QString &source, const QString &target);
    bool isOnShare(const QString &path, int levels);
    void download(const Nvx::Util::Language &language);
    bool downloadFile(const QString &source, const QString &target, const QString &locale);
    QString reasonAgainst(const QByteArray &answer, const QString &target, const QString &locale) const;

    LocaleFolders m_folders;
    QString m_shareFolder;
    QString m_jobFolder;
    QStringList m_filePatterns;
    Nvx::Run::Reporter &m_reporter;
    Pause m_pause;
    QMap<QString, int> m_refused; // by locale
};

} // namespace Localization
