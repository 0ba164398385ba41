#include "support/test_class.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QTest>
#include <QWizard>

using namespace Qt::Literals::StringLiterals;

/// Runs on a screen with a scale factor of 2.
class tst_pictures : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private slots:
    void everyPictureHasItsSize_data();
    void everyPictureHasItsSize();
    void anIconHasTwiceThePixelsOnADenseScreen_data();
    void anIconHasTwiceThePixelsOnADenseScreen();
    void theHeaderIsAsWideAsTheBanner();

private:
    static void addPictures();
};

void tst_pictures::addPictures()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    QTest::newRow("logo") << u":/images/logo1.png"_s << QSize(118, 44);
    QTest::newRow("wizard's icon") << u":/images/window.png"_s << QSize(32, 32);
    QTest::newRow("help") << u":/help/help.png"_s << QSize(24, 24);

    const QString messages = u":/ErrorTableUtility/images/"_s;
    const QString materials = u":/MaterialNameUtility/images/"_s;
    for (const char *name : {"new", "open", "save", "synchronize"})
        QTest::addRow("messages: %s", name) << messages + QLatin1String(name) + ".png"_L1 << QSize(24, 24);
    for (const char *name : {"new", "open", "save", "saveas", "exit", "synchronize"})
        QTest::addRow("materials: %s", name) << materials + QLatin1String(name) + ".png"_L1 << QSize(24, 24);
    QTest::newRow("messages' icon") << messages + u"window.png"_s << QSize(32, 32);
    QTest::newRow("materials' icon") << materials + u"window.png"_s << QSize(32, 32);
}

void tst_pictures::everyPictureHasItsSize_data()
{
    addPictures();
    QTest::newRow("banner") << u":/image/banner.png"_s << QSize(720, 64);
}

void tst_pictures::everyPictureHasItsSize()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QCOMPARE(QImage(path).size(), size);
}

void tst_pictures::anIconHasTwiceThePixelsOnADenseScreen_data()
{
    addPictures();
}

void tst_pictures::anIconHasTwiceThePixelsOnADenseScreen()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QPixmap picture = QIcon(path).pixmap(size);
    QCOMPARE(picture.size(), 2 * size);
    QCOMPARE(picture.deviceIndependentSize(), QSizeF(size));
}

// The wizard's header has the banner's size in pixels, so a banner for dense screens would double it.
void tst_pictures::theHeaderIsAsWideAsTheBanner()
{
    QWizard wizard;
    wizard.setWizardStyle(QWizard::ModernStyle);
    wizard.setPixmap(QWizard::BannerPixmap, QPixmap(u":/image/banner.png"_s));
    auto *page = new QWizardPage;
    page->setTitle(u"A title"_s);
    page->setSubTitle(u" "_s);
    wizard.addPage(page);
    wizard.show();
    QCOMPARE(wizard.width(), 720);
}

NVX_TEST(tst_pictures)

#include "tst_pictures.moc"
