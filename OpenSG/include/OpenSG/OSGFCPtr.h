#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

OSG_BEGIN_NAMESPACE

/// Handle to a container of the class FieldContainerTypeT. BasePtrTypeT is the handle of its parent
/// class. A handle converts to all its base handles. Use dcast for the other direction.
template <class BasePtrTypeT, class FieldContainerTypeT> class FCPtr : public BasePtrTypeT
{
public:
    typedef FieldContainerTypeT StoredObjectType;
    typedef FCPtr ObjectType;
    typedef BasePtrTypeT Inherited;
    typedef FCPtr Self;

    /// Returns null for a null handle and for a container of another class.
    template <class InTypeT> static FCPtr dcast(const InTypeT &oIn)
    {
        return FCPtr(dynamic_cast<FieldContainerTypeT *>(oIn.getBaseCPtr()));
    }

    constexpr FCPtr() = default;
    constexpr FCPtr(const NullFieldContainerPtr &) { }
    constexpr FCPtr(const FCPtr &) = default;
    explicit FCPtr(const FieldContainerTypeT &container)
        : Inherited(&container)
    {
    }
    explicit FCPtr(const FieldContainerTypeT *container)
        : Inherited(container)
    {
    }

    FieldContainerTypeT *operator->() const { return getCPtr(); }
    FieldContainerTypeT &operator*() const { return *getCPtr(); }
    FieldContainerTypeT *getCPtr() const
    {
        return static_cast<FieldContainerTypeT *>(this->getBaseCPtr());
    }

    void operator=(const FCPtr &other) { Inherited::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Inherited::operator=(null); }
};

template <class BasePtrTypeT, class FieldContainerTypeT>
std::ostream &operator<<(std::ostream &os, const FCPtr<BasePtrTypeT, FieldContainerTypeT> &handle)
{
    return HandleText::write(os, "FCPtr", handle);
}

/// The same as PtrT::dcast.
template <class PtrT, class InTypeT> PtrT dynamic_fcptr_cast(const InTypeT &handle)
{
    return PtrT::dcast(handle);
}

template <class PtrT> typename PtrT::StoredObjectType *getCPtr(const PtrT &handle)
{
    return handle.getCPtr();
}

template <class PtrT> Int32 getRefCount(const PtrT &handle)
{
    return handle.getRefCount();
}

template <class PtrT> UInt32 getContainerId(const PtrT &handle)
{
    return handle.getFieldContainerId();
}

template <class PtrT> void subRef(const PtrT &handle)
{
    subRefCP(handle);
}

/// Deliberate: this function of OpenSG 1.8 drops a reference. Clients that expect this behave the
/// same with this library.
template <class PtrT>
[[deprecated("drops a reference, as in OpenSG 1.8; use addRefCP")]] void addRef(const PtrT &handle)
{
    subRefCP(handle);
}

OSG_END_NAMESPACE
