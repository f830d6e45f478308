#pragma once

#include <OpenSG/OSGFieldType.h>

OSG_BEGIN_NAMESPACE

/// Finds field types and creates fields. A field type is known as soon as it is constructed.
/// Unknown numbers and names give NULL.
class FieldFactory
{
public:
    static FieldFactory &the();

    /// Creates a field. The caller deletes it.
    Field *createField(UInt32 typeId);
    Field *createField(const Char8 *szName);

    static UInt32 getNFieldTypes();
    static FieldType *getFieldType(UInt32 typeId);
    static FieldType *getFieldType(const Char8 *szName);
    const Char8 *getFieldTypeName(UInt32 typeId);

private:
    FieldFactory() = default;
};

OSG_END_NAMESPACE
