#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// Base of the properties of one kind. Its functions convert between the stored type and ValueT.
/// Indices are not checked.
template <class BaseT, class ValueT> class AbstractGeoProperty : public BaseT
{
public:
    typedef ValueT GenericType;

    virtual ValueT getValue(const UInt32 index) const = 0;
    void getValue(ValueT &result, const UInt32 index) const { result = getValue(index); }
    virtual void setValue(const ValueT &value, const UInt32 index) = 0;
    virtual void addValue(const ValueT &value) = 0;
    void push_back(const ValueT &value) { addValue(value); }

    virtual UInt32 getSize() const = 0;
    UInt32 size() const { return getSize(); }
    bool empty() const { return getSize() == 0; }
    virtual void resize(size_t newSize) = 0;
    virtual void clear() = 0;

protected:
    AbstractGeoProperty() = default;
    AbstractGeoProperty(const AbstractGeoProperty &) = default;
    ~AbstractGeoProperty() override = default;
};

OSG_END_NAMESPACE
