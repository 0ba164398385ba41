#include "line_window.h"
#include "window/window_program.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class tst_window_program : public QObject
{
    Q_OBJECT

private slots:
    // Protects the settings of the user who runs the tests. On Windows the tests have their own machine.
    void initTestCase()
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    }

    void namedFileIsShownUntilTheProgramEnds()
    {
        const QString file = m_folder.path(u"lines.txt"_s);
        QVERIFY(writeBytes(file, "a\nb\n"));
        QByteArray program("program");
        QByteArray argument = QFile::encodeName(file);
        char *argv[] = {program.data(), argument.data(), nullptr};
        QString opened;
        QString version;
        bool isVisible = false;
        const auto make = [&](Window::Dialogs &dialogs, QSettings &settings) {
            auto window = std::make_unique<LineWindow>(dialogs, settings);
            QTimer::singleShot(200, window.get(), [&, window = window.get()] {
                opened = window->fileName();
                isVisible = window->isVisible();
                version = QApplication::applicationVersion();
                QApplication::exit(7);
            });
            return window;
        };
        const int result = Window::runWindowProgram(2, argv, u"LineUtility"_s, u"lineutility"_s, make);
        QCOMPARE(result, 7);
        QCOMPARE(opened, file);
        QVERIFY(isVisible);
        QVERIFY(!version.isEmpty());
        QCOMPARE(QCoreApplication::applicationName(), u"LineUtility"_s);
    }

private:
    TestFolder m_folder;
};

// The program creates its own application.
int main(int argc, char *argv[])
{
    tst_window_program test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window_program.moc"
