#include "Import/kavoMaterialBuilder.h"
#include "Scene/kavoImageConverter.h"
#include <kavoTestHost.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTwoSidedLightingChunk.h>

#include <QtTest>

#include <assimp/GltfMaterial.h>
#include <assimp/material.h>

namespace {

template <class Value, class... Key> void set(aiMaterial &material, Value value, Key... key)
{
    material.AddProperty(&value, 1, key...);
}

using MaterialRef = osg::RefPtr<osg::ChunkMaterialPtr>;

MaterialRef build(const aiMaterial &material, const osg::ImagePtr &image = osg::NullFC)
{
    return MaterialRef(kavoMaterialBuilder::build(material, image));
}

template <class Chunk> typename Chunk::Ptr chunk(const MaterialRef &material)
{
    return Chunk::Ptr::dcast(material.get()->find(Chunk::getClassType()));
}

QImage twoRows(QImage::Format format)
{
    QImage image(3, 2, format);
    image.fill(Qt::red);
    image.setPixelColor(0, 1, Qt::blue);
    return image;
}

} // namespace

class tst_MaterialBuilder : public QObject
{
    Q_OBJECT

private slots:
    void aBareMaterialIsWhiteOpaqueAndNotCulled()
    {
        const MaterialRef built = build(aiMaterial());
        QCOMPARE(built.get()->getMFChunks()->getSize(), 2u);
        osg::Color4f white;
        white.setValuesRGBA(1, 1, 1, 1);
        QVERIFY(chunk<osg::MaterialChunk>(built)->getDiffuse() == white);
        QCOMPARE(chunk<osg::PolygonChunk>(built)->getCullFace(), 0u);
    }

    void opacityGoesIntoTheDiffuseColourAndBlends()
    {
        aiMaterial material;
        set(material, 0.25f, AI_MATKEY_OPACITY);
        const MaterialRef built = build(material);
        QCOMPARE(chunk<osg::MaterialChunk>(built)->getDiffuse().alpha(), 0.25f);
        QCOMPARE(chunk<osg::BlendChunk>(built)->getSrcFactor(), 770u);
        QCOMPARE(chunk<osg::BlendChunk>(built)->getDestFactor(), 771u);
    }

    void anOpacityOfNoneIsTakenForTheTransparencyItIs()
    {
        aiMaterial material;
        set(material, 0.0f, AI_MATKEY_OPACITY);
        const MaterialRef built = build(material);
        QCOMPARE(chunk<osg::MaterialChunk>(built)->getDiffuse().alpha(), 1.0f);
        QVERIFY(chunk<osg::BlendChunk>(built) == osg::NullFC);
    }

    void twoSidedMaterialsAreLitOnBothSidesAndNotCulled()
    {
        aiMaterial material;
        set(material, 1, AI_MATKEY_TWOSIDED);
        const MaterialRef built = build(material);
        QVERIFY(chunk<osg::TwoSidedLightingChunk>(built) != osg::NullFC);
        QCOMPARE(chunk<osg::PolygonChunk>(built)->getCullFace(), 0u);
    }

    void oneSidedMaterialsAreCulled()
    {
        aiMaterial material;
        set(material, 0, AI_MATKEY_TWOSIDED);
        QCOMPARE(chunk<osg::PolygonChunk>(build(material))->getCullFace(), 1029u);
    }

    void unlitShadingIsUnlit()
    {
        aiMaterial material;
        set(material, int(aiShadingMode_NoShading), AI_MATKEY_SHADING_MODEL);
        QVERIFY(!chunk<osg::MaterialChunk>(build(material))->getLit());
    }

    void shininessStaysInTheRangeOfOpenGL()
    {
        aiMaterial material;
        set(material, 900.0f, AI_MATKEY_SHININESS);
        QCOMPARE(chunk<osg::MaterialChunk>(build(material))->getShininess(), 128.0f);
    }

    void theTextureRepeatsAsTheFileSays()
    {
        aiMaterial material;
        aiString path("a.png");
        material.AddProperty(&path, AI_MATKEY_TEXTURE_DIFFUSE(0));
        set(material, int(aiTextureMapMode_Mirror), AI_MATKEY_MAPPINGMODE_U_DIFFUSE(0));
        set(material, int(aiTextureMapMode_Clamp), AI_MATKEY_MAPPINGMODE_V_DIFFUSE(0));
        const auto image = kavoMaterialBuilder::buildImage(twoRows(QImage::Format_RGB32), "a.png");
        const MaterialRef built = build(material, image);
        QVERIFY(chunk<osg::TextureChunk>(built)->getImage() == image);
        QCOMPARE(chunk<osg::TextureChunk>(built)->getWrapS(), 33648u);
        QCOMPARE(chunk<osg::TextureChunk>(built)->getWrapT(), 33071u);
    }

    void imagesHaveTheirBottomRowFirst()
    {
        const osg::RefPtr<osg::ImagePtr> image(
            kavoMaterialBuilder::buildImage(twoRows(QImage::Format_RGB32), "a.png"));
        QCOMPARE(image.get()->getPixelFormat(), osg::UInt32(osg::Image::OSG_RGB_PF));
        QCOMPARE(image.get()->getMFPixel()->getSize(), 18u);
        QCOMPARE(int(image.get()->getData()[2]), 255); // blue, from the bottom row
        QCOMPARE(int(image.get()->getData()[9]), 255); // red
        QCOMPARE(image.get()->getName().c_str(), "a.png");
    }

    void imagesComeBackAsTheyWere_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("without alpha") << QImage::Format_RGB888;
        QTest::newRow("with alpha") << QImage::Format_RGBA8888;
    }

    void imagesComeBackAsTheyWere()
    {
        QFETCH(QImage::Format, format);
        const osg::RefPtr<osg::ImagePtr> image(
            kavoMaterialBuilder::buildImage(twoRows(format), "a.png"));
        QCOMPARE(kavoImageConverter::toImage(image.get()), twoRows(format));
    }

    void noImageGivesNoPicture()
    {
        QVERIFY(kavoImageConverter::toImage(osg::NullFC).isNull());
        const osg::RefPtr<osg::ImagePtr> empty(osg::Image::create());
        QVERIFY(kavoImageConverter::toImage(empty.get()).isNull());
    }

    void anImageWithFewerPixelsThanItSaysGivesNoPicture()
    {
        const osg::RefPtr<osg::ImagePtr> image(
            kavoMaterialBuilder::buildImage(twoRows(QImage::Format_RGBA8888), "a.png"));
        image.get()->setWidth(16384);
        image.get()->setHeight(65536);
        QVERIFY(kavoImageConverter::toImage(image.get()).isNull());
    }
};

KAVO_TEST_MAIN(tst_MaterialBuilder)
#include "tst_materialbuilder.moc"
