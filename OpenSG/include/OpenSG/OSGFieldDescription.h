#pragma once

#include <OpenSG/OSGFieldContainerBase.h>
#include <OpenSG/OSGFieldType.h>

OSG_BEGIN_NAMESPACE

class Field;
class FieldContainer;

typedef Field *(FieldContainer::*FieldAccessMethod)();
typedef Field *(FieldContainer::*FieldIndexAccessMethod)(UInt32);
typedef Field *(*FieldAccessFunction)(FieldContainer &);

/// Describes a field of a container class: its name, id and type, and how to access it.
class FieldDescription
{
public:
    /// `elementType` is the described type. The field itself may have another type
    /// (Field::getType). `defaultValue` is a remark for readers, not the value in a new container.
    FieldDescription(const TypeBase &elementType, const Char8 *szName, const UInt32 uiFieldId,
        const BitVector vFieldMask, const bool bInternal, FieldAccessMethod fAccessMethod,
        const Char8 *defaultValue = nullptr);
    FieldDescription(const TypeBase &elementType, const Char8 *szName, const UInt32 uiFieldId,
        const BitVector vFieldMask, const bool bInternal,
        FieldIndexAccessMethod fIndexedAccessMethod, const Char8 *defaultValue = nullptr);
    FieldDescription(const TypeBase &elementType, const Char8 *szName, const UInt32 uiFieldId,
        const BitVector vFieldMask, const bool bInternal, FieldAccessFunction accessFunction,
        const Char8 *defaultValue = nullptr);
    FieldDescription(const FieldDescription &source);
    virtual ~FieldDescription() = default;

    const Char8 *getCName() const { return _name.str(); }
    const IDString &getName() const { return _name; }
    UInt32 getTypeId() const { return _fieldType.getId(); }
    const TypeBase &getFieldType() const { return _fieldType; }

    BitVector getFieldMask() const { return _fieldMask; }
    void setFieldMask(BitVector vFieldMask) { _fieldMask = vFieldMask; }
    UInt32 getFieldId() const { return _fieldId; }
    void setFieldId(UInt32 uiFieldId) { _fieldId = uiFieldId; }

    const Char8 *getDefaultValue() const { return _defaultValue.str(); }
    /// Internal fields are not written to scene files.
    bool isInternal() const { return _internal; }
    bool isValid() const { return _name.getLength() > 0; }

    void setAccessMethod(FieldAccessMethod fAccessMethod) { _accessMethod = fAccessMethod; }
    void setIndexAccessMethod(FieldIndexAccessMethod fMethod) { _indexAccessMethod = fMethod; }

protected:
    friend class FieldContainer;
    friend class FieldContainerPtr;

    /// Returns NULL, with a warning, if the description has no access method.
    Field *getField(FieldContainer &dataStore) const;

private:
    const TypeBase &_fieldType;
    IDString _name;
    UInt32 _fieldId;
    BitVector _fieldMask;
    bool _internal;
    IDString _defaultValue;
    FieldAccessMethod _accessMethod = nullptr;
    FieldIndexAccessMethod _indexAccessMethod = nullptr;
    FieldAccessFunction _accessFunction = nullptr;
};

/// Orders description pointers by field id.
struct FieldDescriptionPLT
{
    bool operator()(const FieldDescription *left, const FieldDescription *right) const
    {
        return left->getFieldId() < right->getFieldId();
    }
};

OSG_END_NAMESPACE
