#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGValueFieldTypes.h>

OSG_BEGIN_NAMESPACE

/// The text is sixteen numbers, row by row.
template <class T> struct MatrixFieldTraits : TextFieldTraits<T>
{
    typedef const T &ArgumentType;

    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal.setValue(inVal, false);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr)
    {
        T rows;
        inVal.transposed(rows);
        outStr.clear();
        NumberText::writeList(outStr, rows.getValues(), 16, " ");
    }
};

/// The text is the axis and the angle in radians.
template <class T> struct QuaternionFieldTraits : TextFieldTraits<T>
{
    typedef const T &ArgumentType;

    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal.setValueAsAxisRad(inVal);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr)
    {
        typename T::ValueType numbers[4];
        inVal.getValueAsAxisRad(numbers[0], numbers[1], numbers[2], numbers[3]);
        outStr.clear();
        NumberText::writeList(outStr, numbers, 4, " ");
    }
};

OSG_MATH_VALUE_TYPES(OSG_VALUE_TRAITS)

OSG_END_NAMESPACE
