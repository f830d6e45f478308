#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldText.h>
#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// A field of exactly one value.
template <class FieldTypeT, Int32 fieldNameSpace = 0> class SField : public Field
{
public:
    typedef typename FieldTraitsSelector<FieldTypeT, fieldNameSpace>::Traits SFieldTraits;
    typedef FieldTypeT StoredType;
    typedef FieldTypeT &reference;
    typedef const FieldTypeT &const_reference;
    typedef typename SFieldTraits::ArgumentType ArgumentType;

    static const FieldType &getClassType() { return _fieldType; }

    SField() = default;
    SField(const SField &) = default;
    explicit SField(ArgumentType value)
        : _value(value)
    {
    }

    const FieldType &getType() const override { return _fieldType; }
    bool isEmpty() const override { return false; }
    UInt32 getSize() const override { return 1; }

    reference getValue() { return _value; }
    const_reference getValue() const { return _value; }
    void setValue(ArgumentType value) { _value = value; }
    void setValue(const SField &source) { _value = source._value; }
    void setAbstrValue(const Field &obj) override;
    void operator=(const SField &source) { _value = source._value; }
    void syncWith(SField &source) { _value = source._value; }

    void pushValueByStr(const Char8 *str) override;
    std::string &getValueByStr(std::string &str) const override;
    std::string &getValueByStr(std::string &str, StringConversionStateBase &state) const override;
    std::string &getValueByStr(std::string &str, UInt32 index) const override;
    void dump() const override { dumpText(); }

    UInt32 getBinSize() override { return SFieldTraits::getBinSize(_value); }
    void copyToBin(BinaryDataHandler &target) override { SFieldTraits::copyToBin(target, _value); }
    void copyFromBin(BinaryDataHandler &source) override
    {
        SFieldTraits::copyFromBin(source, _value);
    }

protected:
    const FieldContainerPtr *findHandle(UInt32 index) const override;
    void storeHandle(const FieldContainerPtr &container) override;

    FieldTypeT _value {};

private:
    static Field *create() { return new SField; }

    static FieldType _fieldType;
};

template <class FieldTypeT, Int32 fieldNameSpace>
void SField<FieldTypeT, fieldNameSpace>::setAbstrValue(const Field &obj)
{
    if (const auto *source = dynamic_cast<const SField *>(&obj)) {
        _value = source->_value;
    }
}

template <class FieldTypeT, Int32 fieldNameSpace>
void SField<FieldTypeT, fieldNameSpace>::pushValueByStr(const Char8 *str)
{
    FieldText::read<SFieldTraits>(_value, str);
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &SField<FieldTypeT, fieldNameSpace>::getValueByStr(std::string &str) const
{
    FieldText::write<SFieldTraits>(_value, str);
    return str;
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &SField<FieldTypeT, fieldNameSpace>::getValueByStr(
    std::string &str, StringConversionStateBase &state) const
{
    if constexpr (FieldText::isWritable<SFieldTraits>) {
        std::string text;
        FieldText::write<SFieldTraits>(_value, text);
        state.beginField(this, str);
        state.addValueStr(text, str);
        state.endField(this, str);
    } else {
        FieldText::reportNoWriter();
    }
    return str;
}

template <class FieldTypeT, Int32 fieldNameSpace>
std::string &SField<FieldTypeT, fieldNameSpace>::getValueByStr(std::string &str, UInt32 index) const
{
    return index == 0 ? getValueByStr(str) : str;
}

template <class FieldTypeT, Int32 fieldNameSpace>
const FieldContainerPtr *SField<FieldTypeT, fieldNameSpace>::findHandle(UInt32 index) const
{
    return index == 0 ? FieldText::asHandle(_value) : nullptr;
}

template <class FieldTypeT, Int32 fieldNameSpace>
void SField<FieldTypeT, fieldNameSpace>::storeHandle(const FieldContainerPtr &container)
{
    FieldText::assignHandle(_value, container);
}

OSG_END_NAMESPACE
