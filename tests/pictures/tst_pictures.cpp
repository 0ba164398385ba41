#include "support/test_class.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QTest>
#include <QWizard>

/// Runs on a screen with a scale factor of 2.
class tst_pictures : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private slots:
    void everyPictureIsThere_data();
    void everyPictureIsThere();
    void aDenseScreenHasTwiceThePixels_data();
    void aDenseScreenHasTwiceThePixels();
    void theBannerMakesAHeaderOfItsOwnSize();

private:
    static void addPictures();
};

void tst_pictures::addPictures()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    QTest::newRow("logo") << QStringLiteral(":/images/logo1.png") << QSize(118, 44);
    QTest::newRow("wizard's icon") << QStringLiteral(":/images/window.png") << QSize(32, 32);
    QTest::newRow("help") << QStringLiteral(":/help/help.png") << QSize(24, 24);

    const QString messages = QStringLiteral(":/ErrorTableUtility/images/");
    const QString materials = QStringLiteral(":/MaterialNameUtility/images/");
    for (const char *name : {"new", "open", "save", "synchronize"})
        QTest::addRow("messages: %s", name)
            << messages + QLatin1String(name) + QLatin1String(".png") << QSize(24, 24);
    for (const char *name : {"new", "open", "save", "saveas", "exit", "synchronize"})
        QTest::addRow("materials: %s", name)
            << materials + QLatin1String(name) + QLatin1String(".png") << QSize(24, 24);
    QTest::newRow("messages' icon") << messages + QStringLiteral("window.png") << QSize(32, 32);
    QTest::newRow("materials' icon") << materials + QStringLiteral("window.png") << QSize(32, 32);
}

void tst_pictures::everyPictureIsThere_data()
{
    addPictures();
    QTest::newRow("banner") << QStringLiteral(":/image/banner.png") << QSize(720, 64);
}

void tst_pictures::everyPictureIsThere()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QCOMPARE(QImage(path).size(), size);
}

void tst_pictures::aDenseScreenHasTwiceThePixels_data()
{
    addPictures();
}

void tst_pictures::aDenseScreenHasTwiceThePixels()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QPixmap picture = QIcon(path).pixmap(size);
    QCOMPARE(picture.size(), 2 * size);
    QCOMPARE(picture.deviceIndependentSize(), QSizeF(size));
}

// The wizard measures its header in the banner's pixels, so a denser banner would double the header.
void tst_pictures::theBannerMakesAHeaderOfItsOwnSize()
{
    QWizard wizard;
    wizard.setWizardStyle(QWizard::ModernStyle);
    wizard.setPixmap(QWizard::BannerPixmap, QPixmap(QStringLiteral(":/image/banner.png")));
    auto *page = new QWizardPage;
    page->setTitle(QStringLiteral("A title"));
    page->setSubTitle(QStringLiteral(" "));
    wizard.addPage(page);
    wizard.show();
    QCOMPARE(wizard.width(), 720);
}

NVX_TEST(tst_pictures)

#include "tst_pictures.moc"
