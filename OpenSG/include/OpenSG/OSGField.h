#pragma once

#include <OpenSG/OSGFieldType.h>

#include <string>

OSG_BEGIN_NAMESPACE

class BinaryDataHandler;
class FieldContainerPtr;
class FieldContainerType;
class StringConversionStateBase;

/// A value or a list of values. Callers can read and write it without knowing its C++ type.
class Field
{
public:
    virtual ~Field() = default;

    virtual const FieldType &getType() const = 0;
    const DataType &getContentType() const { return getType().getContentType(); }
    FieldType::Cardinality getCardinality() const { return getType().getCardinality(); }

    /// A single field is never empty. Its size is 1.
    virtual bool isEmpty() const = 0;
    virtual UInt32 getSize() const = 0;

    /// Replaces the value of a single field. Appends a value to a multi-field. An invalid text is
    /// not reported; the result depends on the type.
    virtual void pushValueByStr(const Char8 *str) = 0;

    /// Writes the text to `str` and returns `str`. Single fields replace `str`, multi-fields append
    /// to it. The overload with a conversion state always appends. Values without a text form add
    /// nothing.
    virtual std::string &getValueByStr(std::string &str) const = 0;
    virtual std::string &getValueByStr(
        std::string &str, StringConversionStateBase &state) const = 0;
    virtual std::string &getValueByStr(std::string &str, UInt32 index) const = 0;

    /// Copies `obj` if it has exactly the same field type. Otherwise does nothing.
    virtual void setAbstrValue(const Field &obj) = 0;
    virtual void dump() const = 0;

    /// Binary form: its size in bytes, writing it, and reading it in place of the value.
    virtual UInt32 getBinSize() = 0;
    virtual void copyToBin(BinaryDataHandler &target) = 0;
    virtual void copyFromBin(BinaryDataHandler &source) = 0;

    /// The container that the pointer at `index` refers to, whatever the type of its handle; the
    /// null handle for a field of values and for an index out of range.
    virtual FieldContainerPtr getFieldContainer(UInt32 index = 0) const;

    /// Whether this is a field of pointers that may refer to containers of the type: the content
    /// type of such a field is called after a container type, with "Ptr" behind it.
    bool acceptsFieldContainer(const FieldContainerType &type) const;
    /// Replaces the pointer of a single field, appends one to a multi-field. A container of a type
    /// that is not accepted changes nothing, null always is. References are not counted here:
    /// classes that count them do so when the edit ends.
    void pushFieldContainer(const FieldContainerPtr &container);

protected:
    Field() = default;
    Field(const Field &) = default;
    Field &operator=(const Field &) = default;

    /// The handle at `index` seen as its base class; NULL where there is none.
    virtual const FieldContainerPtr *findHandle(UInt32 index) const;
    /// Does nothing in a field of values.
    virtual void storeHandle(const FieldContainerPtr &container) = 0;
    void dumpText() const;
};

OSG_END_NAMESPACE
