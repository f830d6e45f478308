#pragma once

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>

OSG_BEGIN_NAMESPACE

/// Container class without fields of its own, for tests that need a derived class, or a type in the
/// group of another. TraitsT describes it:
///     typedef ... Base;                      the base class
///     typedef ... BasePtr;                   the handle of the base class
///     static constexpr const Char8 *type;    the type's name
///     static constexpr const Char8 *parent;  the name of the parent type
///     static constexpr const Char8 *group;   the name of the type's group
template <class TraitsT> class DerivedContainer : public TraitsT::Base
{
    typedef typename TraitsT::Base Inherited;

public:
    typedef FCPtr<typename TraitsT::BasePtr, DerivedContainer> Ptr;

    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    FieldContainerType &getType() override { return _type; }
    const FieldContainerType &getType() const override { return _type; }
    UInt32 getContainerSize() const override { return sizeof(DerivedContainer); }

    static Ptr create() { return createEmpty(); }
    static Ptr createEmpty()
    {
        Ptr result;
        Inherited::newPtr(result);
        return result;
    }
    FieldContainerPtr shallowCopy() const override
    {
        Ptr result;
        Inherited::newPtr(result, this);
        return result;
    }

    void dump(UInt32 = 0, const BitVector = 0) const override { }

protected:
    DerivedContainer() = default;
    DerivedContainer(const DerivedContainer &) = default;
    ~DerivedContainer() override = default;

    void executeSync(FieldContainer &, const BitVector &) override { }

private:
    friend class FieldContainer;
    static FieldContainerType _type;

    void operator=(const DerivedContainer &) = delete;
};

template <class TraitsT>
FieldContainerType DerivedContainer<TraitsT>::_type(
    TraitsT::type, TraitsT::parent, TraitsT::group,
    []() -> FieldContainerPtr { return DerivedContainer::createEmpty(); }, nullptr, nullptr, 0);

OSG_END_NAMESPACE
