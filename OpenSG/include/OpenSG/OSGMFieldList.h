#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGMFieldVector.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

/// The values of a multi-field, in the style of a standard list. It is a class apart from MField,
/// so that the library's instances of MField do not instantiate these functions for every type.
template <class FieldTypeT, class ArgumentT> class MFieldList
{
public:
    typedef FieldTypeT StoredType;
    typedef MFieldVector<FieldTypeT> StorageType;
    typedef std::vector<FieldTypeT> StorageTypeParent;
    typedef typename StorageType::reference reference;
    typedef typename StorageType::const_reference const_reference;
    typedef typename StorageType::iterator iterator;
    typedef typename StorageType::const_iterator const_iterator;
    typedef typename StorageType::reverse_iterator reverse_iterator;
    typedef typename StorageType::const_reverse_iterator const_reverse_iterator;
    typedef ArgumentT ArgumentType;

    MFieldList() = default;
    explicit MFieldList(const UInt32 size)
        : _values(size)
    {
    }

    bool empty() const { return _values.empty(); }
    UInt32 size() const { return static_cast<UInt32>(_values.size()); }
    UInt32 capacity() const { return static_cast<UInt32>(_values.capacity()); }

    StorageType &getValues() { return _values; }
    const StorageType &getValues() const { return _values; }
    void setValues(const StorageType &values) { _values = values; }
    void setValues(const StorageTypeParent &values)
    {
        _values.assign(values.begin(), values.end());
    }
    void setValues(const MFieldList &source) { _values = source._values; }
    void syncWith(MFieldList &source) { _values = source._values; }
    void swap(MFieldList &other) { _values.swap(other._values); }

    reference getValue(const UInt32 index) { return _values[index]; }
    const_reference getValue(const UInt32 index) const { return _values[index]; }
    void setValue(ArgumentType value, const UInt32 index) { _values[index] = value; }
    void addValue(ArgumentType value) { _values.push_back(value); }

    reference operator[](UInt32 index) { return _values[index]; }
    const_reference operator[](UInt32 index) const { return _values[index]; }
    reference front() { return _values.front(); }
    const_reference front() const { return _values.front(); }
    reference back() { return _values.back(); }
    const_reference back() const { return _values.back(); }

    iterator begin() { return _values.begin(); }
    const_iterator begin() const { return _values.begin(); }
    iterator end() { return _values.end(); }
    const_iterator end() const { return _values.end(); }
    reverse_iterator rbegin() { return _values.rbegin(); }
    const_reverse_iterator rbegin() const { return _values.rbegin(); }
    reverse_iterator rend() { return _values.rend(); }
    const_reverse_iterator rend() const { return _values.rend(); }

    void clear() { _values.clear(); }
    void push_back(ArgumentType value) { _values.push_back(value); }
    iterator insert(iterator position, ArgumentType value)
    {
        return _values.insert(position, value);
    }
    iterator erase(iterator position) { return _values.erase(position); }
    iterator find(ArgumentType value) { return std::find(begin(), end(), value); }
    const_iterator find(ArgumentType value) const { return std::find(begin(), end(), value); }
    void resize(size_t newsize, FieldTypeT t = FieldTypeT()) { _values.resize(newsize, t); }
    void reserve(size_t newsize) { _values.reserve(newsize); }

protected:
    StorageType _values;
};

OSG_END_NAMESPACE
