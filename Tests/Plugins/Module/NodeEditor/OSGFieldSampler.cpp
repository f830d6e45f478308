#include "OSGFieldSampler.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGThread.h>

OSG_BEGIN_NAMESPACE

namespace {

// Descriptions are created in the order of the table below, which determines their ids.
UInt32 nextFieldId = Attachment::NextFieldId;

template <class Class, class FieldT> const FieldType &fieldTypeOf(FieldT Class::*)
{
    return FieldT::getClassType();
}

} // namespace

bool FieldSampler::accessThrows = false;

template <auto Member> Field *FieldSampler::access()
{
    if (accessThrows)
        throw 1;
    return &(this->*Member);
}

template <auto Member> FieldDescription *FieldSampler::describe(const char *name)
{
    const UInt32 id = nextFieldId++;
    return new FieldDescription(fieldTypeOf(Member), name, id, TypeTraits<BitVector>::One << id,
        false, (FieldAccessMethod)&FieldSampler::access<Member>);
}

FieldDescription *FieldSampler::_desc[] = {
    describe<&FieldSampler::flag>("flag"),
    describe<&FieldSampler::int8>("int8"),
    describe<&FieldSampler::uint8>("uint8"),
    describe<&FieldSampler::int16>("int16"),
    describe<&FieldSampler::uint16>("uint16"),
    describe<&FieldSampler::int32>("int32"),
    describe<&FieldSampler::uint32>("uint32"),
    describe<&FieldSampler::real32>("real32"),
    describe<&FieldSampler::real64>("real64"),
    describe<&FieldSampler::time>("time"),
    describe<&FieldSampler::text>("text"),
    describe<&FieldSampler::vector>("vector"),
    describe<&FieldSampler::matrix>("matrix"),
    describe<&FieldSampler::quaternion>("quaternion"),
    describe<&FieldSampler::minFilter>("minFilter"),
    describe<&FieldSampler::color3>("color3"),
    describe<&FieldSampler::color4>("color4"),
    describe<&FieldSampler::parent>("parent"),
    describe<&FieldSampler::childs>("childs"),
    describe<&FieldSampler::associated>("associated"),
    describe<&FieldSampler::other>("other"),
    describe<&FieldSampler::reals>("reals"),
    describe<&FieldSampler::ints>("ints"),
    describe<&FieldSampler::uints>("uints"),
    describe<&FieldSampler::texts>("texts"),
    describe<&FieldSampler::vectors>("vectors"),
    describe<&FieldSampler::nodes>("nodes"),
};

FieldContainerType FieldSampler::_type(
    "FieldSampler", "Attachment", nullptr,
    []() -> FieldContainerPtr { return FieldSampler::createEmpty(); }, nullptr, FieldSampler::_desc,
    sizeof(FieldSampler::_desc));

OSG_FIELD_CONTAINER_DEF(FieldSampler, FieldSamplerPtr)

FieldSampler::FieldSampler() = default;

FieldSampler::FieldSampler(const FieldSampler &) = default;

FieldSampler::~FieldSampler() = default;

BitVector FieldSampler::maskOf(const char *name)
{
    return getClassType().findFieldDescription(name)->getFieldMask();
}

void FieldSampler::changed(BitVector mask, UInt32 origin)
{
    if (accessThrows)
        throw 1;
    ++changes;
    lastMask = mask;
    lastOrigin = origin;
    const ChangeList *list = Thread::getCurrentChangeList();
    listedBeforeChanged = list ? list->sizeChanged() : 0;
    Inherited::changed(mask, origin);
}

void FieldSampler::dump(UInt32, const BitVector) const
{
}

void FieldSampler::executeSync(FieldContainer &, const BitVector &)
{
}

OSG_END_NAMESPACE
