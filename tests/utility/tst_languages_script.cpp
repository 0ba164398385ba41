// The scripts read the table of languages from its header; this compares what they read with the table
// itself.

#include "nvx_util/languages.h"
#include "support/checkout.h"
#include "support/test_class.h"

#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::Language;

class tst_languages_script : public QObject
{
    Q_OBJECT

private slots:
    void scriptPrintsTheTable()
    {
        QString expected;
        for (const Language &language : Nvx::Util::languages)
            expected += u"%1\t%2\t%3\t%4\n"_s.arg(language.locale, QString::fromLatin1(language.name),
                                                  language.translatorsCode, language.installerName);
        QCOMPARE(printed({u"locale"_s, u"name"_s, u"translatorsCode"_s, u"installerName"_s}), expected);
    }

    void scriptLeavesOutTheLanguageOfTheSources()
    {
        QStringList locales = printed({u"--translated"_s, u"locale"_s}).split(u'\n', Qt::SkipEmptyParts);
        locales.prepend(Nvx::Util::sourceLanguage.locale);
        QCOMPARE(locales, printed({u"locale"_s}).split(u'\n', Qt::SkipEmptyParts));
    }

private:
    // The output of the script; empty if it fails.
    static QString printed(const QStringList &arguments)
    {
        QProcess script;
        script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        script.start(QStringLiteral(NVX_PYTHON),
                     QStringList{u"-B"_s, inCheckout(NVX_LANGUAGES_SCRIPT)} + arguments);
        if (!script.waitForFinished(60'000) || script.exitCode() != 0)
            return {};
        return QString::fromUtf8(script.readAllStandardOutput());
    }
};

NVX_GUILESS_TEST(tst_languages_script)
#include "tst_languages_script.moc"
