#pragma once

#include <OpenSG/OSGFieldContainerBase.h>

OSG_BEGIN_NAMESPACE

class FieldContainer;
class NullFieldContainerPtr;

/// What all handles share. A handle is a small value: the address of a container and a position
/// that the container's parent may note in it. Copying a handle never touches the reference
/// count; addRefCP and subRefCP do.
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
    /// There is one aspect, so every number gives the container itself.
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

    // Mutable, since subRefCP nulls the handle with which the last reference goes.
    mutable FieldContainer *_container = nullptr;
    UInt16 _parentFieldPos = InvalidParentEPos;
};

/// Adds a reference. A new container has none. Null handles are ignored here and below.
void addRefCP(const FieldContainerPtrBase &handle);
/// Drops a reference and destroys the container if none is left, also when it never had one;
/// `handle` is null afterwards, other handles to the container dangle.
void subRefCP(const FieldContainerPtrBase &handle);
/// Moves a counted handle to another container.
void setRefdCP(FieldContainerPtrBase &handle, const FieldContainerPtrBase &newHandle);
/// Drops a reference and sets the handle to null.
void clearRefCP(FieldContainerPtrBase &handle);

OSG_END_NAMESPACE
