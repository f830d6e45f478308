#include "kavoDrop.h"

#include <kavoDragFormats.h>
#include <kavoNodeUtils.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGNode.h>

#include <QDataStream>
#include <QMimeData>

#include <algorithm>
#include <iterator>
#include <optional>

namespace kavoDrop {

namespace {

// Returns the first id of each item. Ignores an incomplete item at the end.
std::vector<qint32> readItems(const QByteArray &payload, int idsPerItem)
{
    std::vector<qint32> firstIds(payload.size() / (idsPerItem * sizeof(qint32)));
    QDataStream stream(payload);
    for (qint32 &id : firstIds) {
        stream >> id;
        stream.skipRawData((idsPerItem - 1) * int(sizeof(qint32)));
    }
    return firstIds;
}

// Returns null if the id belongs to no living container or to one that is not a node. The result is
// a plain handle, because a kavoNodePtr would destroy a node without other references.
osg::NodePtr nodeOf(qint32 id)
{
    const auto *factory = osg::FieldContainerFactory::the();
    return osg::NodePtr::dcast(factory->getContainer(static_cast<osg::UInt32>(id)));
}

// Returns the node of a payload with a single item of two ids. Returns null if the payload has
// several items or if the node has no core.
osg::NodePtr onlyNode(const QByteArray &payload)
{
    const std::vector<qint32> items = readItems(payload, 2);
    const osg::NodePtr node = items.size() == 1 ? nodeOf(items.front()) : osg::NodePtr();
    return node != osg::NullFC && node->getCore() != osg::NullFC ? node : osg::NodePtr();
}

// Deliberate: a drag of several materials shows nothing. A group without a material empties the
// editor.
std::optional<Dropped> materialOf(const QByteArray &payload)
{
    const osg::NodePtr node = onlyNode(payload);
    if (node == osg::NullFC)
        return std::nullopt;
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group == osg::NullFC)
        return std::nullopt;
    return Dropped { QString(), group->getMaterial() };
}

std::optional<Dropped> lightOf(const QByteArray &payload)
{
    const osg::NodePtr node = onlyNode(payload);
    if (node == osg::NullFC)
        return std::nullopt;
    return Dropped { kavoNodeUtils::getName(node), node };
}

std::optional<Dropped> cameraOf(const QByteArray &payload)
{
    for (const qint32 id : readItems(payload, 1)) {
        const osg::NodePtr node = nodeOf(id);
        if (node != osg::NullFC)
            return Dropped { kavoNodeUtils::getName(node), node };
    }
    return std::nullopt;
}

constexpr struct
{
    const char *format;
    std::optional<Dropped> (*containerOf)(const QByteArray &payload);
} readers[] = {
    { kavoDragFormats::materials, materialOf },
    { kavoDragFormats::lights, lightOf },
    { kavoDragFormats::cameras, cameraOf },
};

} // namespace

bool isAccepted(const QMimeData &data)
{
    return std::any_of(std::begin(readers), std::end(readers),
        [&data](const auto &reader) { return data.hasFormat(reader.format); });
}

std::vector<Dropped> containersOf(const QMimeData &data)
{
    std::vector<Dropped> containers;
    for (const auto &[format, containerOf] : readers) {
        if (!data.hasFormat(format))
            continue;
        if (const std::optional<Dropped> dropped = containerOf(data.data(format)))
            containers.push_back(*dropped);
    }
    return containers;
}

} // namespace kavoDrop
