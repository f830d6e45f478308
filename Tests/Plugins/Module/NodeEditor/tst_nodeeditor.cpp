#include "OSGFieldSampler.h"
#include "kavoMetaMethods.h"
#include "kavoModuleFixture.h"

#include <kavoConsoleCapture.h>
#include <kavoController.h>
#include <kavoIconManager.h>
#include <kavoNodeEditorGUI.h>

#include <QGridLayout>
#include <QStatusBar>
#include <QTranslator>

using namespace kavoTreeRows;

namespace {

// Translates every text to its context and the text.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(
        const char *context, const char *text, const char *disambiguation, int) const override
    {
        const QString note
            = disambiguation ? QStringLiteral(", %1").arg(disambiguation) : QString();
        return QStringLiteral("[%1: %2%3]").arg(context, text, note);
    }
};

} // namespace

class tst_NodeEditor : public kavoModuleFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void itRegistersWithTheHost();
    void itDocksItsWindowInTheSceneGroup();
    void theFormIsAsDesigned();
    void textsAreTranslated();
    void theEditorFillsTheFrame();
    void metaObjectsHoldTheDocumentedMembers();
    void theWindowIsCastToItsFormByName();
    void showOfTheWindowIsASignal();
    void showingTheWindowRaisesIt();
    void showingTheWindowLoadsTheSelection();
    void showingTheWindowWithoutASelectionEmptiesTheEditor();
    void aNodeIsNamedInTheTitle();
    void aNamelessNodeHasNothingBetweenTheBlanks();
    void aNullNodeLeavesTheBareTitle();
    void anExceptionOnShowingTheWindowIsLoggedAndOver();
    void destructionPrintsItsNameAndLeavesTheHost();
};

void tst_NodeEditor::initTestCase()
{
    QVERIFY(kavoTestHost::show());
    m_node = kavoTestScene::makeTruck();
}

void tst_NodeEditor::cleanupTestCase()
{
    m_node = kavoNodePtr();
}

void tst_NodeEditor::init()
{
    start();
}

void tst_NodeEditor::cleanup()
{
    stop();
}

void tst_NodeEditor::itRegistersWithTheHost()
{
    QVERIFY(kavoModuleBase::modules().back() == m_module);
    QCOMPARE(m_module->name(), std::string("Node Editor"));
    QCOMPARE(m_module->group(), std::string("Info"));
    QCOMPARE(m_module->messageMask(), 0x81130u);
    QVERIFY(!m_module->icon());
    QVERIFY(kavoNodeEditor::_the == m_module);
}

void tst_NodeEditor::itDocksItsWindowInTheSceneGroup()
{
    const QKAVODockWindowManager &docks = kavoTestHost::docks();
    QCOMPARE(docks.window("Node Editor"), m_module->getWidget());
    QCOMPARE(docks.group("Node Editor"), QString("Scene"));
    QCOMPARE(docks.hintKey("Node Editor"), QString("Hintcard_Attributes"));
    QCOMPARE(docks.toggleAction("Node Editor")->text(), QString("Attributes"));
    QVERIFY(!docks.toggleAction("Node Editor")->icon().isNull());
    QCOMPARE(docks.toggleAction("Node Editor")->icon().pixmap(16).toImage(),
        kavoIconManager::getIcon("ModuleNodeEditor", "").pixmap(16).toImage());
}

void tst_NodeEditor::theFormIsAsDesigned()
{
    QMainWindow fresh;
    Ui::kavoNodeEditorGUI form;
    form.setupUi(&fresh);
    QCOMPARE(fresh.objectName(), QString("kavoNodeEditorGUI"));
    QCOMPARE(fresh.size(), QSize(459, 574));
    QCOMPARE(fresh.windowTitle(), QString("Node Editor"));
    QCOMPARE(fresh.centralWidget(), form.centralwidget);
    QCOMPARE(fresh.statusBar(), form.statusbar);
    QCOMPARE(form.centralwidget->layout(), form.gridLayout);
    QCOMPARE(form.gridLayout->contentsMargins(), QMargins());
    QCOMPARE(form.gridLayout->itemAtPosition(0, 0)->widget(), form._frame);
    QCOMPARE(form._frame->objectName(), QString("_frame"));
    QCOMPARE(form.statusbar->objectName(), QString("statusbar"));
}

void tst_NodeEditor::textsAreTranslated()
{
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    stop();
    start();
    QCOMPARE(kavoTestHost::docks().toggleAction("Node Editor")->text(),
        QString("[kavoNodeEditor: Attributes]"));
    QVERIFY(m_module->getWidget()->windowTitle().startsWith("[kavoNodeEditor: Node Editor] - "));
    QMainWindow fresh;
    Ui::kavoNodeEditorGUI().setupUi(&fresh);
    QCOMPARE(fresh.windowTitle(), QString("[kavoNodeEditorGUI: Node Editor]"));
}

