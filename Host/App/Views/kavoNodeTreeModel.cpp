#include "Views/kavoNodeTreeModel.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoNodeWalk.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoCoreIcons.h"

#include <algorithm>
#include <iterator>
#include <kavoNodeUtils.h>
#include <kavoScenegraph.h>
#include <utility>

struct kavoNodeTreeModel::Item
{
    osg::UInt32 nodeId = 0;
    Item *parent = nullptr;
    int row = 0;
    bool fetched = false;
    std::vector<std::unique_ptr<Item>> children;
};

kavoNodeTreeModel::kavoNodeTreeModel(kavoOpenScene &scene, QObject *parent)
    : QAbstractItemModel(parent)
{
    connect(&scene, &kavoOpenScene::replaced, this, &kavoNodeTreeModel::reset);
    connect(&scene, &kavoOpenScene::changed, this, &kavoNodeTreeModel::update);
    reset();
}

kavoNodeTreeModel::~kavoNodeTreeModel()
{
    forget(std::move(m_top));
}

void kavoNodeTreeModel::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    reset();
}

void kavoNodeTreeModel::reset()
{
    beginResetModel();
    forget(std::exchange(m_top, std::make_unique<Item>()));
    m_top->fetched = true;
    findVisible();
    const osg::UInt32 root = kavoContainers::id(kavoScenegraph::getRoot());
    if (root != 0 && isVisible(root)) {
        m_top->children.push_back(std::make_unique<Item>(Item { root, m_top.get(), 0, false, {} }));
        m_items[root] = m_top->children.front().get();
    }
    endResetModel();
}

void kavoNodeTreeModel::findVisible()
{
    m_visible.clear();
    if (m_filter.isEmpty())
        return;
    kavoNodeWalk::forEachNode(kavoScenegraph::getRoot(), [this](osg::NodePtr node) {
        if (!matches(node))
            return true;
        while (node != osg::NullFC && m_visible.insert(kavoContainers::id(node)).second)
            node = node->getParent();
        return true;
    });
}

bool kavoNodeTreeModel::isVisible(osg::UInt32 id) const
{
    return m_filter.isEmpty() || m_visible.count(id) != 0;
}

bool kavoNodeTreeModel::matches(const osg::NodePtr &node) const
{
    return text(node, NameColumn).contains(m_filter, Qt::CaseInsensitive)
        || text(node, CoreColumn).contains(m_filter, Qt::CaseInsensitive)
        || text(node, IdColumn) == m_filter;
}

osg::NodePtr kavoNodeTreeModel::node(const QModelIndex &index) const
{
    return index.isValid() ? kavoContainers::node(itemAt(index)->nodeId) : osg::NodePtr();
}

QModelIndex kavoNodeTreeModel::indexOf(const osg::NodePtr &node)
{
    std::vector<osg::UInt32> path; // the node and its ancestors without rows
    osg::NodePtr at = node;
    for (; at != osg::NullFC && m_items.count(kavoContainers::id(at)) == 0; at = at->getParent())
        path.push_back(kavoContainers::id(at));
    QModelIndex index
        = at == osg::NullFC ? QModelIndex() : indexAt(*m_items[kavoContainers::id(at)]);
    for (auto id = path.rbegin(); id != path.rend() && index.isValid(); ++id) {
        fetchMore(index);
        const auto found = m_items.find(*id);
        index = found == m_items.end() ? QModelIndex() : indexAt(*found->second);
    }
    return index;
}

kavoNodeTreeModel::Item *kavoNodeTreeModel::itemAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Item *>(index.internalPointer()) : m_top.get();
}

QModelIndex kavoNodeTreeModel::indexAt(const Item &item, int column) const
{
    return createIndex(item.row, column, const_cast<Item *>(&item));
}

QModelIndex kavoNodeTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return indexAt(*itemAt(parent)->children[std::size_t(row)], column);
}

QModelIndex kavoNodeTreeModel::parent(const QModelIndex &index) const
{
    const Item *parent = index.isValid() ? itemAt(index)->parent : nullptr;
    return !parent || parent == m_top.get() ? QModelIndex() : indexAt(*parent);
}

int kavoNodeTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(itemAt(parent)->children.size());
}

int kavoNodeTreeModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

bool kavoNodeTreeModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0 || canFetchMore(parent);
}

bool kavoNodeTreeModel::canFetchMore(const QModelIndex &parent) const
{
    if (parent.column() > 0 || itemAt(parent)->fetched)
        return false;
    const osg::NodePtr parentNode = node(parent);
    if (parentNode == osg::NullFC)
        return false;
    return m_filter.isEmpty() ? parentNode->getNChildren() > 0 : !childIds(parentNode).empty();
}

void kavoNodeTreeModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    itemAt(parent)->fetched = true;
    syncChildren(*itemAt(parent));
}

QVariant kavoNodeTreeModel::data(const QModelIndex &index, int role) const
{
    const osg::NodePtr shown = node(index);
    if (shown == osg::NullFC)
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(shown, index.column());
    if (role == Qt::DecorationRole && index.column() == NameColumn)
        return kavoCoreIcons::icon(shown->getCore());
    return {};
}

