#include "cfg_wizard/welcome_page.h"

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/start_up.h"
#include "nvx_util/languages.h"
#include "nvx_util/product.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

// Locales are compared without case, because the command line accepts any spelling.
int positionOf(const QComboBox &languages, const QString &code)
{
    return languages.findData(code, Qt::UserRole, Qt::MatchFixedString);
}

} // namespace

WelcomePage::WelcomePage(cfg_utilitys &engine, int followingPage, QWidget *parent)
    : QWizardPage(parent)
    , m_engine(engine)
    , m_followingPage(followingPage)
    , m_languages(new QComboBox(this))
{
    setObjectName(u"WelcomePage"_s);
    setTitle(tr("Welcome"));
    setSubTitle(u" "_s);

    auto *intro = new QLabel(tr("This wizard will configure Velmora %1 %2 for your system.")
                                 .arg(Nvx::Product::name, Nvx::Product::release),
                             this);
    intro->setObjectName(u"m_intro"_s);
    intro->setWordWrap(true);

    auto *changeLanguage = new QLabel(tr("Change language"), this);
    changeLanguage->setObjectName(u"m_changeLanguage"_s);
    changeLanguage->setBuddy(m_languages);
    m_languages->setObjectName(u"m_languages"_s);
    m_languages->setAccessibleName(changeLanguage->text());
    offerLanguages();

    auto *layout = new QGridLayout(this);
    layout->addWidget(intro, 0, 0, 1, 3);
    layout->addWidget(new QLabel(u" "_s, this), 1, 0);
    layout->addWidget(new QLabel(u" "_s, this), 2, 0);
    layout->addWidget(changeLanguage, 3, 0);
    layout->addWidget(m_languages, 3, 1);
    layout->setColumnStretch(2, 1);
    layout->setRowStretch(4, 1);
}

void WelcomePage::offerLanguages()
{
    for (const Nvx::Util::Language &language : Nvx::Util::languages)
        m_languages->addItem(tr(language.name), QString(language.locale));
    m_languages->setCurrentIndex(positionOf(*m_languages, m_engine.state().currentLocale));
}

int WelcomePage::nextId() const
{
    const int position = positionOf(*m_languages, m_engine.state().currentLocale);
    const int selection = m_languages->currentIndex();
    if (selection == position)
        return m_followingPage;

    m_engine.changeLanguage(m_languages->itemData(selection).toString());
    QCoreApplication::exit(Nvx::Wizard::languageChanged);
    return -1;
}
