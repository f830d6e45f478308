#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <kavoConsoleCapture.h>
#include <kavoController.h>
#include <kavoCustomPropertyGLenum.h>
#include <kavoMessage.h>
#include <kavoOpenSGCompat.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

using namespace kavoTreeRows;

namespace {

int materialUpdates = 0;

void countMaterialUpdate(kavoMessage &message)
{
    if (message.id() == 0)
        ++materialUpdates;
}

}

class TestWriteBack : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aFlagIsWritten();
    void numbersAreWritten_data();
    void numbersAreWritten();
    void aVectorIsWrittenFromALineOfText();
    void anEditAnnouncesTheChangeOnce();
    void anEditGoesToTheChangeListBeforeChanged();
    void derivedFieldsFollowAnEdit();
    void theIgnoreChangeSwitchIsHeeded();
    void theTreeIsNotRebuiltAfterAnEdit();
    void aNumberListIsReplaced_data();
    void aNumberListIsReplaced();
    void anEmptyTextEmptiesANumberList();
    void theSummaryOfALongListIsNotWritten();
    void numbersTypedOverASummaryReplaceTheList();
    void listsOfOtherTypesStay_data();
    void listsOfOtherTypesStay();
    void pointerRowsStay();
    void aStringGainsNoQuotes();
    void aStringThatContainsQuotesSurvives_data();
    void aStringThatContainsQuotesSurvives();
    void aNameEditedTenTimesHasNoQuotes();
    void anEnumIsWrittenAsDecimal();
    void anEnumEditPrintsATraceLineFirst();
    void anEnumAboveTheSignedRangePrintsNegative();
    void aColorIsWrittenComponentByComponent();
    void aThreeComponentColorTakesTheFirstThree();
    void onlyColorEditsAskForMaterialUpdates();
    void anEditOfADeadContainerIsLoggedAndDropped();
    void aColorEditOfADeadContainerStillAsksForMaterialUpdates();
    void aContainerThatThrowsOnAnEditIsLogged();
    void anUnboundColorStillAsksForMaterialUpdates();
    void anUnboundRowIsIgnored();
    void theFieldOfANestedContainerIsWritten();

private:
    template <class Manager> Manager &managerOf(const QString &title);
    void setEnum(unsigned int value);
    void setColor(const QString &title, const colorVal &value);
    void destroySampler();

    kavoFCEditorWidget *m_editor = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

void TestWriteBack::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
    m_sampler->texts.resize(1, "text");
    m_sampler->vectors.resize(1);
    m_sampler->reals.resize(150, 0.5f);
    m_editor->setFC("sampler", m_sampler);
    materialUpdates = 0;
    kavoController::addCB("updateMatRender", countMaterialUpdate);
    osg::Thread::getCurrentChangeList()->clearAll();
}

void TestWriteBack::cleanup()
{
    kavoController::subCB("updateMatRender", countMaterialUpdate);
    delete m_editor;
    destroySampler();
}

void TestWriteBack::destroySampler()
{
    if (m_sampler != osg::NullFC)
        osg::subRefCP(m_sampler);
    m_sampler = osg::NullFC;
}

template <class Manager> Manager &TestWriteBack::managerOf(const QString &title)
{
    return dynamic_cast<Manager &>(*row(*m_editor, title)->propertyManager());
}

void TestWriteBack::setEnum(unsigned int value)
{
    managerOf<QtGLenumPropertyManager>("minFilter").setValue(row(*m_editor, "minFilter"), value);
}

void TestWriteBack::setColor(const QString &title, const colorVal &value)
{
    managerOf<QtKavoColorPropertyManager>(title).setValue(row(*m_editor, title), value);
}

void TestWriteBack::aFlagIsWritten()
{
    setValue(*m_editor, "flag", true);
    QVERIFY(m_sampler->flag.getValue());
    setValue(*m_editor, "flag", false);
    QVERIFY(!m_sampler->flag.getValue());
}

