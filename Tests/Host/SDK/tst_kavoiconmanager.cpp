#include <kavoIconManager.h>
#include <kavoTestHost.h>

#include <QApplication>
#include <QDirIterator>
#include <QPainter>
#include <QPalette>
#include <QTest>

class tst_kavoIconManager : public QObject
{
    Q_OBJECT

private slots:
    void everyDrawingIsAnIconOfSomeInk_data();
    void everyDrawingIsAnIconOfSomeInk();
    void iconsFollowThePalette();
    void disabledIconsTakeTheDisabledColour();
    void aVariantThatDoesNotExistGivesNoIcon();
    void anUnknownKeyGivesANullIcon();
};

static QColor strongestColor(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    const QImage image = icon.pixmap(32, mode).toImage();
    QColor strongest(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > strongest.alpha())
                strongest = image.pixelColor(x, y);
        }
    }
    return strongest;
}

static void setTextColor(QPalette::ColorGroup group, const QColor &color)
{
    QPalette palette = QApplication::palette();
    palette.setColor(group, QPalette::WindowText, color);
    QApplication::setPalette(palette);
}

void tst_kavoIconManager::everyDrawingIsAnIconOfSomeInk_data()
{
    QTest::addColumn<QString>("key");
    QDirIterator files(QStringLiteral(":/kavo/icons"));
    while (files.hasNext()) {
        files.next();
        const QString key = files.fileInfo().baseName();
        QTest::newRow(qPrintable(key)) << key;
    }
}

void tst_kavoIconManager::everyDrawingIsAnIconOfSomeInk()
{
    QFETCH(QString, key);
    const QIcon icon = kavoIconManager::getIcon(key.toStdString());
    QVERIFY(!icon.isNull());
    QCOMPARE(strongestColor(icon).alpha(), 255);
}

void tst_kavoIconManager::iconsFollowThePalette()
{
    const QIcon icon = kavoIconManager::getIcon("ModuleNodeEditor", "");
    setTextColor(QPalette::Active, Qt::black);
    QCOMPARE(strongestColor(icon).rgb(), QColor(Qt::black).rgb());
    setTextColor(QPalette::Active, Qt::white);
    QCOMPARE(strongestColor(icon).rgb(), QColor(Qt::white).rgb());
}

void tst_kavoIconManager::disabledIconsTakeTheDisabledColour()
{
    setTextColor(QPalette::Disabled, Qt::gray);
    const QIcon icon = kavoIconManager::getIcon("Node");
    QCOMPARE(strongestColor(icon, QIcon::Disabled).rgb(), QColor(Qt::gray).rgb());
}

void tst_kavoIconManager::aVariantThatDoesNotExistGivesNoIcon()
{
    QVERIFY(kavoIconManager::getIcon("Node", "NoSuchVariant").isNull());
}

void tst_kavoIconManager::anUnknownKeyGivesANullIcon()
{
    QVERIFY(kavoIconManager::getIcon("NoSuchIcon").isNull());
}

KAVO_TEST_MAIN(tst_kavoIconManager)
#include "tst_kavoiconmanager.moc"
