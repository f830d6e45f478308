#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoConsoleCapture.h>
#include <kavoController.h>
#include <kavoCustomPropertyGLenum.h>
#include <kavoMessage.h>
#include <kavoTestHost.h>

#include <QtTest>

#include <locale>

using namespace kavoTreeRows;

namespace {

int materialUpdates = 0;

void countMaterialUpdate(kavoMessage &message)
{
    if (message.id() == 0)
        ++materialUpdates;
}

// Writes 9729.5 as 9.729,5.
struct CommaNumbers : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

// Edits of enumeration and colour rows.
class tst_WriteCustomRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anEnumIsWrittenAsDecimal();
    void anEnumEditPrintsATraceLineFirst();
    void theTraceLineIsUtf8();
    void anEnumAboveTheSignedRangePrintsNegative();
    void aColorIsWrittenComponentByComponent();
    void aThreeComponentColorTakesTheFirstThree();
    void onlyColorEditsAskForMaterialUpdates();
    void aColorEditOfADeadContainerStillAsksForMaterialUpdates();
    void aContainerThatThrowsOnAnEditIsLogged();
    void anUnboundColorStillAsksForMaterialUpdates();
    void numbersOfTheLibraryHaveAPointInAnyLocale();

private:
    template <class Manager> Manager &managerOf(const QString &title);
    void setEnum(unsigned int value);
    void setColor(const QString &title, const colorVal &value);

    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_WriteCustomRows::init()
{
    m_rows = std::make_unique<kavoSampledEditor>();
    materialUpdates = 0;
    kavoController::addCB("updateMatRender", countMaterialUpdate);
}

void tst_WriteCustomRows::cleanup()
{
    kavoController::subCB("updateMatRender", countMaterialUpdate);
    m_rows.reset();
}

template <class Manager> Manager &tst_WriteCustomRows::managerOf(const QString &title)
{
    return dynamic_cast<Manager &>(*row(m_rows->editor(), title)->propertyManager());
}

void tst_WriteCustomRows::setEnum(unsigned int value)
{
    managerOf<QtGLenumPropertyManager>("minFilter")
        .setValue(row(m_rows->editor(), "minFilter"), value);
}

void tst_WriteCustomRows::setColor(const QString &title, const colorVal &value)
{
    managerOf<QtKavoColorPropertyManager>(title).setValue(row(m_rows->editor(), title), value);
}

void tst_WriteCustomRows::anEnumIsWrittenAsDecimal()
{
    setEnum(9729);
    QCOMPARE(m_rows->sampler()->minFilter.getValue(), GLenum(9729));
    QCOMPARE(m_rows->sampler()->lastMask, osg::FieldSampler::maskOf("minFilter"));
    setEnum(0xFFFFFFFF);
    QCOMPARE(m_rows->sampler()->minFilter.getValue(), GLenum(0xFFFFFFFF));
}

void tst_WriteCustomRows::anEnumEditPrintsATraceLineFirst()
{
    m_rows->destroySampler();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    setEnum(9729);
    QCOMPARE(output.text(), QByteArray("property 'minFilter' changed to '9729'\n"));
}

void tst_WriteCustomRows::theTraceLineIsUtf8()
{
    QtProperty *row = m_rows->editor().createPropertyItem("Größe €", "SFGLenum", "0");
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    m_rows->editor().valueChanged(row, 1u);
    QCOMPARE(output.text(), QByteArray("property 'Größe €' changed to '1'\n"));
}

void tst_WriteCustomRows::anEnumAboveTheSignedRangePrintsNegative()
{
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    setEnum(0xFFFFFFFE);
    QCOMPARE(output.text(), QByteArray("property 'minFilter' changed to '-2'\n"));
}

void tst_WriteCustomRows::aColorIsWrittenComponentByComponent()
{
    setColor("color4", { 0.25f, 1.5f, -1, 0.123456789f });
    const osg::Color4f &color = m_rows->sampler()->color4.getValue();
    QCOMPARE(color[0], 0.25f);
    QCOMPARE(color[1], 1.5f);
    QCOMPARE(color[2], -1.f);
    QCOMPARE(color[3], 0.123457f);
    QCOMPARE(m_rows->sampler()->lastMask, osg::FieldSampler::maskOf("color4"));
}

void tst_WriteCustomRows::aThreeComponentColorTakesTheFirstThree()
{
    setColor("color3", { 0.25f, 0.5f, 0.75f, 0 });
    QCOMPARE(m_rows->sampler()->color3.getValue()[0], 0.25f);
    QCOMPARE(m_rows->sampler()->color3.getValue()[2], 0.75f);
}

void tst_WriteCustomRows::onlyColorEditsAskForMaterialUpdates()
{
    setValue(m_rows->editor(), "real32", 0.25);
    setEnum(9729);
    QCOMPARE(materialUpdates, 0);
    setColor("color3", { 1, 1, 1, 1 });
    QCOMPARE(materialUpdates, 1);
}

void tst_WriteCustomRows::aColorEditOfADeadContainerStillAsksForMaterialUpdates()
{
    m_rows->destroySampler();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    setColor("color3", { 1, 1, 1, 1 });
    QCOMPARE(errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!"), 1);
    QCOMPARE(materialUpdates, 1);
}

void tst_WriteCustomRows::aContainerThatThrowsOnAnEditIsLogged()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    setColor("color3", { 1, 1, 1, 1 });
    osg::FieldSampler::accessThrows = false;
    QCOMPARE(errors.text().count("Writing a field failed with an unknown exception"), 1);
    QCOMPARE(materialUpdates, 1);
}

void tst_WriteCustomRows::anUnboundColorStillAsksForMaterialUpdates()
{
    QtProperty *left = row(m_rows->editor(), "color3");
    m_rows->editor().setFC(QString(), osg::NullFC);
    dynamic_cast<QtKavoColorPropertyManager &>(*left->propertyManager())
        .setValue(left, { 1, 1, 1, 1 });
    QCOMPARE(materialUpdates, 1);
    QCOMPARE(m_rows->sampler()->changes, 0);
}

void tst_WriteCustomRows::numbersOfTheLibraryHaveAPointInAnyLocale()
{
    const std::locale before
        = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
    const QtProperty *color
        = m_rows->editor().createPropertyItem("c", "SFColor4f", "0.25 0.5 0.75 1");
    const QtProperty *filter = m_rows->editor().createPropertyItem("f", "SFGLenum", "9729");
    setColor("color4", { 0.25f, 0.5f, 1000.5f, 1 });
    std::locale::global(before);
    QCOMPARE(color->valueText(), QString("0.25 0.50 0.75 1.00"));
    QCOMPARE(filter->valueText(), QString("GL_LINEAR"));
    QVERIFY(m_rows->sampler()->color4.getValue() == osg::Color4f(0.25f, 0.5f, 1000.5f, 1));
}

KAVO_TEST_MAIN(tst_WriteCustomRows)
#include "tst_writecustomrows.moc"
