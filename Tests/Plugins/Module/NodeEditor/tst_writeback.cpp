#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoConsoleCapture.h>
#include <kavoOpenSGCompat.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

#include <thread>

using namespace kavoTreeRows;

// Effects of an edit on field, container and change list.
class tst_WriteBack : public QObject
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
    void anEditNeedsNoChangeList();
    void derivedFieldsFollowAnEdit();
    void theIgnoreChangeSwitchIsHeeded();
    void theTreeIsNotRebuiltAfterAnEdit();
    void pointerRowsStay();
    void anEditOfADeadContainerIsLoggedAndDropped();
    void anUnboundRowIsIgnored();
    void theFieldOfANestedContainerIsWritten();

private:
    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_WriteBack::init()
{
    m_rows = std::make_unique<kavoSampledEditor>();
    osg::Thread::getCurrentChangeList()->clearAll();
}

void tst_WriteBack::cleanup()
{
    m_rows.reset();
}

void tst_WriteBack::aFlagIsWritten()
{
    setValue(m_rows->editor(), "flag", true);
    QVERIFY(m_rows->sampler()->flag.getValue());
    setValue(m_rows->editor(), "flag", false);
    QVERIFY(!m_rows->sampler()->flag.getValue());
}

void tst_WriteBack::numbersAreWritten_data()
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

void tst_WriteBack::numbersAreWritten()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    setValue(m_rows->editor(), field, value);
    std::string written;
    osg::FieldContainer &container = *m_rows->sampler();
    container.getField(field.toUtf8().constData())->getValueByStr(written);
    QTEST(QString::fromStdString(written), "text");
}

void tst_WriteBack::aVectorIsWrittenFromALineOfText()
{
    setValue(m_rows->editor(), "vector", "1, 2.5, -3e2");
    QVERIFY(m_rows->sampler()->vector.getValue() == osg::Vec3f(1, 2.5f, -300));
}

void tst_WriteBack::anEditAnnouncesTheChangeOnce()
{
    setValue(m_rows->editor(), "real32", 0.25);
    const osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    QCOMPARE(int(changes->endChanged() - changes->beginChanged()), 1);
    QCOMPARE(changes->beginChanged()->first,
        osg::FieldContainerPtr(m_rows->sampler()).getFieldContainerId());
    QCOMPARE(changes->beginChanged()->second, osg::FieldSampler::maskOf("real32"));
    QCOMPARE(m_rows->sampler()->changes, 1);
    QCOMPARE(m_rows->sampler()->lastMask, osg::FieldSampler::maskOf("real32"));
    QCOMPARE(m_rows->sampler()->lastOrigin, osg::UInt32(osg::ChangedOrigin::External));
}

void tst_WriteBack::anEditGoesToTheChangeListBeforeChanged()
{
    setValue(m_rows->editor(), "real32", 0.25);
    QCOMPARE(m_rows->sampler()->listedBeforeChanged, 1u);
}

// A thread that was not started by the library has no change list.
void tst_WriteBack::anEditNeedsNoChangeList()
{
    QtProperty *real32 = row(m_rows->editor(), "real32");
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    std::thread([&] {
        changes = osg::Thread::getCurrentChangeList();
        m_rows->editor().valueChanged(real32, QVariant(0.25));
    }).join();
    QVERIFY(!changes);
    QCOMPARE(m_rows->sampler()->real32.getValue(), 0.25f);
    QCOMPARE(m_rows->sampler()->changes, 1);
}

void tst_WriteBack::derivedFieldsFollowAnEdit()
{
    const osg::ComponentTransformPtr transform = osg::ComponentTransform::create();
    osg::addRefCP(transform);
    m_rows->editor().setFC("core", transform);
    setValue(m_rows->editor(), "translation", "1 2 3");
    QCOMPARE(transform->getMatrix()[3][1], 2.f);
    osg::subRefCP(transform);
}

void tst_WriteBack::theIgnoreChangeSwitchIsHeeded()
{
    if (!kavoOpenSG::setChangesIgnored(true))
        QSKIP("This OpenSG has no ignore-change switch.");
    setValue(m_rows->editor(), "real32", 0.25);
    kavoOpenSG::setChangesIgnored(false);
    QCOMPARE(m_rows->sampler()->changes, 0);
    QCOMPARE(m_rows->sampler()->real32.getValue(), 0.25f);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 1);
}

void tst_WriteBack::theTreeIsNotRebuiltAfterAnEdit()
{
    const QList<QtProperty *> before = all(m_rows->editor());
    setValue(m_rows->editor(), "real32", 0.25);
    QCOMPARE(all(m_rows->editor()), before);
    QCOMPARE(text(m_rows->editor(), "real32"), QString("0.25"));
}

void tst_WriteBack::pointerRowsStay()
{
    setValue(m_rows->editor(), "other", "1");
    QVERIFY(m_rows->sampler()->other.getValue() == osg::NullFC);
}

void tst_WriteBack::anEditOfADeadContainerIsLoggedAndDropped()
{
    m_rows->destroySampler();
    osg::Thread::getCurrentChangeList()->clearAll();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    setValue(m_rows->editor(), "real32", 0.25);
    QCOMPARE(errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!"), 1);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 0);
}

void tst_WriteBack::anUnboundRowIsIgnored()
{
    QtProperty *stranger = m_rows->editor().createPropertyItem("stranger", "SFReal32", "1");
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    dynamic_cast<QtVariantProperty &>(*stranger).setValue(2.0);
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(m_rows->sampler()->changes, 0);
}

void tst_WriteBack::theFieldOfANestedContainerIsWritten()
{
    const kavoNodePtr node(kavoTestScene::makeNode("Root", osg::ComponentTransform::create()));
    m_rows->editor().setFC("node", osg::NodePtr(node));
    const auto core = osg::ComponentTransformPtr::dcast(osg::NodePtr(node)->getCore());
    QtProperty *group = row(m_rows->editor(),
        QStringLiteral("core ComponentTransform (%1)").arg(core.getFieldContainerId()));
    dynamic_cast<QtVariantProperty &>(*child(group, "scale")).setValue("2 2 2");
    QCOMPARE(core->getScale()[1], 2.f);
}

KAVO_TEST_MAIN(tst_WriteBack)
#include "tst_writeback.moc"
