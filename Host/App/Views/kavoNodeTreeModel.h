#pragma once

#include <OpenSG/OSGNode.h>

#include <QAbstractItemModel>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class kavoOpenScene;
struct kavoChanges;

/// The node tree of the open scene.
///
/// Rows are created when their parent is opened, so the cost depends on what is visible and not on
/// the size of the scene. Rows hold ids instead of handles: the row of a destroyed node is empty.
class kavoNodeTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, CoreColumn, IdColumn, ColumnCount };

    explicit kavoNodeTreeModel(kavoOpenScene &scene, QObject *parent = nullptr);
    ~kavoNodeTreeModel() override;

    /// Shows only nodes whose name or core type contains the text or whose id equals it, and their
    /// ancestors. An empty text shows all nodes.
    void setFilter(const QString &text);

    /// The number of nodes that the filter shows, with ancestors. Valid only with a filter.
    int filteredCount() const { return int(m_visible.size()); }

    /// The node of a row. Null for an invalid index and for a destroyed node.
    osg::NodePtr node(const QModelIndex &index) const;

    /// The row of a node. Creates the rows of its ancestors if needed. Invalid if the node is not
    /// in the scene or is filtered out.
    QModelIndex indexOf(const osg::NodePtr &node);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Item;
    using Ids = std::vector<osg::UInt32>;

    void reset();
    void findVisible();
    bool isVisible(osg::UInt32 id) const;
    bool matches(const osg::NodePtr &node) const;
    Item *itemAt(const QModelIndex &index) const;
    QModelIndex indexAt(const Item &item, int column = NameColumn) const;
    QString text(const osg::NodePtr &node, int column) const;
    Ids childIds(const osg::NodePtr &node) const;

    void update(const kavoChanges &changes);
    bool updateItem(osg::UInt32 id, osg::BitVector fields);
    void syncChildren(Item &item);
    void insertItems(Item &parent, int row, Ids::const_iterator begin, Ids::const_iterator end);
    void removeItems(Item &parent, int row, int count);
    void forget(std::unique_ptr<Item> top);

    std::unique_ptr<Item> m_top; // not shown; its one child is the scene's root
    std::unordered_map<osg::UInt32, Item *> m_items;
    QString m_filter;
    std::unordered_set<osg::UInt32> m_visible;
};
