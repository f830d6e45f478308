#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

/// The distance of two rails, in millimetres.
struct Gauge
{
    Int32 width = 1435;
};

/// A value type of a client: its binary form is its text.
template <> struct FieldDataTraits<Gauge> : public FieldTraitsRecurseBase<Gauge>
{
    static DataType _type;
    enum { StringConvertable = ToStringConvertable | FromStringConvertable };
    static DataType &getType(void) { return _type; }
    static const char *getSName(void) { return "SFGauge"; }
    static const char *getMName(void) { return "MFGauge"; }
    static Gauge getDefault(void) { return Gauge(); }
    static bool getFromString(Gauge &outVal, const Char8 *&inVal)
    {
        outVal.width = TypeTraits<Int32>::getFromString(inVal);
        return true;
    }
    static void putToString(const Gauge &inVal, std::string &outStr)
    {
        outStr = TypeTraits<Int32>::putToString(inVal.width) + " mm";
    }
};

typedef SField<Gauge> SFGauge;
typedef MField<Gauge> MFGauge;

/// The same C++ type as Real32, hence in a name space of its own.
typedef Real32 Metres;

template <> struct FieldDataTraits1<Metres> : public FieldTraitsIntegralRecurseMapper<Metres>
{
    static DataType _type;
    enum { StringConvertable = ToStringConvertable };
    static DataType &getType(void) { return _type; }
    static const char *getSName(void) { return "SFMetres"; }
    static const char *getMName(void) { return "MFMetres"; }
    static Metres getDefault(void) { return Metres(); }
    static void putToString(const Metres &inVal, std::string &outStr)
    {
        outStr = TypeTraits<Int32>::putToString(Int32(inVal)) + " m";
    }
};

typedef SField<Metres, 1> SFMetres;
typedef MField<Metres, 1> MFMetres;

OSG_END_NAMESPACE
