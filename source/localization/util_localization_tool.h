#pragma once

#include "localization/localization_settings.h"
#include "localization/translation_job.h"
#include "run/step_context.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace util {

/// Updates the product's translations: updates the English translation files from the sources, puts them on a
/// share for the translators, waits until they are done and compiles the result. It blocks, for more than
/// half an hour if the translators do not finish. docs/localization.md describes how to set it up.
class util_localization_tool : public QObject
{
    Q_OBJECT

public:
    /// Reads "localization.xml" in the executable's folder.
    explicit util_localization_tool(const Nvx::Run::StepContext &context, QObject *parent = nullptr);
    ~util_localization_tool() override;

    /// Runs all steps in order. Each step logs what it does and what fails; no failure stops the run. Without
    /// a root folder every step fails and touches nothing.
    void runScript();

private:
    Localization::LocalizationSettings readSettings() const;
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
    void summarize();

    QString m_rootFolder;  ///< existing folder of sources and locale folders, or empty
    QString m_shareFolder; ///< folder of the files on the share; empty without a share
    std::unique_ptr<Localization::TranslationJob> m_job;
    QStringList m_filePatterns;

    Nvx::Run::StepContext m_context;
    QString m_toolsFolder;
};

} // namespace util