QVariant kavoNodeTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QStringList titles { tr("Name"), tr("Core"), tr("ID") };
    const bool isShown = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isShown ? titles.value(section) : QVariant();
}

QString kavoNodeTreeModel::text(const osg::NodePtr &node, int column) const
{
    switch (column) {
    case NameColumn:
        return QString::fromUtf8(kavoNodeUtils::getName(node));
    case CoreColumn:
        return node->getCore() == osg::NullFC ? QString() : node->getCore()->getTypeName();
    default:
        return QString::number(node.getFieldContainerId());
    }
}

kavoNodeTreeModel::Ids kavoNodeTreeModel::childIds(const osg::NodePtr &node) const
{
    Ids ids;
    for (osg::UInt32 i = 0; node != osg::NullFC && i < node->getNChildren(); ++i) {
        const osg::UInt32 id = kavoContainers::id(node->getChild(i));
        if (isVisible(id))
            ids.push_back(id);
    }
    return ids;
}

void kavoNodeTreeModel::update(const kavoChanges &changes)
{
    if (!m_top->children.empty() && changes.destroyed.contains(m_top->children[0]->nodeId))
        return reset();
    bool unfetchedChanged = false;
    for (auto entry = changes.changed.cbegin(); entry != changes.changed.cend(); ++entry)
        unfetchedChanged |= updateItem(entry.key(), entry.value());
    if (unfetchedChanged) { // the arrow of a closed row may have to appear or disappear
        emit layoutAboutToBeChanged();
        emit layoutChanged();
    }
    for (const osg::UInt32 id : changes.touched) {
        const auto found = m_items.find(id);
        if (found != m_items.end())
            emit dataChanged(indexAt(*found->second), indexAt(*found->second, ColumnCount - 1));
    }
}

/// Updates the rows below an open row. \returns whether the children of a closed row changed
bool kavoNodeTreeModel::updateItem(osg::UInt32 id, osg::BitVector fields)
{
    const auto found = m_items.find(id);
    if (found == m_items.end() || (fields & osg::Node::ChildrenFieldMask) == 0)
        return false;
    if (found->second->fetched)
        syncChildren(*found->second);
    return !found->second->fetched;
}

/// Makes the child rows equal to the children of the node. Keeps the rows that both lists begin and
/// end with, so that usually only one row is inserted or removed.
void kavoNodeTreeModel::syncChildren(Item &item)
{
    const Ids ids = childIds(kavoContainers::node(item.nodeId));
    const auto &rows = item.children;
    const auto same = [](osg::UInt32 id, const auto &row) { return id == row->nodeId; };
    const auto begin = std::mismatch(ids.begin(), ids.end(), rows.begin(), rows.end(), same);
    const auto end = std::mismatch(ids.rbegin(), std::make_reverse_iterator(begin.first),
        rows.rbegin(), std::make_reverse_iterator(begin.second), same);
    const int row = int(begin.first - ids.begin());
    removeItems(item, row, int(end.second.base() - begin.second));
    insertItems(item, row, begin.first, end.first.base());
}

void kavoNodeTreeModel::insertItems(
    Item &parent, int row, Ids::const_iterator begin, Ids::const_iterator end)
{
    if (begin == end)
        return;
    beginInsertRows(indexAt(parent), row, row + int(end - begin) - 1);
    std::vector<std::unique_ptr<Item>> items;
    for (auto id = begin; id != end; ++id) {
        items.push_back(std::make_unique<Item>(Item { *id, &parent, 0, false, {} }));
        m_items[*id] = items.back().get();
    }
    parent.children.insert(parent.children.begin() + row, std::make_move_iterator(items.begin()),
        std::make_move_iterator(items.end()));
    for (auto i = std::size_t(row); i < parent.children.size(); ++i)
        parent.children[i]->row = int(i);
    endInsertRows();
}

void kavoNodeTreeModel::removeItems(Item &parent, int row, int count)
{
    if (count == 0)
        return;
    beginRemoveRows(indexAt(parent), row, row + count - 1);
    const auto begin = parent.children.begin() + row;
    std::for_each(begin, begin + count, [this](auto &item) { forget(std::move(item)); });
    parent.children.erase(begin, begin + count);
    for (auto i = std::size_t(row); i < parent.children.size(); ++i)
        parent.children[i]->row = int(i);
    endRemoveRows();
}

/// Destroys an item with its subtree, without recursion.
void kavoNodeTreeModel::forget(std::unique_ptr<Item> top)
{
    std::vector<std::unique_ptr<Item>> open;
    if (top)
        open.push_back(std::move(top));
    while (!open.empty()) {
        const std::unique_ptr<Item> item = std::move(open.back());
        open.pop_back();
        const auto found = m_items.find(item->nodeId);
        if (found != m_items.end()
            && found->second == item.get()) // otherwise another row shows the node
            m_items.erase(found);
        std::move(item->children.begin(), item->children.end(), std::back_inserter(open));
    }
}
