#include <OpenSG/OSGFieldContainer.h>

#include "Containers/OSGFieldContainerHeader.h"

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGThread.h>

#include <new>
#include <utility>

OSG_BEGIN_NAMESPACE

namespace {

// Counts a level of nested calls for the life of a scope.
class Nested
{
public:
    explicit Nested(UInt32 &depth)
        : _depth(++depth)
    {
    }
    ~Nested() { --_depth; }
    Nested(const Nested &) = delete;
    Nested &operator=(const Nested &) = delete;

private:
    UInt32 &_depth;
};

} // namespace

FieldContainerType FieldContainer::_type("FieldContainer");

// The copy has its own header, with its own reference count and id.
FieldContainer::FieldContainer(const FieldContainer &)
{
}

FieldContainerType &FieldContainer::getClassType()
{
    return _type;
}

UInt32 FieldContainer::getClassTypeId()
{
    return _type.getId();
}

UInt16 FieldContainer::getClassGroupId()
{
    return _type.getGroupId();
}

FieldContainerType &FieldContainer::getType()
{
    return _type;
}

const FieldContainerType &FieldContainer::getType() const
{
    return _type;
}

Field *FieldContainer::getField(UInt32 fieldId)
{
    FieldDescription *description = getType().getFieldDescription(fieldId);
    return description ? description->getField(*this) : nullptr;
}

Field *FieldContainer::getField(const Char8 *fieldName)
{
    FieldDescription *description = getType().findFieldDescription(fieldName);
    return description ? description->getField(*this) : nullptr;
}

void FieldContainer::changed(BitVector, UInt32)
{
}

void FieldContainer::dump(UInt32 uiIndent, const BitVector bvFlags) const
{
    const std::string indent(uiIndent, ' ');
    FieldContainer &self = const_cast<FieldContainer &>(*this);
    osgLog() << indent << getTypeName() << ' ' << self.header().id;
    if (bvFlags & FCDumpFlags::RefCount) {
        osgLog() << " (" << self.header().refCount << " references)";
    }
    osgLog() << endLog;
    for (UInt32 id = 1; id <= getType().getNumFieldDescs(); ++id) {
        std::string text;
        if (const Field *field = self.getField(id)) {
            osgLog() << indent << "    " << getType().getFieldDescription(id)->getName() << ' '
                     << field->getValueByStr(text) << endLog;
        }
    }
}

UInt32 FieldContainer::getBinSize(const BitVector &whichField)
{
    UInt32 size = 0;
    forEachField(
        whichField & ~getMutualFields(), [&](UInt32 id) { size += getField(id)->getBinSize(); });
    return size;
}

void FieldContainer::copyToBin(BinaryDataHandler &target, const BitVector &whichField)
{
    forEachField(
        whichField & ~getMutualFields(), [&](UInt32 id) { getField(id)->copyToBin(target); });
}

void FieldContainer::copyFromBin(BinaryDataHandler &source, const BitVector &whichField)
{
    forEachField(
        whichField & ~getMutualFields(), [&](UInt32 id) { getField(id)->copyFromBin(source); });
}

void FieldContainer::executeSync(FieldContainer &other, const BitVector &whichField)
{
    executeSyncImpl(&other, whichField);
}

void FieldContainer::executeSyncImpl(FieldContainer *pOther, const BitVector &whichField)
{
    forEachField(
        whichField, [&](UInt32 id) { getField(id)->setAbstrValue(*pOther->getField(id)); });
}

// Calls the function with the id of each masked field.
template <class Function>
void FieldContainer::forEachField(BitVector whichField, const Function &function)
{
    for (UInt32 id = 1; id <= getType().getNumFieldDescs(); ++id) {
        if ((getType().getFieldDescription(id)->getFieldMask() & whichField) && getField(id)) {
            function(id);
        }
    }
}

void *FieldContainer::operator new(std::size_t size)
{
    return new (::operator new(sizeof(Header) + size)) Header + 1;
}

void FieldContainer::operator delete(void *container)
{
    ::operator delete(static_cast<Header *>(container) - 1);
}

void FieldContainer::enterInStore(const FieldContainerPtr &container)
{
    const UInt32 id = FieldContainerFactory::the()->registerContainer(container);
    container->header().id = id;
    if (ChangeList *changes = Thread::getCurrentChangeList()) {
        changes->addCreated(id);
    }
}

// A container's destruction may destroy others, and so on. Beyond maxDepth containers go into a
// list instead, so that the stack does not overflow. The list holds a reference to each. The
// outermost call destroys them.
void FieldContainer::destroy()
{
    constexpr UInt32 maxDepth = 64;
    thread_local UInt32 depth = 0;
    thread_local FieldContainer *firstToGo = nullptr;
    thread_local FieldContainer *lastToGo = nullptr;

    if (depth == maxDepth) {
        header().refCount = 1;
        header().nextToGo = nullptr;
        (firstToGo ? lastToGo->header().nextToGo : firstToGo) = this;
        lastToGo = this;
        return;
    }
    const Nested nested(depth);
    destroyNow();
    while (depth == 1 && firstToGo) {
        FieldContainer *next = std::exchange(firstToGo, firstToGo->header().nextToGo);
        if (--next->header().refCount <= 0) {
            next->destroyNow();
        } else if (ChangeList *changes = Thread::getCurrentChangeList()) {
            changes->addSubRefd(next->header().id);
        }
    }
}

// The container holds a reference to itself meanwhile. Otherwise a client that adds and drops
// a reference in onDestroy would destroy it a second time. Exceptions end here, because references
// are dropped in destructors.
void FieldContainer::destroyNow()
{
    header().refCount = 1;
    const UInt32 id = header().id;
    if (ChangeList *changes = Thread::getCurrentChangeList()) {
        changes->addDestroyed(id);
    }
    FieldContainerFactory::the()->unregisterContainer(id);
    try {
        onDestroy();
    } catch (...) {
        SWARNING << getTypeName() << "::onDestroy threw an exception" << endLog;
    }
    delete this;
}

OSG_END_NAMESPACE
