#include "IO/OSGPointerField.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNode.h>

OSG_BEGIN_NAMESPACE

PointerField::PointerField(const FieldContainerPtr &owner, Field &field, bool keepsEmptyPlaces)
    : _owner(owner)
    , _field(field)
    , _keepsEmptyPlaces(keepsEmptyPlaces)
    , _kind(kindOf(owner, field))
{
}

PointerField::Kind PointerField::kindOf(const FieldContainerPtr &owner, const Field &field)
{
    if (field.getType() == SFAttachmentMap::getClassType()) {
        return Kind::Attachments;
    }
    if (const NodePtr node = NodePtr::dcast(owner)) {
        if (&field == node->getMFChildren()) {
            return Kind::Children;
        }
        if (&field == node->getSFCore()) {
            return Kind::Core;
        }
    }
    return field.getCardinality() == FieldType::MULTI_FIELD ? Kind::List : Kind::Single;
}

// A core is accepted as a child, because add() makes a node for it.
bool PointerField::accepts(const FieldContainerType &type) const
{
    switch (_kind) {
    case Kind::Attachments:
        return type.isAttachment() && AttachmentContainerPtr::dcast(_owner);
    case Kind::Children:
        return type.isNode() || type.isNodeCore();
    default:
        return _field.acceptsFieldContainer(type);
    }
}

void PointerField::add(const FieldContainerPtr &container)
{
    switch (_kind) {
    case Kind::Attachments:
        AttachmentContainerPtr::dcast(_owner)->addAttachment(AttachmentPtr::dcast(container));
        break;
    case Kind::Children: {
        const NodePtr node = NodePtr::dcast(container);
        const NodePtr child = node ? node : makeNodeFor(NodeCorePtr::dcast(container));
        NodePtr::dcast(_owner)->addChild(child);
        break;
    }
    case Kind::Core:
        NodePtr::dcast(_owner)->setCore(NodeCorePtr::dcast(container));
        break;
    case Kind::List:
        if (container || _keepsEmptyPlaces) {
            _field.pushFieldContainer(container);
        }
        break;
    case Kind::Single:
        _field.pushFieldContainer(container);
        break;
    }
}

// Traversals of a circle of nodes never end. Materials that reference each other are never
// destroyed.
bool PointerField::mustBeTree(const FieldContainerType &type) const
{
    return _kind == Kind::Children || type.isDerivedFrom(Material::getClassType());
}

OSG_END_NAMESPACE