void TestWriteBack::numbersAreWritten_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("int8") << "int8" << QVariant(-128) << "-128";
    QTest::newRow("uint8") << "uint8" << QVariant(255) << "255";
    QTest::newRow("int16") << "int16" << QVariant(-32768) << "-32768";
    QTest::newRow("uint16") << "uint16" << QVariant(65535) << "65535";
    QTest::newRow("int32") << "int32" << QVariant(-5) << "-5";
    QTest::newRow("uint32") << "uint32" << QVariant(7) << "7";
    QTest::newRow("real32") << "real32" << QVariant(0.25) << "2.500000e-01";
    QTest::newRow("real64") << "real64" << QVariant(-1e300) << "-1.000000e+300";
    QTest::newRow("time") << "time" << QVariant(1.5) << "1.500000e+00";
}

void TestWriteBack::numbersAreWritten()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    setValue(*m_editor, field, value);
    std::string written;
    osg::FieldContainer &container = *m_sampler;
    container.getField(field.toUtf8().constData())->getValueByStr(written);
    QTEST(QString::fromStdString(written), "text");
}

void TestWriteBack::aVectorIsWrittenFromALineOfText()
{
    setValue(*m_editor, "vector", "1, 2.5, -3e2");
    QVERIFY(m_sampler->vector.getValue() == osg::Vec3f(1, 2.5f, -300));
}

void TestWriteBack::anEditAnnouncesTheChangeOnce()
{
    setValue(*m_editor, "real32", 0.25);
    const osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    QCOMPARE(int(changes->endChanged() - changes->beginChanged()), 1);
    QCOMPARE(changes->beginChanged()->first, m_sampler.getFieldContainerId());
    QCOMPARE(changes->beginChanged()->second, osg::FieldSampler::maskOf("real32"));
    QCOMPARE(m_sampler->changes, 1);
    QCOMPARE(m_sampler->lastMask, osg::FieldSampler::maskOf("real32"));
}

void TestWriteBack::anEditGoesToTheChangeListBeforeChanged()
{
    setValue(*m_editor, "real32", 0.25);
    QCOMPARE(m_sampler->listedBeforeChanged, 1u);
}

void TestWriteBack::derivedFieldsFollowAnEdit()
{
    const osg::ComponentTransformPtr transform = osg::ComponentTransform::create();
    osg::addRefCP(transform);
    m_editor->setFC("core", transform);
    setValue(*m_editor, "translation", "1 2 3");
    QCOMPARE(transform->getMatrix()[3][1], 2.f);
    osg::subRefCP(transform);
}

void TestWriteBack::theIgnoreChangeSwitchIsHeeded()
{
    if (!kavoOpenSG::setChangesIgnored(true))
        QSKIP("This OpenSG has no ignore-change switch.");
    setValue(*m_editor, "real32", 0.25);
    kavoOpenSG::setChangesIgnored(false);
    QCOMPARE(m_sampler->changes, 0);
    QCOMPARE(m_sampler->real32.getValue(), 0.25f);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 1);
}

void TestWriteBack::theTreeIsNotRebuiltAfterAnEdit()
{
    const QList<QtProperty *> before = all(*m_editor);
    setValue(*m_editor, "real32", 0.25);
    QCOMPARE(all(*m_editor), before);
    QCOMPARE(text(*m_editor, "real32"), QString("0.25"));
}

void TestWriteBack::aNumberListIsReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("elements");
    QTest::newRow("separators") << "1, 2,,3"
                                << "1, 2, 3";
    QTest::newRow("blanks only") << " 4   5 "
                                 << "4, 5";
    QTest::newRow("unreadable part") << "1 x 3"
                                     << "1, 0, 3";
}

void TestWriteBack::aNumberListIsReplaced()
{
    QFETCH(QString, text);
    m_sampler->uints.resize(7, 9);
    setValue(*m_editor, "uints", text);
    std::string written;
    m_sampler->uints.getValueByStr(written);
    QTEST(QString::fromStdString(written), "elements");
    QCOMPARE(m_sampler->lastMask, osg::FieldSampler::maskOf("uints"));
}

