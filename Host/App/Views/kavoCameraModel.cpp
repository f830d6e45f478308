#include "Views/kavoCameraModel.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Scene/kavoSceneCameras.h"
#include "Views/kavoListSetup.h"

#include <QFont>
#include <kavoDragFormats.h>
#include <kavoIconManager.h>

kavoCameraModel::kavoCameraModel(kavoOpenScene &scene, QObject *parent)
    : QAbstractTableModel(parent)
    , m_nodeIds(kavoSceneCameras::nodeIds())
{
    connect(&scene, &kavoOpenScene::replaced, this, &kavoCameraModel::reset);
    connect(&scene, &kavoOpenScene::changed, this, &kavoCameraModel::update);
}

void kavoCameraModel::reset()
{
    beginResetModel();
    m_nodeIds = kavoSceneCameras::nodeIds();
    endResetModel();
}

void kavoCameraModel::update(const kavoChanges &changes)
{
    if (!changes.destroyed.isEmpty() && kavoSceneCameras::nodeIds() != m_nodeIds)
        reset();
    for (int row = 0; row < rowCount(); ++row) {
        const osg::UInt32 node = m_nodeIds[std::size_t(row)];
        const osg::UInt32 camera = kavoContainers::id(kavoSceneCameras::at(node));
        if (changes.touched.contains(node) || changes.touched.contains(camera))
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    }
}

void kavoCameraModel::activate(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    kavoSceneCameras::activate(m_nodeIds[std::size_t(index.row())]);
    emit dataChanged(this->index(0, 0), this->index(rowCount() - 1, ColumnCount - 1));
    emit activeCameraChanged();
}

int kavoCameraModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_nodeIds.size());
}

int kavoCameraModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant kavoCameraModel::data(const QModelIndex &index, int role) const
{
    const osg::UInt32 nodeId = index.isValid() ? m_nodeIds[std::size_t(index.row())] : 0;
    if (nodeId == 0 || kavoSceneCameras::at(nodeId) == osg::NullFC)
        return {};
    const bool active = nodeId == kavoSceneCameras::activeNodeId();
    if (role == Qt::DisplayRole)
        return text(nodeId, index.column());
    if (role == Qt::DecorationRole && index.column() == NameColumn)
        return kavoIconManager::getIcon("Camera");
    if (role == Qt::FontRole && active) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role == Qt::ToolTipRole && active)
        return tr("The active camera");
    return {};
}

QVariant kavoCameraModel::text(osg::UInt32 nodeId, int column) const
{
    switch (column) {
    case NameColumn: {
        const QString name = kavoContainers::name(kavoContainers::node(nodeId));
        return nodeId == kavoSceneCameras::activeNodeId() ? tr("%1 (active)").arg(name) : name;
    }
    case TypeColumn:
        return QString(kavoSceneCameras::at(nodeId)->getTypeName());
    default:
        return QString::number(nodeId);
    }
}

QVariant kavoCameraModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return kavoListSetup::title({ tr("Camera"), tr("Type"), tr("ID") }, section, orientation, role);
}

Qt::ItemFlags kavoCameraModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList kavoCameraModel::mimeTypes() const
{
    return { kavoDragFormats::cameras };
}

QMimeData *kavoCameraModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<qint32> ids;
    for (const QModelIndex &index : indexes) {
        if (index.column() == NameColumn)
            ids << qint32(m_nodeIds[std::size_t(index.row())]);
    }
    return kavoListSetup::drag(kavoDragFormats::cameras, ids);
}
