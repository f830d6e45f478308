#pragma once

#include <OpenSG/OSGValueFieldTypes.h>
#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

/// The text is the components, separated by two blanks.
template <class T> struct VectorFieldTraits : TextFieldTraits<T>
{
    typedef const T &ArgumentType;

    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal.setValueFromCString(inVal);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr)
    {
        outStr.clear();
        NumberText::writeList(outStr, inVal.getValues(), T::Size, "  ");
    }
};

OSG_VEC_VALUE_TYPES(OSG_VALUE_TRAITS)
OSG_PNT_VALUE_TYPES(OSG_VALUE_TRAITS)

OSG_END_NAMESPACE