void TestWriteBack::anEmptyTextEmptiesANumberList()
{
    setValue(*m_editor, "ints", "1 2");
    QCOMPARE(int(m_sampler->ints.size()), 2);
    setValue(*m_editor, "ints", "");
    QCOMPARE(int(m_sampler->ints.size()), 0);
    QCOMPARE(m_sampler->changes, 2);
}

void TestWriteBack::theSummaryOfALongListIsNotWritten()
{
    setValue(*m_editor, "reals", "<type=Real32> <size = 2>");
    QCOMPARE(int(m_sampler->reals.size()), 150);
    QCOMPARE(m_sampler->changes, 0);
}

void TestWriteBack::numbersTypedOverASummaryReplaceTheList()
{
    QCOMPARE(text(*m_editor, "reals"), QString("<type=Real32> <size = 150>"));
    setValue(*m_editor, "reals", "0.5, 1e-3");
    QCOMPARE(int(m_sampler->reals.size()), 2);
    QCOMPARE(m_sampler->reals[1], 1e-3f);
}

void TestWriteBack::listsOfOtherTypesStay_data()
{
    QTest::addColumn<QString>("field");
    for (const char *name : { "texts", "vectors", "nodes" })
        QTest::newRow(name) << name;
}

void TestWriteBack::listsOfOtherTypesStay()
{
    QFETCH(QString, field);
    setValue(*m_editor, field, "1 2 3");
    QCOMPARE(m_sampler->changes, 0);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 0);
    QCOMPARE(m_sampler->texts[0], std::string("text"));
    QVERIFY(m_sampler->vectors[0] == osg::Vec3f(0, 0, 0));
}

void TestWriteBack::pointerRowsStay()
{
    setValue(*m_editor, "other", "1");
    QVERIFY(m_sampler->other.getValue() == osg::NullFC);
}

void TestWriteBack::aStringGainsNoQuotes()
{
    setValue(*m_editor, "text", "\"a b\"");
    QCOMPARE(m_sampler->text.getValue(), std::string("a b"));
    setValue(*m_editor, "text", "plain ä");
    QCOMPARE(m_sampler->text.getValue(), std::string("plain ä"));
}

void TestWriteBack::aStringThatContainsQuotesSurvives_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : { "a\"b", "\"", "\"\"", "\"whole\"", "a\"", "" })
        QTest::newRow(value) << value;
}

void TestWriteBack::aStringThatContainsQuotesSurvives()
{
    QFETCH(QString, value);
    m_sampler->text.setValue(value.toStdString());
    m_editor->setFC("sampler", m_sampler);
    const QString shown = text(*m_editor, "text");
    setValue(*m_editor, "text", "other");
    setValue(*m_editor, "text", shown);
    QCOMPARE(QString::fromStdString(m_sampler->text.getValue()), value);
}

void TestWriteBack::aNameEditedTenTimesHasNoQuotes()
{
    const osg::NamePtr name = osg::Name::create();
    osg::addRefCP(name);
    name->getFieldPtr()->setValue("Wheel");
    for (int i = 0; i < 10; ++i) {
        m_editor->setFC("name", name);
        QString shown = text(*m_editor, "name");
        setValue(*m_editor, "name", shown.insert(shown.size() - 1, 'x'));
    }
    QCOMPARE(name->getFieldPtr()->getValue(), std::string("Wheelxxxxxxxxxx"));
    osg::subRefCP(name);
}

void TestWriteBack::anEnumIsWrittenAsDecimal()
{
    setEnum(9729);
    QCOMPARE(m_sampler->minFilter.getValue(), GLenum(9729));
    QCOMPARE(m_sampler->lastMask, osg::FieldSampler::maskOf("minFilter"));
    setEnum(0xFFFFFFFF);
    QCOMPARE(m_sampler->minFilter.getValue(), GLenum(0xFFFFFFFF));
}

