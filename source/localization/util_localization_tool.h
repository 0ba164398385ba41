#pragma once

#include "localization/localization_settings.h"
#include "localization/translation_job.h"
#include "run/step_context.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace util {

/// Renews the product's translations: brings the English translation files in step with the sources, hands
/// them to the translators on a share, waits for the answer and compiles what comes back. It blocks while it
/// runs, for more than half an hour when the translators do not answer. docs/localization.md tells how to set
/// it up.
class util_localization_tool : public QObject
{
    Q_OBJECT

public:
    /// Reads "localization.xml" in the executable's folder.
    explicit util_localization_tool(const StepContext &context, QObject *parent = nullptr);
    ~util_localization_tool() override;

    /// Does all of it, in order. Each step logs what it does and what fails; none stops the others. Without a
    /// root folder every step fails and touches nothing.
    void runScript();

private:
    LocalizationSettings readSettings() const;
    bool hasRoot() const { return !m_rootFolder.isEmpty(); }
    QString inRoot(const QString &relativePath) const;
    QString inLocale(QLatin1StringView locale, const QString &name) const;

    void scanSources();
    void updateEnglishSources();
    void update(const QString &project, const QString &name);
    void updateMaterialNames();
    void runTranslationJob();
    void compile();
    void release(QLatin1StringView locale, const QString &translations, const QString &compiled);
    void copyRibbon();

    QString m_rootFolder;  ///< of sources and locale folders, an existing one; empty when there is none
    QString m_shareFolder; ///< of the files on the share; empty when no share is named
    std::unique_ptr<TranslationJob> m_job;
    QStringList m_filePatterns;

    StepContext m_context;
    QString m_toolsFolder;
};

} // namespace util
