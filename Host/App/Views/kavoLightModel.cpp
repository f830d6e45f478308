#include "Views/kavoLightModel.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoCoreIcons.h"
#include "Views/kavoListSetup.h"

#include <kavoDragFormats.h>

kavoLightModel::kavoLightModel(kavoOpenScene &scene, QObject *parent)
    : QAbstractTableModel(parent)
    , m_scene(scene)
    , m_entries(scene.lights())
{
    connect(&scene, &kavoOpenScene::lightsChanged, this, &kavoLightModel::reset);
    connect(&scene, &kavoOpenScene::changed, this, &kavoLightModel::update);
}

void kavoLightModel::reset()
{
    beginResetModel();
    m_entries = m_scene.lights();
    endResetModel();
}

void kavoLightModel::update(const kavoChanges &changes)
{
    for (int row = 0; row < rowCount(); ++row) {
        const kavoOpenScene::Entry &entry = m_entries[std::size_t(row)];
        if (changes.touched.contains(entry.node) || changes.touched.contains(entry.core))
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    }
}

osg::NodePtr kavoLightModel::node(const QModelIndex &index) const
{
    return index.isValid() ? kavoContainers::node(m_entries[std::size_t(index.row())].node)
                           : osg::NodePtr();
}

osg::LightPtr kavoLightModel::light(const QModelIndex &index) const
{
    return osg::LightPtr::dcast(kavoContainers::find(m_entries[std::size_t(index.row())].core));
}

int kavoLightModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int kavoLightModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant kavoLightModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || light(index) == osg::NullFC || node(index) == osg::NullFC)
        return {};
    if (role == Qt::DisplayRole)
        return text(index);
    if (role == Qt::DecorationRole && index.column() == NameColumn)
        return kavoCoreIcons::icon(light(index));
    if (role == Qt::CheckStateRole && index.column() == NameColumn)
        return light(index)->getOn() ? Qt::Checked : Qt::Unchecked;
    return {};
}

QVariant kavoLightModel::text(const QModelIndex &index) const
{
    switch (index.column()) {
    case NameColumn:
        return kavoContainers::name(node(index));
    case TypeColumn:
        return QString(light(index)->getTypeName());
    default:
        return QString::number(node(index).getFieldContainerId());
    }
}

bool kavoLightModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || light(index) == osg::NullFC)
        return false;
    const osg::LightPtr edited = light(index);
    osg::beginEditCP(edited, osg::Light::OnFieldMask);
    edited->setOn(value.toInt() == Qt::Checked);
    osg::endEditCP(edited, osg::Light::OnFieldMask);
    return true; // dataChanged follows with the change list, as for edits made anywhere else
}

QVariant kavoLightModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return kavoListSetup::title({ tr("Light"), tr("Type"), tr("ID") }, section, orientation, role);
}

Qt::ItemFlags kavoLightModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid())
        flags |= Qt::ItemIsDragEnabled;
    if (index.column() == NameColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QStringList kavoLightModel::mimeTypes() const
{
    return { kavoDragFormats::lights };
}

QMimeData *kavoLightModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<qint32> ids;
    for (const QModelIndex &index : indexes) {
        if (index.column() != NameColumn)
            continue;
        const kavoOpenScene::Entry &entry = m_entries[std::size_t(index.row())];
        ids << qint32(entry.node) << qint32(entry.core);
    }
    return kavoListSetup::drag(kavoDragFormats::lights, ids);
}