void TestWriteBack::anEnumEditPrintsATraceLineFirst()
{
    destroySampler();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    setEnum(9729);
    QCOMPARE(output.text(), QByteArray("property 'minFilter' changed to '9729'\n"));
}

void TestWriteBack::anEnumAboveTheSignedRangePrintsNegative()
{
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    setEnum(0xFFFFFFFE);
    QCOMPARE(output.text(), QByteArray("property 'minFilter' changed to '-2'\n"));
}

void TestWriteBack::aColorIsWrittenComponentByComponent()
{
    setColor("color4", { 0.25f, 1.5f, -1, 0.123456789f });
    const osg::Color4f &color = m_sampler->color4.getValue();
    QCOMPARE(color[0], 0.25f);
    QCOMPARE(color[1], 1.5f);
    QCOMPARE(color[2], -1.f);
    QCOMPARE(color[3], 0.123457f);
    QCOMPARE(m_sampler->lastMask, osg::FieldSampler::maskOf("color4"));
}

void TestWriteBack::aThreeComponentColorTakesTheFirstThree()
{
    setColor("color3", { 0.25f, 0.5f, 0.75f, 0 });
    QCOMPARE(m_sampler->color3.getValue()[0], 0.25f);
    QCOMPARE(m_sampler->color3.getValue()[2], 0.75f);
}

void TestWriteBack::onlyColorEditsAskForMaterialUpdates()
{
    setValue(*m_editor, "real32", 0.25);
    setEnum(9729);
    QCOMPARE(materialUpdates, 0);
    setColor("color3", { 1, 1, 1, 1 });
    QCOMPARE(materialUpdates, 1);
}

void TestWriteBack::anEditOfADeadContainerIsLoggedAndDropped()
{
    destroySampler();
    osg::Thread::getCurrentChangeList()->clearAll();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    setValue(*m_editor, "real32", 0.25);
    QCOMPARE(errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!"), 1);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 0);
}

void TestWriteBack::aColorEditOfADeadContainerStillAsksForMaterialUpdates()
{
    destroySampler();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    setColor("color3", { 1, 1, 1, 1 });
    QCOMPARE(errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!"), 1);
    QCOMPARE(materialUpdates, 1);
}

void TestWriteBack::aContainerThatThrowsOnAnEditIsLogged()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    setColor("color3", { 1, 1, 1, 1 });
    osg::FieldSampler::accessThrows = false;
    QCOMPARE(errors.text().count("Writing a field failed with an unknown exception"), 1);
    QCOMPARE(materialUpdates, 1);
}

void TestWriteBack::anUnboundColorStillAsksForMaterialUpdates()
{
    QtProperty *left = row(*m_editor, "color3");
    m_editor->setFC(QString(), osg::NullFC);
    dynamic_cast<QtKavoColorPropertyManager &>(*left->propertyManager())
        .setValue(left, { 1, 1, 1, 1 });
    QCOMPARE(materialUpdates, 1);
    QCOMPARE(m_sampler->changes, 0);
}

void TestWriteBack::anUnboundRowIsIgnored()
{
    QtProperty *stranger = m_editor->createPropertyItem("stranger", "SFReal32", "1");
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    dynamic_cast<QtVariantProperty &>(*stranger).setValue(2.0);
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(m_sampler->changes, 0);
}

void TestWriteBack::theFieldOfANestedContainerIsWritten()
{
    const kavoNodePtr node(kavoTestScene::makeNode("Root", osg::ComponentTransform::create()));
    m_editor->setFC("node", osg::NodePtr(node));
    const auto core = osg::ComponentTransformPtr::dcast(osg::NodePtr(node)->getCore());
    QtProperty *group = row(
        *m_editor, QStringLiteral("core ComponentTransform (%1)").arg(core.getFieldContainerId()));
    dynamic_cast<QtVariantProperty &>(*child(group, "scale")).setValue("2 2 2");
    QCOMPARE(core->getScale()[1], 2.f);
}

KAVO_TEST_MAIN(TestWriteBack)
#include "tst_writeback.moc"
