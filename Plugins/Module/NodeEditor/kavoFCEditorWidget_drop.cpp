#include "kavoFCEditorWidget.h"

#include <kavoDragFormats.h>
#include <kavoGuarded.h>
#include <kavoNodeUtils.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGNode.h>

#include <QDataStream>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

#include <vector>

namespace {

// The first id of each item. An item that the payload's end cuts off is none.
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

// Null for an id of nothing, of a dead container and of a container that is no node. A bare handle:
// a kavoNodePtr that drops the only reference to a node would destroy it.
osg::NodePtr nodeOf(qint32 id)
{
    const auto *factory = osg::FieldContainerFactory::the();
    return osg::NodePtr::dcast(factory->getContainer(static_cast<osg::UInt32>(id)));
}

// The one node of a payload of two ids an item, if it has a core; null for several items.
osg::NodePtr onlyNode(const QByteArray &payload)
{
    const std::vector<qint32> items = readItems(payload, 2);
    const osg::NodePtr node = items.size() == 1 ? nodeOf(items.front()) : osg::NodePtr();
    return node != osg::NullFC && node->getCore() != osg::NullFC ? node : osg::NodePtr();
}

}

void kavoFCEditorWidget::dragEnterEvent(QDragEnterEvent *event)
{
    using namespace kavoDragFormats;
    for (const char *format : { materials, lights, cameras }) {
        if (event->mimeData()->hasFormat(format)) {
            event->acceptProposedAction();
            return;
        }
    }
}

// Deliberate: a drop that carries several formats runs through all handlers, the last one wins.
void kavoFCEditorWidget::dropEvent(QDropEvent *event)
{
    kavoGuarded("Showing what was dropped", [&] { showDropped(*event->mimeData()); });
}

void kavoFCEditorWidget::showDropped(const QMimeData &data)
{
    if (data.hasFormat(kavoDragFormats::materials))
        dropMaterial(data.data(kavoDragFormats::materials));
    if (data.hasFormat(kavoDragFormats::lights))
        dropLight(data.data(kavoDragFormats::lights));
    if (data.hasFormat(kavoDragFormats::cameras))
        dropCamera(data.data(kavoDragFormats::cameras));
}

// Shows nothing for several materials. A group without a material empties the editor.
void kavoFCEditorWidget::dropMaterial(const QByteArray &payload)
{
    const osg::NodePtr node = onlyNode(payload);
    if (node == osg::NullFC)
        return;
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        setFC(QString(), group->getMaterial());
}

void kavoFCEditorWidget::dropLight(const QByteArray &payload)
{
    const osg::NodePtr node = onlyNode(payload);
    if (node != osg::NullFC)
        setFC(kavoNodeUtils::getName(node), node);
}

void kavoFCEditorWidget::dropCamera(const QByteArray &payload)
{
    for (const qint32 id : readItems(payload, 1)) {
        const osg::NodePtr node = nodeOf(id);
        if (node != osg::NullFC) {
            setFC(kavoNodeUtils::getName(node), node);
            return;
        }
    }
}
