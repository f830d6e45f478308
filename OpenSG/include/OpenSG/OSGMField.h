#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldText.h>
#include <OpenSG/OSGMFieldList.h>
#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// A field of any number of values.
template <class FieldTypeT, Int32 fieldNameSpace = 0>
class MField : public Field,
               public MFieldList<FieldTypeT,
                   typename FieldTraitsSelector<FieldTypeT, fieldNameSpace>::Traits::ArgumentType>
{
public:
    typedef typename FieldTraitsSelector<FieldTypeT, fieldNameSpace>::Traits MFieldTraits;
    typedef MFieldList<FieldTypeT, typename MFieldTraits::ArgumentType> List;
    using List::size;

    static const FieldType &getClassType() { return _fieldType; }

    MField() = default;
    MField(const MField &) = default;
    explicit MField(const UInt32 size)
        : List(size)
    {
    }
    void operator=(const MField &source) { _values = source._values; }

    const FieldType &getType() const override { return _fieldType; }
    bool isEmpty() const override { return _values.empty(); }
    UInt32 getSize() const override { return size(); }
    void setAbstrValue(const Field &obj) override;

    void pushValueByStr(const Char8 *str) override;
    std::string &getValueByStr(std::string &str) const override
    {
        return FieldText::writeAll(*this, str);
    }
    std::string &getValueByStr(std::string &str, StringConversionStateBase &state) const override
    {
        return FieldText::writeAll(*this, str, state);
    }
    std::string &getValueByStr(std::string &str, UInt32 index) const override;
    void dump() const override { dumpText(); }

    UInt32 getBinSize() override;
    void copyToBin(BinaryDataHandler &target) override;
    void copyFromBin(BinaryDataHandler &source) override;

protected:
    const FieldContainerPtr *findHandle(UInt32 index) const override;
    void storeHandle(const FieldContainerPtr &container) override;

    using List::_values;

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

// An invalid text adds an element too, the default value of the type.
template <class FieldTypeT, Int32 fieldNameSpace>
void MField<FieldTypeT, fieldNameSpace>::pushValueByStr(const Char8 *str)
{
    FieldTypeT value {};
    FieldText::read<MFieldTraits>(value, str);
    _values.push_back(value);
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

// The list ends at the end of the bytes, even if its length is larger. Elements without bytes are
// not more than the bytes that follow.
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
