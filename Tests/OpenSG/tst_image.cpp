#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGImage.h>

#include <QtTest>

#include <climits>

using namespace osg;

class tst_Image : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void anImageHasItsPixels();
    void mipmapsSidesAndFramesHaveRoom();
    void unknownKindsAreRefused();
    void sizesThatNoMemoryHoldsAreRefused_data();
    void sizesThatNoMemoryHoldsAreRefused();
    void sizesFollowAnEdit();
    void impossibleSizesLeaveNoRoom_data();
    void impossibleSizesLeaveNoRoom();
    void anUnknownFormatKeepsItsBytesPerPixel();
};

void tst_Image::anImageHasItsPixels()
{
    const ImageRefPtr image(Image::create());
    const UInt8 pixels[12] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 };
    QVERIFY(!image->isValid());
    QVERIFY(image->set(Image::OSG_RGB_PF, 2, 2, 1, 1, 1, 0., pixels));
    QCOMPARE(image->getDimension(), 2);
    QCOMPARE(image->getBpp(), 3);
    QCOMPARE(image->getSize(), 12u);
    QCOMPARE(int(image->getData()[11]), 12);
    QVERIFY(image->isValid() && !image->hasAlphaChannel());
}

void tst_Image::mipmapsSidesAndFramesHaveRoom()
{
    const ImageRefPtr image(Image::create());
    QVERIFY(image->set(
        Image::OSG_RGBA_PF, 4, 2, 1, 3, 2, 0., nullptr, Image::OSG_UINT16_IMAGEDATA, true, 6));
    const int side = (4 * 2 + 2 * 1 + 1) * 8;
    QCOMPARE(image->getSideSize(), side);
    QCOMPARE(image->getSize(), UInt32(side * 6 * 2));
    QCOMPARE(image->getData(1, 1, 2) - image->getData(), std::ptrdiff_t(side * 8 + 4 * 2 * 8));
    QVERIFY(!image->getData(0, 2));
}

void tst_Image::unknownKindsAreRefused()
{
    const ImageRefPtr image(Image::create());
    QVERIFY(!image->set(1, 2));
    QVERIFY(!image->set(Image::OSG_L_PF, 0));
    QVERIFY(!image->set(Image::OSG_L_PF, 2, 2, 1, 1, 1, 0., nullptr, 17));
    QVERIFY(
        image->set(Image::OSG_L_PF, 2, 2, 1, 1, 1, 0., nullptr, Image::OSG_UINT8_IMAGEDATA, false));
    QVERIFY(!image->isValid() && !image->getData());
}

void tst_Image::sizesThatNoMemoryHoldsAreRefused_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("mipmapCount");
    QTest::addColumn<int>("frameCount");

    QTest::newRow("area") << 100000 << 100000 << 1 << 1 << 1;
    QTest::newRow("volume") << INT_MAX << INT_MAX << INT_MAX << 1 << 1;
    QTest::newRow("frames") << 1000 << 1000 << 1 << 1 << 100000;
    QTest::newRow("mipmaps") << 4 << 4 << 1 << 40 << 1;
}

void tst_Image::sizesThatNoMemoryHoldsAreRefused()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, depth);
    QFETCH(int, mipmapCount);
    QFETCH(int, frameCount);
    const ImageRefPtr image(Image::create());
    QVERIFY(!image->set(Image::OSG_RGB_PF, width, height, depth, mipmapCount, frameCount));
    QCOMPARE(image->getWidth(), 0);
    QVERIFY(!image->isValid());
}

void tst_Image::sizesFollowAnEdit()
{
    const ImageRefPtr image(Image::create());
    beginEditCP(image.get());
    image->setPixelFormat(Image::OSG_RGB_PF);
    image->setDataType(Image::OSG_FLOAT32_IMAGEDATA);
    image->setWidth(2);
    image->setSideCount(3);
    image->setFrameCount(2);
    image->getMFPixel()->resize(2 * 12 * 3 * 2);
    endEditCP(image.get());
    QCOMPARE(image->getComponentSize(), 4);
    QCOMPARE(image->getBpp(), 12);
    QCOMPARE(image->getSideSize(), 24);
    QCOMPARE(image->getFrameSize(), 72);
    QCOMPARE(image->getData(0, 1) - image->getData(), std::ptrdiff_t(72));
}

void tst_Image::impossibleSizesLeaveNoRoom_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("bpp");

    QTest::newRow("too large") << INT_MAX << 2;
    QTest::newRow("negative") << 5 << -3;
    QTest::newRow("no width") << 0 << 1;
    QTest::newRow("negative width") << -5 << 1;
}

void tst_Image::impossibleSizesLeaveNoRoom()
{
    QFETCH(int, width);
    QFETCH(int, bpp);
    const ImageRefPtr image(Image::create());
    beginEditCP(image.get());
    image->setWidth(width);
    image->setBpp(bpp);
    image->setMipMapCount(INT_MAX);
    endEditCP(image.get());
    QCOMPARE(image->getFrameSize(), 0);
    QVERIFY(!image->getData(7, 7, 7));
}

void tst_Image::anUnknownFormatKeepsItsBytesPerPixel()
{
    const ImageRefPtr image(Image::create());
    beginEditCP(image.get());
    image->setPixelFormat(33777);
    image->setBpp(2);
    image->setWidth(8);
    endEditCP(image.get());
    QCOMPARE(image->getBpp(), 2);
    QCOMPARE(image->getFrameSize(), 16);
}

QTEST_APPLESS_MAIN(tst_Image)
#include "tst_image.moc"