void tst_NodeEditor::theEditorFillsTheFrame()
{
    QCOMPARE(m_module->getWidget()->objectName(), QString("Module"));
    auto *layout = qobject_cast<QBoxLayout *>(editor().parentWidget()->layout());
    QCOMPARE(editor().parentWidget()->objectName(), QString("_frame"));
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_NodeEditor::metaObjectsHoldTheDocumentedMembers()
{
    const QMetaObject &module = kavoNodeEditor::staticMetaObject;
    QCOMPARE(module.className(), "kavoNodeEditor");
    QCOMPARE(kavoMetaMethods(module), QStringList({ "show()", "editedField()" }));
    for (int i = module.methodOffset(); i < module.methodCount(); ++i) {
        QCOMPARE(module.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(module.method(i).access(), QMetaMethod::Private);
    }
    const QMetaObject &window = kavoNodeEditorGUIW::staticMetaObject;
    QCOMPARE(window.className(), "kavoNodeEditorGUIW");
    QCOMPARE(kavoMetaMethods(window), QStringList("show()"));
    QCOMPARE(window.method(window.methodOffset()).methodType(), QMetaMethod::Signal);
}

void tst_NodeEditor::theWindowIsCastToItsFormByName()
{
    auto *gui = qobject_cast<kavoNodeEditorGUIW *>(m_module->getWidget());
    QVERIFY(gui->qt_metacast("Ui::kavoNodeEditorGUI") == static_cast<Ui::kavoNodeEditorGUI *>(gui));
}

void tst_NodeEditor::showOfTheWindowIsASignal()
{
    auto *gui = qobject_cast<kavoNodeEditorGUIW *>(m_module->getWidget());
    setVisible(false);
    QSignalSpy shown(gui, &kavoNodeEditorGUIW::show);
    gui->show();
    QCOMPARE(shown.size(), 1);
    QVERIFY(!gui->isVisible());
}

void tst_NodeEditor::showingTheWindowRaisesIt()
{
    QWidget *window = m_module->getWidget();
    QWidget above(window->parentWidget());
    QVERIFY(window->parentWidget()->children().last() == &above);
    QVERIFY(QMetaObject::invokeMethod(m_module, "show"));
    QVERIFY(window->parentWidget()->children().last() == window);
}

void tst_NodeEditor::showingTheWindowLoadsTheSelection()
{
    setVisible(false);
    const osg::NodePtr wheel = osg::NodePtr(m_node)->getChild(0);
    kavoScenegraph::setSelectedNode(wheel);
    QCoreApplication::processEvents();
    setVisible(true);
    QCOMPARE(title(), titleOf(wheel, "Wheel"));
}

void tst_NodeEditor::showingTheWindowWithoutASelectionEmptiesTheEditor()
{
    setVisible(false);
    setVisible(true);
    QCOMPARE(title(), QString());
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
}

void tst_NodeEditor::aNodeIsNamedInTheTitle()
{
    const QString id = QString::number(osg::NodePtr(m_node).getFieldContainerId());
    QCOMPARE(m_module->getWidget()->windowTitle(), "Node Editor - Root (" + id + ")");
    QCOMPARE(title(), titleOf(m_node));
}

void tst_NodeEditor::aNamelessNodeHasNothingBetweenTheBlanks()
{
    const kavoNodePtr bare(kavoTestScene::makeNode(nullptr, osg::NullFC));
    m_module->setNode(bare);
    const QString id = QString::number(osg::NodePtr(bare).getFieldContainerId());
    QCOMPARE(m_module->getWidget()->windowTitle(), "Node Editor -  (" + id + ")");
    QCOMPARE(title(), titleOf(bare, ""));
    m_module->setNode(osg::NullFC);
}

void tst_NodeEditor::aNullNodeLeavesTheBareTitle()
{
    m_module->setNode(osg::NullFC);
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
    QCOMPARE(title(), QString());
}

void tst_NodeEditor::anExceptionOnShowingTheWindowIsLoggedAndOver()
{
    setVisible(false);
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    kavoScenegraph::setSelectedNode(node);
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    setVisible(true);
    osg::FieldSampler::accessThrows = false;
    QVERIFY(errors.text().contains("Showing the selected node failed with an unknown exception"));
    kavoScenegraph::setSelectedNode(osg::NullFC);
}

void tst_NodeEditor::destructionPrintsItsNameAndLeavesTheHost()
{
    const QPointer<QWidget> window = m_module->getWidget();
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    delete std::exchange(m_module, nullptr);
    QCOMPARE(output.text(), QByteArray("kavoNodeEditor::~kavoNodeEditor\n"));
    QVERIFY(!window);
    QVERIFY(kavoModuleBase::modules().empty());
    kavoMessage message;
    QCOMPARE(kavoController::call("updateNodeEditorByMaterial", message, 0), 0);
}

KAVO_TEST_MAIN(tst_NodeEditor)
#include "tst_nodeeditor.moc"
