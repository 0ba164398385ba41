#pragma once

#include <QWizardPage>

class cfg_utilitys;
class QComboBox;

/// The first page of a run without a mode: greets, and offers the languages of the interface.
class WelcomePage final : public QWizardPage
{
    Q_OBJECT

public:
    /// Selects the engine's current language; when it is none of those offered, nothing is selected. The page
    /// that follows has the id followingPage.
    WelcomePage(cfg_utilitys &engine, int followingPage, QWidget *parent = nullptr);

    /// The page that follows, as long as the language stays. When another one is selected, the engine is
    /// switched to it, the event loop ends with languageChanged, and the answer is -1: the pages are to be
    /// built anew.
    int nextId() const override;

private:
    void offerLanguages();

    cfg_utilitys &m_engine;
    const int m_followingPage;
    QComboBox *m_languages;
};
