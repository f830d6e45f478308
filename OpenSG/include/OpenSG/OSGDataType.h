#pragma once

#include <OpenSG/OSGTypeBase.h>

OSG_BEGIN_NAMESPACE

/// Type of the values of a field, or of a container.
class DataType : public TypeBase
{
public:
    using TypeBase::TypeBase;
};

OSG_END_NAMESPACE
