#pragma once

#include <QWizardPage>

class cfg_utilitys;
class QComboBox;

/// The first page of a run without a mode, with the choice of the interface language.
class WelcomePage final : public QWizardPage
{
    Q_OBJECT

public:
    /// Selects the engine's current language, or nothing if that is not in the list. followingPage is the id
    /// of the next page.
    WelcomePage(cfg_utilitys &engine, int followingPage, QWidget *parent = nullptr);

    /// The next page, if the language has not changed. If another one is selected, switches the engine to it,
    /// ends the event loop with languageChanged and returns -1: the pages are to be built again.
    int nextId() const override;

private:
    void offerLanguages();

    cfg_utilitys &m_engine;
    const int m_followingPage;
    QComboBox *m_languages;
};
