#include "Views/kavoMaterialModel.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoListSetup.h"
#include "Views/kavoMaterialSwatch.h"

#include <QPixmap>
#include <algorithm>
#include <kavoDragFormats.h>
#include <kavoIconManager.h>

namespace {

constexpr quintptr topLevel = 0; // internal id of node rows; a material's is its parent's row + 1

} // namespace

kavoMaterialModel::kavoMaterialModel(kavoOpenScene &scene, QObject *parent)
    : QAbstractItemModel(parent)
    , m_scene(scene)
    , m_entries(scene.materials())
{
    connect(&scene, &kavoOpenScene::materialsChanged, this, &kavoMaterialModel::reset);
    connect(&scene, &kavoOpenScene::changed, this, &kavoMaterialModel::update);
    connect(
        &scene, &kavoOpenScene::materialRenderingRequested, this, &kavoMaterialModel::renderAll);
}

void kavoMaterialModel::reset()
{
    beginResetModel();
    m_entries = m_scene.materials();
    m_swatches.clear();
    endResetModel();
}

void kavoMaterialModel::renderAll()
{
    m_swatches.clear();
    for (int row = 0; row < rowCount(); ++row)
        emitRowChanged(row);
}

void kavoMaterialModel::update(const kavoChanges &changes)
{
    const auto isTouched = [&](osg::UInt32 id) { return changes.touched.contains(id); };
    QSet<osg::UInt32> outdated;
    for (auto swatch = m_swatches.cbegin(); swatch != m_swatches.cend(); ++swatch) {
        if (std::any_of(swatch->sources.begin(), swatch->sources.end(), isTouched))
            outdated.insert(swatch.key());
    }
    for (const osg::UInt32 material : qAsConst(outdated))
        m_swatches.remove(material);
    for (int row = 0; row < rowCount(); ++row) {
        const kavoOpenScene::Entry &entry = m_entries[std::size_t(row)];
        if (outdated.contains(entry.content) || isTouched(entry.node) || isTouched(entry.content))
            emitRowChanged(row);
    }
}

void kavoMaterialModel::emitRowChanged(int row)
{
    const QModelIndex node = index(row, 0);
    emit dataChanged(node, node.sibling(row, ColumnCount - 1));
    emit dataChanged(index(0, 0, node), index(0, ColumnCount - 1, node));
}

const kavoOpenScene::Entry &kavoMaterialModel::entry(const QModelIndex &index) const
{
    const QModelIndex node = index.internalId() == topLevel ? index : index.parent();
    return m_entries[std::size_t(node.row())];
}

osg::FieldContainerPtr kavoMaterialModel::container(const QModelIndex &index) const
{
    const bool isNode = index.internalId() == topLevel;
    return kavoContainers::find(isNode ? entry(index).node : entry(index).content);
}

osg::MaterialPtr kavoMaterialModel::material(const QModelIndex &index) const
{
    if (!index.isValid())
        return osg::NullFC;
    return osg::MaterialPtr::dcast(kavoContainers::find(entry(index).content));
}

QModelIndex kavoMaterialModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row() + 1) : topLevel);
}

QModelIndex kavoMaterialModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == topLevel)
        return {};
    return createIndex(int(index.internalId()) - 1, 0, topLevel);
}

int kavoMaterialModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_entries.size());
    const bool isNode = parent.internalId() == topLevel && parent.column() == 0;
    return isNode && entry(parent).content != 0 ? 1 : 0;
}

int kavoMaterialModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant kavoMaterialModel::data(const QModelIndex &index, int role) const
{
    const osg::FieldContainerPtr shown
        = index.isValid() ? container(index) : osg::FieldContainerPtr();
    if (shown == osg::NullFC)
        return {};
    const bool isNode = index.internalId() == topLevel;
    if (role == Qt::DisplayRole && index.column() == NameColumn)
        return kavoContainers::name(shown);
    if (role == Qt::DisplayRole && index.column() == TypeColumn)
        return QString(shown->getTypeName());
    if (role == Qt::DisplayRole && index.column() == IdColumn)
        return QString::number(shown.getFieldContainerId());
    if (role == Qt::DecorationRole && index.column() == NameColumn)
        return isNode ? kavoIconManager::getIcon("Material") : swatch(entry(index).content).icon;
    return {};
}

QVariant kavoMaterialModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return kavoListSetup::title(
        { tr("Material"), tr("Type"), tr("ID") }, section, orientation, role);
}

Qt::ItemFlags kavoMaterialModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList kavoMaterialModel::mimeTypes() const
{
    return { kavoDragFormats::materials };
}

QMimeData *kavoMaterialModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<qint32> ids, nodes;
    for (const QModelIndex &index : indexes) {
        const kavoOpenScene::Entry &dragged = entry(index);
        if (nodes.contains(qint32(dragged.node))) // another cell of a row, or its other row
            continue;
        nodes << qint32(dragged.node);
        ids << qint32(dragged.node) << qint32(dragged.content);
    }
    return kavoListSetup::drag(kavoDragFormats::materials, ids);
}

const kavoMaterialModel::Swatch &kavoMaterialModel::swatch(osg::UInt32 material) const
{
    const auto found = m_swatches.constFind(material);
    if (found != m_swatches.constEnd())
        return *found;
    const auto look = kavoMaterialLook::of(osg::MaterialPtr::dcast(kavoContainers::find(material)));
    const QImage image = kavoMaterialSwatch(look, swatchSize).render();
    return *m_swatches.insert(material, { QPixmap::fromImage(image), look.sources });
}
