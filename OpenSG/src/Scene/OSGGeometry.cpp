#include <OpenSG/OSGGeometry.h>

#include <OpenSG/OSGNode.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

Geometry::Geometry(const Geometry &source)
    : Inherited(source)
{
    holdFields(FieldBits::AllFields);
}

Geometry::~Geometry()
{
    for (UInt32 i = 0; i < propertyCount; ++i) {
        hold(TypesFieldId + i, NullFC);
    }
}

Int16 Geometry::calcMappingIndex(UInt16 attrib) const
{
    const auto found = std::find_if(_mfIndexMapping.begin(), _mfIndexMapping.end(),
        [=](UInt16 properties) { return properties & attrib; });
    return found != _mfIndexMapping.end() ? static_cast<Int16>(found - _mfIndexMapping.begin())
                                          : -1;
}

void Geometry::changed(BitVector whichField, UInt32 origin)
{
    holdFields(whichField);
    if (whichField & PositionsFieldMask) {
        invalidateVolume();
    }
    Inherited::changed(whichField, origin);
}

void Geometry::adjustVolume(Volume &volume)
{
    const GeoPositionsPtr positions = getPositions();
    for (UInt32 i = 0; positions && i < positions->getSize(); ++i) {
        volume.extendBy(positions->getValue(i));
    }
}

void Geometry::forEachHeld(const HeldFunction &function) const
{
    Inherited::forEachHeld(function);
    for (const AttachmentRefPtr &property : _held) {
        function(property.get());
    }
}

void Geometry::hold(UInt32 fieldId, const AttachmentPtr &property)
{
    AttachmentRefPtr &held = _held[fieldId - TypesFieldId];
    const AttachmentPtr old = held;
    if (old == property) {
        return;
    }
    const FieldContainerPtr self = GeometryPtr(this);
    if (old) {
        beginEditCP(old, Attachment::ParentsFieldMask);
        old->subParent(self);
        endEditCP(old, Attachment::ParentsFieldMask);
    }
    if (property) {
        beginEditCP(property, Attachment::ParentsFieldMask);
        property->addParent(self);
        endEditCP(property, Attachment::ParentsFieldMask);
    }
    held = property;
}

// Adds references to properties that were assigned without their setter, by a scene file for
// example.
void Geometry::holdFields(BitVector whichField)
{
    for (UInt32 id = TypesFieldId; id <= IndicesFieldId; ++id) {
        if (whichField & (TypeTraits<BitVector>::One << id)) {
            hold(id, AttachmentPtr::dcast(getField(id)->getFieldContainer()));
        }
    }
}

OSG_END_NAMESPACE
