#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldText.h>
#include <OpenSG/OSGMFieldVector.h>
#include <OpenSG/OSGStringConversionStateBase.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

/// A field of any number of values.
template <class FieldTypeT, Int32 fieldNameSpace = 0> class MField : public Field
{
public:
    typedef typename FieldTraitsSelector<FieldTypeT, fieldNameSpace>::Traits MFieldTraits;
    typedef FieldTypeT StoredType;
    typedef MFieldVector<FieldTypeT> StorageType;
    typedef std::vector<FieldTypeT> StorageTypeParent;
    typedef typename StorageType::reference reference;
    typedef typename StorageType::const_reference const_reference;
    typedef typename StorageType::iterator iterator;
    typedef typename StorageType::const_iterator const_iterator;
    typedef typename StorageType::reverse_iterator reverse_iterator;
    typedef typename StorageType::const_reverse_iterator const_reverse_iterator;
    typedef typename MFieldTraits::ArgumentType ArgumentType;

    static const FieldType &getClassType() { return _fieldType; }

    MField() = default;
    MField(const MField &) = default;
    explicit MField(const UInt32 size)
        : _values(size)
    {
    }

    const FieldType &getType() const override { return _fieldType; }
    bool isEmpty() const override { return _values.empty(); }
    UInt32 getSize() const override { return size(); }
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
    void setValues(const MField &source) { _values = source._values; }
    void setAbstrValue(const Field &obj) override;
    void operator=(const MField &source) { _values = source._values; }
    void syncWith(MField &source) { _values = source._values; }
    void swap(MField &other) { _values.swap(other._values); }

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

    void pushValueByStr(const Char8 *str) override;
    std::string &getValueByStr(std::string &str) const override;
    std::string &getValueByStr(std::string &str, StringConversionStateBase &state) const override;
    std::string &getValueByStr(std::string &str, UInt32 index) const override;
    void dump() const override { dumpText(); }

    UInt32 getBinSize() override;
    void copyToBin(BinaryDataHandler &target) override;
    void copyFromBin(BinaryDataHandler &source) override;

protected:
    const FieldContainerPtr *findHandle(UInt32 index) const override;
    void storeHandle(const FieldContainerPtr &container) override;

    StorageType _values;

private:
    static Field *create() { return new MField; }

    static FieldType _fieldType;
};

template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::setAbstrValue(const Field &obj)
{
    if (const auto *source = dynamic_cast<const MField *>(&obj)) {
        _values = source->_values;
    }
}

/// A text that does not parse still adds an element, the type's default.
template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::pushValueByStr(const Char8 *str)
{
    FieldTypeT value {};
    FieldText::read<MFieldTraits>(value, str);
    _values.push_back(value);
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &MField<FieldTypeT, fieldNameSpace>::getValueByStr(std::string &str) const
{
    for (UInt32 i = 0; i < size(); ++i) {
        getValueByStr(str.append(i > 0 ? ", " : ""), i);
    }
    return str;
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &MField<FieldTypeT, fieldNameSpace>::getValueByStr(
    std::string &str, StringConversionStateBase &state) const
{
    state.beginField(this, str);
    for (UInt32 i = 0; i < size(); ++i) {
        std::string text;
        state.addValueStr(getValueByStr(text, i), str);
    }
    return state.endField(this, str);
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &MField<FieldTypeT, fieldNameSpace>::getValueByStr(std::string &str, UInt32 index) const
{
    if (index < size()) {
        std::string text;
        FieldText::write<MFieldTraits, FieldTypeT>(_values[index], text);
        str += text;
    }
    return str;
}

template <class FieldTypeT, Int32 fieldNameSpace>
UInt32 MField<FieldTypeT, fieldNameSpace>::getBinSize()
{
    UInt32 size = sizeof(UInt32);
    for (const FieldTypeT &value : _values) {
        size += MFieldTraits::getBinSize(value);
    }
    return size;
}

template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::copyToBin(BinaryDataHandler &target)
{
    target.putValue(size());
    for (const FieldTypeT &value : _values) {
        MFieldTraits::copyToBin(target, value);
    }
}

/// The list ends with the bytes, whatever length they promise; elements that take up none are no
/// more than the bytes that follow.
template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::copyFromBin(BinaryDataHandler &source)
{
    UInt32 count = 0;
    source.getValue(count);
    _values.clear();
    const std::size_t most = std::min<std::size_t>(count, source.getRest());
    for (std::size_t i = 0; i < most && source.getRest() > 0; ++i) {
        FieldTypeT value {};
        MFieldTraits::copyFromBin(source, value);
        _values.push_back(value);
    }
}

template <class FieldTypeT, Int32 fieldNameSpace>
const FieldContainerPtr *MField<FieldTypeT, fieldNameSpace>::findHandle(UInt32 index) const
{
    return index < size() ? FieldText::asHandle<FieldTypeT>(_values[index]) : nullptr;
}

template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::storeHandle(const FieldContainerPtr &container)
{
    FieldTypeT handle {};
    if (FieldText::assignHandle(handle, container)) {
        _values.push_back(handle);
    }
}

OSG_END_NAMESPACE
