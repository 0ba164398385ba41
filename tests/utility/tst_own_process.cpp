#include "nvx_util/own_process.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_own_process : public QObject
{
    Q_OBJECT

private slots:
    void theVariablesOfQtAreKnown_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("expected");
        for (const char *name :
             {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QPA_GENERIC_PLUGINS",
              "QT_QPA_PLATFORMTHEME", "QT_QPA_FONTDIR", "QT_STYLE_OVERRIDE", "QT_LOAD_TESTABILITY",
              "QT_OPENGL_DLL", "QT_IM_MODULE", "QML2_IMPORT_PATH", "QML_IMPORT_PATH", "qt_plugin_path"})
            QTest::newRow(name) << QString::fromLatin1(name) << true;
        QTest::newRow("the path of a file with rules for logging") << u"QT_LOGGING_CONF"_s << true;
        QTest::newRow("rules for logging") << u"QT_LOGGING_RULES"_s << false;
        QTest::newRow("logging to standard error") << u"QT_FORCE_STDERR_LOGGING"_s << false;
        QTest::newRow("logging to standard error, in small letters") << u"qt_force_stderr_logging"_s << false;
        for (const char *name : {"PATH", "QTDIR", "OSTRADE2017TEMP", "SQT_X", ""})
            QTest::addRow("'%s'", name) << QString::fromLatin1(name) << false;
    }

    void theVariablesOfQtAreKnown()
    {
        QFETCH(const QString, name);
        QTEST(Nvx::Util::isVariableOfQt(name), "expected");
    }
};

NVX_GUILESS_TEST(tst_own_process)
#include "tst_own_process.moc"
