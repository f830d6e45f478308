#include "OSGFieldSampler.h"
#include "kavoMetaMethods.h"
#include "kavoTreeRows.h"

#include <kavoConsoleCapture.h>
#include <kavoController.h>
#include <kavoCustomPropertyGLenum.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

#include <memory>
#include <vector>

using namespace kavoTreeRows;

class tst_FCEditorWidget : public QObject
{
    Q_OBJECT

private slots:
    void theTreeTakesDropsAndMarksGroups();
    void itIsATreePropertyBrowserOfItsOwnMetaObject();
    void aNullContainerShowsNothing();
    void aNullContainerEmptiesAFilledTree();
    void theCurrentRowGoesWithItsTree();
    void anOpenRowEditorGoesWithItsTree();
    void anEditorTakesUnfinishedTypingWithIt();
    void rowsLeftFromAnEarlierContainerAreBoundNoMore();
    void rowsThatTheirManagersDeletedAreBoundNoMore();
    void showingTheSameContainerAgainMakesNewRows();
    void showingAnotherContainerReplacesTheRows();
    void theRowsOfAnotherContainerAreBoundToIt();
    void buildingTheTreeChangesNothingInTheScene();
    void everyValueRowIsBound();
    void groupsAndSubRowsAreNotBound();
    void manySelectionsLeaveNoVariantRowsBehind();
    void anEditorMayTakeThePlaceOfAnother();

private:
    static int boundRows(kavoFCEditorWidget &editor, const QList<QtProperty *> &rows);
};

namespace {

int materialUpdates = 0;

void countMaterialUpdate(kavoMessage &)
{
    ++materialUpdates;
}

QStringList shownRows(const kavoFCEditorWidget &editor)
{
    QStringList rows;
    for (const QtProperty *row : all(editor))
        rows.append(row->propertyName() + '\t' + row->valueText());
    return rows;
}

} // namespace

// Counts the errors in the log: each edit of a bound row whose container is gone writes one.
int tst_FCEditorWidget::boundRows(kavoFCEditorWidget &editor, const QList<QtProperty *> &rows)
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    for (QtProperty *row : rows)
        editor.valueChanged(row, QVariant("1"));
    return errors.text().count("kavoFCEditorWidget::valueChanged: invalid pointer!");
}

void tst_FCEditorWidget::theTreeTakesDropsAndMarksGroups()
{
    const kavoFCEditorWidget editor(nullptr, nullptr);
    QVERIFY(editor.acceptDrops());
    QVERIFY(editor.propertiesWithoutValueMarked());
    QVERIFY(editor.rootIsDecorated());
}

void tst_FCEditorWidget::itIsATreePropertyBrowserOfItsOwnMetaObject()
{
    const kavoFCEditorWidget editor(nullptr, "ignored");
    QCOMPARE(editor.metaObject()->className(), "kavoFCEditorWidget");
    QCOMPARE(editor.metaObject()->superClass(), &QtTreePropertyBrowser::staticMetaObject);
    QCOMPARE(editor.objectName(), QString());
    QCOMPARE(kavoMetaMethods(kavoFCEditorWidget::staticMetaObject),
        QStringList({ "valueChanged(QtProperty*,QVariant)", "valueChanged(QtProperty*,uint)",
            "valueChanged(QtProperty*,colorVal)" }));
}

void tst_FCEditorWidget::aNullContainerShowsNothing()
{
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("nothing", osg::NullFC);
    QVERIFY(editor.properties().isEmpty());
}

void tst_FCEditorWidget::aNullContainerEmptiesAFilledTree()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("truck", osg::NodePtr(truck));
    QCOMPARE(editor.properties().size(), 1);
    editor.setFC(QString(), osg::NullFC);
    QVERIFY(editor.properties().isEmpty());
}

void tst_FCEditorWidget::theCurrentRowGoesWithItsTree()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("truck", osg::NodePtr(truck));
    editor.setCurrentItem(editor.items(top(editor)).first());
    QSignalSpy current(&editor, &QtAbstractPropertyBrowser::currentItemChanged);
    editor.setFC(QString(), osg::NullFC);
    QCOMPARE(current.size(), 1);
    QCOMPARE(editor.currentItem(), nullptr);
}

void tst_FCEditorWidget::anOpenRowEditorGoesWithItsTree()
{
    const osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.show();
    editor.setFC("sampler", sampler);
    const QPointer<QWidget> open = edit(editor, "text");
    QVERIFY(open);
    editor.setFC("sampler", sampler);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!open);
    osg::subRefCP(sampler);
}

void tst_FCEditorWidget::anEditorTakesUnfinishedTypingWithIt()
{
    const osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    auto editor = std::make_unique<kavoFCEditorWidget>(nullptr, nullptr);
    editor->show();
    QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    editor->setFC("sampler", sampler);
    QTest::keyClicks(edit(*editor, "real64"), "12.5");
    editor.reset();
    QCOMPARE(sampler->changes, 0);
    osg::subRefCP(sampler);
}

