#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>

OSG_BEGIN_NAMESPACE

class Field;

/// Lays out the text of a field. The field calls addValueStr for each of its values.
class StringConversionStateBase
{
public:
    virtual ~StringConversionStateBase() = default;

    virtual std::string &beginField(const Field *pF, std::string &outStr) = 0;
    virtual std::string &addValueStr(std::string &value, std::string &outStr) = 0;
    virtual std::string &endField(const Field *pF, std::string &outStr) = 0;
};

OSG_END_NAMESPACE
