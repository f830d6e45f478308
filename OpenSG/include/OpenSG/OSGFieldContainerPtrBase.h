#pragma once

#include <OpenSG/OSGFieldContainerBase.h>

OSG_BEGIN_NAMESPACE

class FieldContainer;
class NullFieldContainerPtr;

/// Base of all handles. A handle holds the address of a container, and a position in a field of its
/// parent that clients may set. Copies of a handle do not change the reference count; addRefCP and
/// subRefCP do.
class FieldContainerPtrBase
{
    typedef FieldContainer *(FieldContainerPtrBase::*unspecified_bool_type)() const;

public:
    static constexpr UInt16 InvalidParentEPos = 0xFFFF;

    constexpr FieldContainerPtrBase() = default;
    constexpr FieldContainerPtrBase(const NullFieldContainerPtr &) { }
    constexpr FieldContainerPtrBase(const FieldContainerPtrBase &) = default;

    void setParentFieldPos(UInt16 position) { _parentFieldPos = position; }
    UInt16 getParentFieldPos() const { return _parentFieldPos; }

    /// All three are 0 for a null handle.
    Int32 getRefCount() const;
    UInt32 getFieldContainerId() const;
    UInt16 getContainerSize() const;

    FieldContainer *getBaseCPtr() const { return _container; }
    /// There is only one aspect, so the result is the same for every number.
    FieldContainer *getAspectCPtr(UInt32) const { return _container; }

    void operator=(const NullFieldContainerPtr &) { _container = nullptr; }
    void operator=(const FieldContainerPtrBase &other)
    {
        _container = other._container;
        _parentFieldPos = other._parentFieldPos;
    }

    bool operator<(const NullFieldContainerPtr &) const { return false; }
    bool operator==(const NullFieldContainerPtr &) const { return !_container; }
    bool operator!=(const NullFieldContainerPtr &) const { return _container; }
    bool operator<(const FieldContainerPtrBase &other) const
    {
        return _container < other._container;
    }
    bool operator==(const FieldContainerPtrBase &other) const
    {
        return _container == other._container;
    }
    bool operator!=(const FieldContainerPtrBase &other) const
    {
        return _container != other._container;
    }
    bool operator!() const { return !_container; }
    operator unspecified_bool_type() const
    {
        return _container ? &FieldContainerPtrBase::getBaseCPtr : nullptr;
    }

    /// Writes the container's fields to the log.
    void dump(UInt32 uiIndent = 0, const BitVector bvFlags = 0) const;

protected:
    explicit FieldContainerPtrBase(const FieldContainer *container)
        : _container(const_cast<FieldContainer *>(container))
    {
    }

private:
    friend void addRefCP(const FieldContainerPtrBase &handle);
    friend void subRefCP(const FieldContainerPtrBase &handle);

    // Mutable, because subRefCP sets the handle to null with the last reference.
    mutable FieldContainer *_container = nullptr;
    UInt16 _parentFieldPos = InvalidParentEPos;
};

/// Adds a reference. A new container has none. Null handles are ignored here and below.
void addRefCP(const FieldContainerPtrBase &handle);
/// Drops a reference. Destroys the container if no reference is left, even if it never had one.
/// Then `handle` becomes null and other handles to the container dangle.
void subRefCP(const FieldContainerPtrBase &handle);
/// Assigns another container to a handle that holds a reference.
void setRefdCP(FieldContainerPtrBase &handle, const FieldContainerPtrBase &newHandle);
/// Drops a reference and sets the handle to null.
void clearRefCP(FieldContainerPtrBase &handle);

OSG_END_NAMESPACE