void tst_FCEditorWidget::rowsLeftFromAnEarlierContainerAreBoundNoMore()
{
    const osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("sampler", sampler);
    QtProperty *left = row(editor, "minFilter");
    editor.setFC(QString(), osg::NullFC);
    auto *manager = dynamic_cast<QtGLenumPropertyManager *>(left->propertyManager());
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    manager->setValue(left, 9729);
    QCOMPARE(sampler->minFilter.getValue(), GLenum(0));
    QCOMPARE(output.text(), QByteArray("property 'minFilter' changed to '9729'\n"));
    osg::subRefCP(sampler);
}

// A new row may have the address of a deleted row.
void tst_FCEditorWidget::rowsThatTheirManagersDeletedAreBoundNoMore()
{
    const osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("sampler", sampler);
    const QList<QtProperty *> values = top(editor)->subProperties();
    for (const char *name : { "minFilter", "color4", "flag" })
        row(editor, name)->propertyManager()->clear();
    osg::subRefCP(sampler);
    QCOMPARE(boundRows(editor, values), 0);
}

void tst_FCEditorWidget::showingTheSameContainerAgainMakesNewRows()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("truck", osg::NodePtr(truck));
    const QStringList before = shownRows(editor);
    qRegisterMetaType<QtProperty *>();
    QSignalSpy destroyed(
        top(editor)->propertyManager(), &QtAbstractPropertyManager::propertyDestroyed);
    editor.setFC("truck", osg::NodePtr(truck));
    QCOMPARE(shownRows(editor), before);
    QCOMPARE(destroyed.size(), before.size());
}

void tst_FCEditorWidget::showingAnotherContainerReplacesTheRows()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("truck", osg::NodePtr(truck));
    editor.setFC("wheel", osg::NodePtr(truck)->getChild(0));
    QCOMPARE(editor.properties().size(), 1);
    QVERIFY(top(editor)->propertyName().startsWith("wheel Node ("));
}

void tst_FCEditorWidget::theRowsOfAnotherContainerAreBoundToIt()
{
    const osg::FieldSamplerPtr first = osg::FieldSampler::create();
    const osg::FieldSamplerPtr second = osg::FieldSampler::create();
    osg::addRefCP(first);
    osg::addRefCP(second);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("first", first);
    editor.setFC("second", second);
    setValue(editor, "int32", 7);
    QCOMPARE(first->int32.getValue(), 0);
    QCOMPARE(second->int32.getValue(), 7);
    osg::subRefCP(second);
    osg::subRefCP(first);
}

void tst_FCEditorWidget::buildingTheTreeChangesNothingInTheScene()
{
    const osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    sampler->color4.setValue(osg::Color4f(0.123456789f, 0, 0, 0.5f));
    sampler->real32.setValue(0.123456789f);
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    changes->clearAll();
    kavoFCEditorWidget editor(nullptr, nullptr);
    materialUpdates = 0;
    kavoController::addCB("updateMatRender", countMaterialUpdate);
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    editor.setFC("sampler", sampler);
    kavoController::subCB("updateMatRender", countMaterialUpdate);
    QCOMPARE(materialUpdates, 0);
    QCOMPARE(output.text(), QByteArray());
    QCOMPARE(int(changes->sizeChanged()), 0);
    QCOMPARE(sampler->changes, 0);
    QCOMPARE(sampler->real32.getValue(), 0.123456789f);
    QCOMPARE(sampler->color4.getValue()[0], 0.123456789f);
    osg::subRefCP(sampler);
}

void tst_FCEditorWidget::everyValueRowIsBound()
{
    osg::FieldSamplerPtr sampler = osg::FieldSampler::create();
    osg::addRefCP(sampler);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("sampler", sampler);
    const QList<QtProperty *> values = top(editor)->subProperties();
    QCOMPARE(values.size(), int(sampler->getType().getNumFieldDescs()));
    osg::subRefCP(sampler);
    QCOMPARE(boundRows(editor, values), values.size());
}

void tst_FCEditorWidget::groupsAndSubRowsAreNotBound()
{
    osg::FieldContainerPtr transform = osg::ComponentTransform::create();
    osg::addRefCP(transform);
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("transform", transform);
    QtProperty *rotation = row(editor, "rotation (SFQuaternion)");
    osg::subRefCP(transform);
    QCOMPARE(boundRows(editor, { rotation }), 1);
    QCOMPARE(boundRows(editor, rotation->subProperties()), 0);
    QCOMPARE(boundRows(editor, { top(editor) }), 0);
}

void tst_FCEditorWidget::manySelectionsLeaveNoVariantRowsBehind()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoFCEditorWidget editor(nullptr, nullptr);
    editor.setFC("truck", osg::NodePtr(truck));
    const QtAbstractPropertyManager *manager = top(editor)->propertyManager();
    const int rows = manager->properties().size();
    for (int i = 0; i < 10; ++i)
        editor.setFC("truck", osg::NodePtr(truck));
    QCOMPARE(manager->properties().size(), rows);
}

// The component stores data of a browser under the addresses of browser and managers.
void tst_FCEditorWidget::anEditorMayTakeThePlaceOfAnother()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    std::vector<std::unique_ptr<char[]>> others;
    for (int i = 0; i < 300; ++i) {
        const kavoFCEditorWidget editor(nullptr, nullptr);
        others.push_back(std::make_unique<char[]>(std::size_t(16 + i % 64)));
    }
    QCOMPARE(errors.text(), QByteArray());
}

KAVO_TEST_MAIN(tst_FCEditorWidget)
#include "tst_fceditorwidget.moc"
