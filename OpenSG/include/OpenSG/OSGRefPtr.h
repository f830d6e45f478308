#pragma once

#include <OpenSG/OSGFCPtr.h>

#include <utility>

OSG_BEGIN_NAMESPACE

/// Holds a handle and one reference to its container.
template <class PtrT> class RefPtr
{
    typedef PtrT (RefPtr::*unspecified_bool_type)() const;

public:
    typedef PtrT Ptr;
    typedef typename PtrT::StoredObjectType Object;

    RefPtr() = default;
    explicit RefPtr(const PtrT &handle)
        : _handle(handle)
    {
        addRefCP(_handle);
    }
    RefPtr(const NullFieldContainerPtr &) { }
    RefPtr(const RefPtr &other)
        : RefPtr(other._handle)
    {
    }
    RefPtr(RefPtr &&other) noexcept
        : _handle(other._handle)
    {
        other._handle = NullFC;
    }
    ~RefPtr() { clearRefCP(_handle); }

    RefPtr &operator=(const PtrT &handle)
    {
        setRefdCP(_handle, handle);
        return *this;
    }
    RefPtr &operator=(const RefPtr &other) { return *this = other._handle; }
    RefPtr &operator=(RefPtr &&other) noexcept
    {
        std::swap(_handle, other._handle);
        return *this;
    }
    RefPtr &operator=(const NullFieldContainerPtr &)
    {
        clearRefCP(_handle);
        return *this;
    }

    PtrT get() const { return _handle; }
    operator PtrT() const { return _handle; }
    Object *operator->() const { return _handle.operator->(); }
    Object &operator*() const { return *_handle; }

    operator unspecified_bool_type() const { return _handle ? &RefPtr::get : nullptr; }
    bool operator!() const { return !_handle; }
    bool operator<(const RefPtr &other) const { return _handle < other._handle; }
    bool operator==(const RefPtr &other) const { return _handle == other._handle; }
    bool operator!=(const RefPtr &other) const { return _handle != other._handle; }
    bool operator==(const FieldContainerPtrBase &other) const { return _handle == other; }
    bool operator!=(const FieldContainerPtrBase &other) const { return _handle != other; }
    bool operator==(const NullFieldContainerPtr &) const { return !_handle; }
    bool operator!=(const NullFieldContainerPtr &) const { return _handle; }

private:
    PtrT _handle;
};

OSG_END_NAMESPACE
