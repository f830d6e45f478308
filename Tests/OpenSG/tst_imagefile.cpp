#include "LogCapture.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGImage.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace osg;

class tst_ImageFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }
    void init() { m_image = RefPtr<ImagePtr>(Image::create()); }
    void cleanup() { m_image = NullFC; }

    void filesBeginWithTheTopRow();
    void commentsInTheHeaderArePassedOver();
    void theHeaderMayBeOneLine();
    void writtenImagesReadBack_data();
    void writtenImagesReadBack();
    void whatIsNoImageIsRefused_data();
    void whatIsNoImageIsRefused();
    void aMissingFileIsRefused();
    void imagesOfOtherKindsAreNotWritten();
    void anImageWithTooFewPixelsIsNotWritten();
    void aFileThatCannotBeMadeFails();

private:
    QByteArray path(const char *name) const;
    QByteArray fileWith(const QByteArray &bytes) const;

    QTemporaryDir m_folder;
    RefPtr<ImagePtr> m_image;
};

QByteArray tst_ImageFile::path(const char *name) const
{
    return QFile::encodeName(m_folder.filePath(name));
}

QByteArray tst_ImageFile::fileWith(const QByteArray &bytes) const
{
    QFile file(m_folder.filePath("image"));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path("image")
                                                                                : QByteArray();
}

void tst_ImageFile::filesBeginWithTheTopRow()
{
    QVERIFY(m_image->read(fileWith("P5\n2 2\n255\nabcd")));
    QCOMPARE(m_image->getPixelFormat(), UInt32(Image::OSG_L_PF));
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(m_image->getData()), 4), QByteArray("cdab"));
}

void tst_ImageFile::commentsInTheHeaderArePassedOver()
{
    QVERIFY(m_image->read(fileWith("P6\n# made by hand\n1\n# one\n1 255\nrgb")));
    QCOMPARE(m_image->getPixelFormat(), UInt32(Image::OSG_RGB_PF));
    QCOMPARE(m_image->getSize(), UInt32(3));
}

void tst_ImageFile::theHeaderMayBeOneLine()
{
    QVERIFY(m_image->read(fileWith("P5 2 1 255\nab")));
    QCOMPARE(m_image->getWidth(), 2);
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(m_image->getData()), 2), QByteArray("ab"));
}

void tst_ImageFile::writtenImagesReadBack_data()
{
    QTest::addColumn<UInt32>("format");
    QTest::newRow("grey") << UInt32(Image::OSG_L_PF);
    QTest::newRow("coloured") << UInt32(Image::OSG_RGB_PF);
}

void tst_ImageFile::writtenImagesReadBack()
{
    QFETCH(UInt32, format);
    const UInt8 pixels[] = { 10, 13, 32, 35, 0, 255, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 };
    QVERIFY(m_image->set(format, 3, 2, 1, 1, 1, 0., pixels));
    QVERIFY(m_image->write(path("out")));
    const RefPtr<ImagePtr> copy(Image::create());
    QVERIFY(copy->read(path("out")));
    QCOMPARE(copy->getPixelFormat(), format);
    QCOMPARE(copy->getPixel().getValues(), m_image->getPixel().getValues());
}

void tst_ImageFile::whatIsNoImageIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text form") << QByteArray("P2\n1 1\n255\n7\n");
    QTest::newRow("no size") << QByteArray("P5\nx y\n255\na");
    QTest::newRow("negative size") << QByteArray("P5\n-1 1\n255\na");
    QTest::newRow("16 bit") << QByteArray("P5\n1 1\n65535\nab");
    QTest::newRow("too few pixels") << QByteArray("P6\n2 2\n255\nabc");
    QTest::newRow("far too few") << QByteArray("P6\n2000000000 2000000000\n255\nabc");
}

void tst_ImageFile::whatIsNoImageIsRefused()
{
    QFETCH(QByteArray, bytes);
    LogCapture log;
    QVERIFY(!m_image->read(fileWith(bytes)));
    QVERIFY(!m_image->isValid());
    QVERIFY(log.text.startsWith("WARNING"));
}

void tst_ImageFile::aMissingFileIsRefused()
{
    LogCapture log;
    QVERIFY(!m_image->read(path("missing")));
    QVERIFY(!m_image->read(nullptr));
    QCOMPARE(log.text.count("WARNING"), 2);
}

void tst_ImageFile::imagesOfOtherKindsAreNotWritten()
{
    LogCapture log;
    QVERIFY(!m_image->write(path("none")));
    m_image->set(Image::OSG_RGBA_PF, 2, 2);
    QVERIFY(!m_image->write(path("none")));
    m_image->set(Image::OSG_RGB_PF, 2, 2, 1, 1, 1, 0., nullptr, Image::OSG_FLOAT32_IMAGEDATA);
    QVERIFY(!m_image->write(path("none")));
    QCOMPARE(log.text.count("WARNING"), 3);
    QVERIFY(!QFile::exists(m_folder.filePath("none")));
}

void tst_ImageFile::anImageWithTooFewPixelsIsNotWritten()
{
    LogCapture log;
    m_image->set(Image::OSG_L_PF, 2, 2);
    m_image->setHeight(100);
    QVERIFY(!m_image->write(path("none")));
}

void tst_ImageFile::aFileThatCannotBeMadeFails()
{
    LogCapture log;
    m_image->set(Image::OSG_L_PF, 2, 2);
    QVERIFY(!m_image->write(path("no/such/folder")));
    QVERIFY(log.text.startsWith("WARNING") && log.text.contains("no/such/folder"));
}

QTEST_APPLESS_MAIN(tst_ImageFile)
#include "tst_imagefile.moc"
