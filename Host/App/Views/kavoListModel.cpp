#include "Views/kavoListModel.h"

#include "Scene/kavoContainers.h"

#include <QFont>
#include <QMimeData>
#include <kavoDragFormats.h>

#include <utility>

namespace {

constexpr quintptr topLevel = 0; // internal id of node rows; a material's is its parent's row + 1

bool isMaterialRow(const QModelIndex &index)
{
    return index.internalId() != topLevel;
}

} // namespace

kavoListModel::kavoListModel(
    const kavoListDescription &description, kavoOpenScene &scene, QObject *parent)
    : QAbstractItemModel(parent)
    , m_description(description)
    , m_entries(description.entries())
{
    connect(&scene, &kavoOpenScene::replaced, this, &kavoListModel::followEntries);
    connect(&scene, &kavoOpenScene::materialsChanged, this, &kavoListModel::followEntries);
    connect(&scene, &kavoOpenScene::lightsChanged, this, &kavoListModel::followEntries);
    connect(&scene, &kavoOpenScene::changed, this, &kavoListModel::update);
    connect(
        &scene, &kavoOpenScene::materialRenderingRequested, this, &kavoListModel::renderSwatches);
}

void kavoListModel::followEntries()
{
    kavoOpenScene::Entries entries = m_description.entries();
    if (entries == m_entries)
        return;
    beginResetModel();
    m_entries = std::move(entries);
    m_swatches.clear();
    endResetModel();
}

void kavoListModel::renderSwatches()
{
    m_swatches.clear();
    for (int row = 0; m_description.hasMaterialRows && row < rowCount(); ++row)
        emitRowChanged(row);
}

void kavoListModel::update(const kavoChanges &changes)
{
    if (!changes.destroyed.isEmpty())
        followEntries();
    const QSet<osg::UInt32> outdated = m_swatches.dropOutdated(changes);
    const auto isTouched = [&](osg::UInt32 id) { return changes.touched.contains(id); };
    for (int row = 0; row < rowCount(); ++row) {
        const kavoListDescription::Entry &entry = m_entries[std::size_t(row)];
        if (outdated.contains(entry.content) || isTouched(entry.node) || isTouched(entry.content))
            emitRowChanged(row);
    }
}

void kavoListModel::emitRowChanged(int row)
{
    const QModelIndex node = index(row, 0);
    emit dataChanged(node, node.sibling(row, ColumnCount - 1));
    if (rowCount(node) > 0)
        emit dataChanged(index(0, 0, node), index(0, ColumnCount - 1, node));
}

void kavoListModel::activate(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    m_description.activate(entry(index));
    if (m_description.isActive) // the mark moves from one row to another
        emit dataChanged(this->index(0, 0), this->index(rowCount() - 1, ColumnCount - 1));
}

const kavoListDescription::Entry &kavoListModel::entry(const QModelIndex &index) const
{
    const QModelIndex node = isMaterialRow(index) ? index.parent() : index;
    return m_entries[std::size_t(node.row())];
}

osg::FieldContainerPtr kavoListModel::shown(const QModelIndex &index) const
{
    return kavoContainers::find(isMaterialRow(index) ? entry(index).content : entry(index).node);
}

// Lists without material rows show name and id of the node, but the type of its content.
osg::FieldContainerPtr kavoListModel::typed(const QModelIndex &index) const
{
    return m_description.hasMaterialRows ? shown(index)
                                         : kavoContainers::find(entry(index).content);
}

bool kavoListModel::isActive(const QModelIndex &index) const
{
    return m_description.isActive && m_description.isActive(entry(index));
}

QModelIndex kavoListModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row() + 1) : topLevel);
}

QModelIndex kavoListModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || !isMaterialRow(index))
        return {};
    return createIndex(int(index.internalId()) - 1, 0, topLevel);
}

int kavoListModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_entries.size());
    const bool mayHaveRow
        = m_description.hasMaterialRows && !isMaterialRow(parent) && parent.column() == NameColumn;
    return mayHaveRow && entry(parent).content != 0 ? 1 : 0;
}

int kavoListModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant kavoListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || shown(index) == osg::NullFC || typed(index) == osg::NullFC)
        return {};
    if (role == Qt::DisplayRole)
        return text(index);
    if (isActive(index) && (role == Qt::FontRole || role == Qt::ToolTipRole))
        return activeMark(role);
    return index.column() == NameColumn ? nameData(index, role) : QVariant();
}

QString kavoListModel::text(const QModelIndex &index) const
{
    switch (index.column()) {
    case NameColumn: {
        const QString name = kavoContainers::name(shown(index));
        return isActive(index) ? tr("%1 (active)").arg(name) : name;
    }
    case TypeColumn:
        return typed(index)->getTypeName();
    default:
        return QString::number(kavoContainers::id(shown(index)));
    }
}

QVariant kavoListModel::activeMark(int role) const
{
    if (role == Qt::ToolTipRole)
        return m_description.activeToolTip;
    QFont bold;
    bold.setBold(true);
    return bold;
}

QVariant kavoListModel::nameData(const QModelIndex &index, int role) const
{
    if (role == Qt::DecorationRole && isMaterialRow(index))
        return m_swatches.swatch(entry(index).content);
    if (role == Qt::DecorationRole)
        return m_description.icon(entry(index));
    if (role == Qt::CheckStateRole && m_description.isOn)
        return m_description.isOn(entry(index)) ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool kavoListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const bool isAccepted = role == Qt::CheckStateRole && m_description.setOn && index.isValid()
        && typed(index) != osg::NullFC;
    if (isAccepted)
        m_description.setOn(entry(index), value.toInt() == Qt::Checked);
    return isAccepted;
}

QVariant kavoListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isShown = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isShown ? m_description.columns.value(section) : QVariant();
}

Qt::ItemFlags kavoListModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (index.isValid())
        flags |= Qt::ItemIsDragEnabled;
    if (index.column() == NameColumn && m_description.setOn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QStringList kavoListModel::mimeTypes() const
{
    return { m_description.dragFormat };
}

QMimeData *kavoListModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<qint32> ids, nodes;
    for (const QModelIndex &index : indexes) {
        const kavoListDescription::Entry &dragged = entry(index);
        if (nodes.contains(qint32(dragged.node))) // another cell of a row, or its other row
            continue;
        nodes << qint32(dragged.node);
        ids << qint32(dragged.node);
        if (m_description.dragsContent)
            ids << qint32(dragged.content);
    }
    auto *data = new QMimeData;
    data->setData(m_description.dragFormat, kavoDragFormats::payload(ids));
    return data;
}
