#include "Views/kavoNodeTreeView.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoNodeDeleter.h"
#include "Views/kavoNodeTreeModel.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTreeView>
#include <QVBoxLayout>
#include <kavoScenegraph.h>

namespace {

constexpr int filterDelayMilliseconds = 150;
constexpr int opensAllUpTo = 2000; // filtered nodes
constexpr int otherwiseOpenLevels = 2;
constexpr int maxLevels = 2000; // of open rows; the tree view recurses once a level
constexpr int coreColumnWidth = 90, idColumnWidth = 50; // pixels, until the user decides

bool isTooDeep(const osg::NodePtr &node)
{
    int levels = 0;
    for (osg::NodePtr at = node; at != osg::NullFC && levels <= maxLevels; at = at->getParent())
        ++levels;
    return levels > maxLevels;
}

} // namespace

kavoNodeTreeView::kavoNodeTreeView(kavoOpenScene &scene, QWidget *parent)
    : QWidget(parent)
    , m_model(new kavoNodeTreeModel(scene, this))
    , m_scene(scene)
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeView(this))
    , m_deletion(new QAction(tr("D&elete Node..."), this))
{
    setUpTree();
    setUpFilter();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_filter);
    layout->addWidget(m_tree);
    setUpDeletion();
    connect(&scene, &kavoOpenScene::selectionChanged, this, &kavoNodeTreeView::showSelection);
    connect(&scene, &kavoOpenScene::structureChanged, this, &kavoNodeTreeView::dropLostSelection,
        Qt::QueuedConnection); // after the model has followed
    showAll();
}

void kavoNodeTreeView::setUpTree()
{
    // Connected before the tree view, which selects the next row when a row is removed.
    connect(
        m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { m_following = true; });
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, [this] { m_following = false; });
    m_tree->setModel(m_model);
    m_tree->installEventFilter(this);
    m_tree->setUniformRowHeights(true); // rows are not measured one by one
    m_tree->setAlternatingRowColors(true);
    m_tree->setAccessibleName(tr("Nodes of the scene"));
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(kavoNodeTreeModel::NameColumn, QHeaderView::Stretch);
    m_tree->header()->resizeSection(kavoNodeTreeModel::CoreColumn, coreColumnWidth);
    m_tree->header()->resizeSection(kavoNodeTreeModel::IdColumn, idColumnWidth);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &kavoNodeTreeView::select);
    connect(m_model, &QAbstractItemModel::modelReset, this, &kavoNodeTreeView::showAll);
}

void kavoNodeTreeView::setUpFilter()
{
    m_filter->setPlaceholderText(tr("Filter by name, core type or ID"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_filterDelay.setSingleShot(true);
    m_filterDelay.setInterval(filterDelayMilliseconds);
    connect(m_filter, &QLineEdit::textChanged, &m_filterDelay, qOverload<>(&QTimer::start));
    connect(m_filter, &QLineEdit::returnPressed, this, &kavoNodeTreeView::applyFilter);
    connect(&m_filterDelay, &QTimer::timeout, this, &kavoNodeTreeView::applyFilter);
}

void kavoNodeTreeView::setUpDeletion()
{
    m_deletion->setShortcut(Qt::Key_Delete);
    m_deletion->setShortcutContext(Qt::WidgetShortcut); // elsewhere the key deletes text
    m_tree->addAction(m_deletion);
    connect(m_deletion, &QAction::triggered, this, &kavoNodeTreeView::confirmDeletion);
}

// Key events instead of shortcuts: while the host loads, Escape is a shortcut of the main window,
// and that must have priority.
bool kavoNodeTreeView::eventFilter(QObject *watched, QEvent *event)
{
    const bool isHandled = event->type() == QEvent::KeyPress
        && react(watched, static_cast<QKeyEvent *>(event)->key());
    return isHandled || QWidget::eventFilter(watched, event);
}

bool kavoNodeTreeView::react(const QObject *widget, int key)
{
    if (widget == m_tree && key == Qt::Key_Escape)
        selectNothing();
    else if (widget == m_filter && key == Qt::Key_Escape)
        m_filter->clear();
    else if (widget == m_filter && key == Qt::Key_Down)
        enterTree();
    else
        return false;
    return true;
}

void kavoNodeTreeView::enterTree()
{
    applyFilter();
    m_tree->setFocus();
}

void kavoNodeTreeView::applyFilter()
{
    m_filterDelay.stop();
    m_model->setFilter(m_filter->text());
}

/// Opens the rows again that a reset has closed.
void kavoNodeTreeView::showAll()
{
    if (m_filter->text().isEmpty())
        m_tree->expandToDepth(0);
    else if (m_model->filteredCount() <= opensAllUpTo)
        m_tree->expandAll();
    else
        m_tree->expandToDepth(otherwiseOpenLevels);
    showSelection();
}

void kavoNodeTreeView::showSelection()
{
    const osg::NodePtr selected = kavoScenegraph::getSelectedNode();
    if (m_model->node(m_tree->currentIndex()) == selected
        && m_tree->selectionModel()->hasSelection())
        return;
    const QScopedValueRollback<bool> following(m_following, true);
    const QModelIndex index = isTooDeep(selected) ? QModelIndex() : m_model->indexOf(selected);
    if (index.isValid())
        m_tree->setCurrentIndex(index); // opens its parents and scrolls there
    else
        m_tree->clearSelection();
}

void kavoNodeTreeView::select()
{
    if (m_following)
        return;
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    kavoScenegraph::setSelectedNode(m_model->node(rows.value(0)));
}

void kavoNodeTreeView::selectNothing()
{
    kavoScenegraph::setSelectedNode(osg::NullFC);
}

void kavoNodeTreeView::confirmDeletion()
{
    const osg::NodePtr node = kavoScenegraph::getSelectedNode();
    if (node == osg::NullFC || !kavoNodeDeleter::canDelete(node))
        return;
    const osg::UInt32 id = kavoContainers::id(node);
    const QString question = tr("Delete the node \"%1\" and everything below it?")
                                 .arg(QString::fromUtf8(kavoScenegraph::getNodeName(node)));
    if (QMessageBox::question(this, tr("Delete node"), question) != QMessageBox::Yes)
        return;
    // Queued behind the message about the selection, on which the node editor releases the node.
    selectNothing();
    QMetaObject::invokeMethod(
        this, [this, id] { kavoNodeDeleter::deleteNode(id, m_scene); }, Qt::QueuedConnection);
}

void kavoNodeTreeView::dropLostSelection()
{
    const osg::NodePtr selected = kavoScenegraph::getSelectedNode();
    if (selected != osg::NullFC && !kavoContainers::isWithin(selected, kavoScenegraph::getRoot()))
        selectNothing();
    if (!m_filter->text().isEmpty())
        applyFilter();
    else
        showSelection();
}
