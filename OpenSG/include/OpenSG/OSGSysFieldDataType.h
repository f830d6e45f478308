#pragma once

#include <OpenSG/OSGReal16.h>
#include <OpenSG/OSGValueFieldTypes.h>

OSG_BEGIN_NAMESPACE

/// The text is TRUE or FALSE. Reading accepts texts that begin with true or false in any letter
/// case. Any other text leaves the value alone.
template <class T> struct BoolFieldTraits : TextFieldTraits<T>
{
    static bool getFromString(bool &outVal, const Char8 *&inVal);
    static void putToString(const bool &inVal, std::string &outStr)
    {
        outStr = inVal ? "TRUE" : "FALSE";
    }
};

template <> bool BoolFieldTraits<bool>::getFromString(bool &outVal, const Char8 *&inVal);

OSG_SYS_VALUE_TYPES(OSG_VALUE_TRAITS)

/// Half floats have traits and field typedefs, but their field types are not registered. So such
/// fields can be declared but not created.
template <> struct FieldDataTraits<Real16> : FieldTraitsIntegralRecurseMapper<Real16>
{
    static DataType _type;
    enum { StringConvertable = ToStringConvertable | FromStringConvertable };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFReal16"; }
    static const Char8 *getMName() { return "MFReal16"; }
    static Real16 getDefault() { return Real16(); }
    static bool getFromString(Real16 &outVal, const Char8 *&inVal)
    {
        outVal = Real16(NumberText::read<Real32>(inVal));
        return true;
    }
    static void putToString(const Real16 &inVal, std::string &outStr)
    {
        outStr.clear();
        NumberText::write(outStr, static_cast<Real32>(inVal));
    }
};

OSG_END_NAMESPACE
