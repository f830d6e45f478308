#include "kavoNodeEditor.h"

#include "kavoFCEditorWidget.h"
#include "kavoNodeEditorGUI.h"

#include <QKAVODockWindowManager.h>
#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoGuarded.h>
#include <kavoIconManager.h>
#include <kavoLog.h>
#include <kavoMessageIds.h>
#include <kavoScenegraph.h>

#include <OpenSG/OSGMaterial.h>

#include <QBoxLayout>

#include <cstdio>

namespace {

// Deliberate: sceneLoaded and sceneGraphChanged have no effect except that they empty the editor
// while its window is hidden.
constexpr unsigned int wantedMessages = kavoMessageIds::sceneCleared | kavoMessageIds::sceneLoaded
    | kavoMessageIds::nodeShown | kavoMessageIds::sceneGraphChanged
    | kavoMessageIds::selectionChanged;

QString titleOf(const osg::NodePtr &node, const QString &name)
{
    return QStringLiteral(" - %1 (%2)").arg(name, QString::number(node.getFieldContainerId()));
}

} // namespace

/// The library's only exported function. The module lives from the first call to process exit.
extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    static kavoNodeEditor module;
}

kavoNodeEditor *kavoNodeEditor::_the = nullptr;

kavoNodeEditor::kavoNodeEditor()
    : kavoModuleBase("Node Editor", "Info", wantedMessages, nullptr)
{
    _the = this;
    m_window = new kavoNodeEditorGUIW(kavoController::getMainWindow());
    kavoController::getDockWindowManager()->add("Node Editor", "Scene", m_window,
        "Hintcard_Attributes", kavoIconManager::getIcon("ModuleNodeEditor", ""), tr("Attributes"),
        Qt::NoDockWidgetArea, true, nullptr);

    auto *layout = new QBoxLayout(QBoxLayout::LeftToRight, m_window->_frame);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    m_editor = new kavoFCEditorWidget(m_window->_frame, nullptr);
    layout->addWidget(m_editor);

    connect(m_window, &kavoNodeEditorGUIW::show, this, &kavoNodeEditor::show);
    kavoController::addCB(kavoCallNames::updateNodeEditorByMaterial, updateByMaterial);
}

kavoNodeEditor::~kavoNodeEditor()
{
    std::puts("kavoNodeEditor::~kavoNodeEditor");
    delete m_window;
    kavoController::subCB(kavoCallNames::updateNodeEditorByMaterial, updateByMaterial);
}

QWidget *kavoNodeEditor::getWidget() const
{
    return m_window;
}

void kavoNodeEditor::init()
{
}

void kavoNodeEditor::updateByMaterial(kavoMessage &message)
{
    if (!_the || !_the->m_window->isVisible())
        return;
    osg::MaterialPtr material = osg::NullFC;
    if (getFromMessage(message, "material", material) && material != osg::NullFC)
        _the->m_editor->setFC(QString(), material);
}

bool kavoNodeEditor::receivedMessage(kavoMessage &message)
{
    if (m_window && !m_window->isVisible()) {
        setNode(osg::NullFC);
        return false;
    }
    try {
        dispatch(message);
    } catch (...) {
        kavoLog::error("kavoNodeEditor::receivedMessage : An unknown exception occurred!");
    }
    return false;
}

void kavoNodeEditor::dispatch(const kavoMessage &message)
{
    switch (message.id()) {
    case kavoMessageIds::sceneCleared:
        setNode(osg::NullFC);
        break;
    case kavoMessageIds::nodeShown:
        showAttributeNode(message);
        break;
    case kavoMessageIds::selectionChanged:
        if (kavoScenegraph::getSelectedNode() == osg::NullFC)
            setNode(osg::NullFC);
        break;
    default:
        break;
    }
}

// Deliberate: a message without a usable node empties the editor.
void kavoNodeEditor::showAttributeNode(const kavoMessage &message)
{
    osg::NodePtr node = osg::NullFC;
    getFromMessage(message, "node", node);
    setNode(node);
}

void kavoNodeEditor::setNode(osg::NodePtr node)
{
    if (!m_editor)
        return;
    QString title = tr("Node Editor");
    QString name;
    if (node != osg::NullFC) {
        name = QString::fromUtf8(kavoScenegraph::getNodeName(node));
        title += titleOf(node, name);
    }
    m_window->setWindowTitle(title);
    m_editor->setFC(name, node);
}

void kavoNodeEditor::show()
{
    m_window->raise();
    kavoGuarded(
        "Showing the selected node", [this] { setNode(kavoScenegraph::getSelectedNode()); });
}

void kavoNodeEditor::editedField()
{
}
