#pragma once

#include <OpenSG/OSGFCPtr.h>

OSG_BEGIN_NAMESPACE

/// Handle to a container of any type, for reading only.
class ConstFieldContainerPtr : public FieldContainerPtrBase
{
public:
    typedef const FieldContainer StoredObjectType;
    typedef ConstFieldContainerPtr ObjectType;
    typedef FieldContainerPtrBase Inherited;

    constexpr ConstFieldContainerPtr() = default;
    constexpr ConstFieldContainerPtr(const NullFieldContainerPtr &) { }
    constexpr ConstFieldContainerPtr(const ConstFieldContainerPtr &) = default;
    ConstFieldContainerPtr(const FieldContainerPtr &handle)
        : Inherited(handle)
    {
    }

    const FieldContainer *operator->() const { return getBaseCPtr(); }
    const FieldContainer &operator*() const { return *getBaseCPtr(); }
    const FieldContainer *getCPtr() const { return getBaseCPtr(); }

    void operator=(const NullFieldContainerPtr &null) { Inherited::operator=(null); }
    void operator=(const ConstFieldContainerPtr &other) { Inherited::operator=(other); }

protected:
    explicit ConstFieldContainerPtr(const FieldContainer *container)
        : Inherited(container)
    {
    }
};

/// Handle to a container of the class FieldContainerTypeT, for reading only. BasePtrTypeT is the
/// same kind of handle of its parent class. All handles of the class convert to it.
template <class BasePtrTypeT, class FieldContainerTypeT> class ConstFCPtr : public BasePtrTypeT
{
public:
    typedef const FieldContainerTypeT StoredObjectType;
    typedef ConstFCPtr ObjectType;
    typedef BasePtrTypeT Inherited;
    typedef ConstFCPtr Self;

    /// Returns null for a null handle and for a container of another class.
    template <class InTypeT> static ConstFCPtr dcast(const InTypeT &oIn)
    {
        return ConstFCPtr(dynamic_cast<const FieldContainerTypeT *>(oIn.getBaseCPtr()));
    }

    constexpr ConstFCPtr() = default;
    constexpr ConstFCPtr(const NullFieldContainerPtr &) { }
    constexpr ConstFCPtr(const ConstFCPtr &) = default;
    ConstFCPtr(const typename FieldContainerTypeT::Ptr &handle)
        : Inherited(handle.getCPtr())
    {
    }
    explicit ConstFCPtr(const FieldContainerTypeT &container)
        : Inherited(&container)
    {
    }
    explicit ConstFCPtr(const FieldContainerTypeT *container)
        : Inherited(container)
    {
    }

    const FieldContainerTypeT *operator->() const { return getCPtr(); }
    const FieldContainerTypeT &operator*() const { return *getCPtr(); }
    const FieldContainerTypeT *getCPtr() const
    {
        return static_cast<const FieldContainerTypeT *>(this->getBaseCPtr());
    }

    void operator=(const ConstFCPtr &other) { Inherited::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Inherited::operator=(null); }
};

OSG_END_NAMESPACE
