#include <OpenSG/OSGFieldContainerPtrBase.h>

#include "Containers/OSGFieldContainerHeader.h"

#include <OpenSG/OSGThread.h>

#include <utility>

OSG_BEGIN_NAMESPACE

Int32 FieldContainerPtrBase::getRefCount() const
{
    return _container ? _container->header().refCount : 0;
}

UInt32 FieldContainerPtrBase::getFieldContainerId() const
{
    return _container ? _container->header().id : 0;
}

UInt16 FieldContainerPtrBase::getContainerSize() const
{
    return _container ? static_cast<UInt16>(_container->getContainerSize()) : 0;
}

void FieldContainerPtrBase::dump(UInt32 uiIndent, const BitVector bvFlags) const
{
    if (_container) {
        _container->dump(uiIndent, bvFlags);
    }
}

void addRefCP(const FieldContainerPtrBase &handle)
{
    if (!handle) {
        return;
    }
    FieldContainer::Header &header = handle._container->header();
    ++header.refCount;
    if (ChangeList *changes = Thread::getCurrentChangeList()) {
        changes->addAddRefd(header.id);
    }
}

void subRefCP(const FieldContainerPtrBase &handle)
{
    if (!handle) {
        return;
    }
    FieldContainer::Header &header = handle._container->header();
    if (--header.refCount <= 0) {
        std::exchange(handle._container, nullptr)->destroy();
    } else if (ChangeList *changes = Thread::getCurrentChangeList()) {
        changes->addSubRefd(header.id);
    }
}

// The new container gets its reference first, because the old container may hold the only other
// one.
void setRefdCP(FieldContainerPtrBase &handle, const FieldContainerPtrBase &newHandle)
{
    if (handle == newHandle) {
        return;
    }
    const FieldContainerPtrBase old = handle;
    addRefCP(newHandle);
    handle = newHandle;
    subRefCP(old);
}

void clearRefCP(FieldContainerPtrBase &handle)
{
    const FieldContainerPtrBase old = handle;
    handle = NullFC;
    subRefCP(old);
}

OSG_END_NAMESPACE
