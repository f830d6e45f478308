#pragma once

#include <OpenSG/OSGDataType.h>

OSG_BEGIN_NAMESPACE

class Field;

/// Type of a field: its content type, its cardinality and a function that creates a field.
class FieldType : public DataType
{
public:
    enum Cardinality { SINGLE_FIELD, MULTI_FIELD };
    typedef Field *(*CreateFieldMethod)();

    FieldType(const Char8 *szName, const Char8 *szParentName, const DataType &contentType,
        CreateFieldMethod createMethod, Cardinality cardinality);
    FieldType(const Char8 *szName, const Char8 *szParentName, const DataType &contentType,
        CreateFieldMethod createMethod, Cardinality cardinality, const FieldType &pScanAsType);

    const DataType &getContentType() const { return _contentType; }
    Cardinality getCardinality() const { return _cardinality; }
    /// The type whose text syntax the field has. By default it is this type.
    UInt32 getScanTypeId() const { return _scanAsType.getId(); }

    /// Creates a field. The caller deletes it. Returns NULL if the type has no creator.
    Field *createField() const { return _createMethod ? _createMethod() : nullptr; }

private:
    const DataType &_contentType;
    CreateFieldMethod _createMethod;
    Cardinality _cardinality;
    const FieldType &_scanAsType;
};

OSG_END_NAMESPACE
