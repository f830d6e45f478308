#pragma once

#include <OpenSG/OSGFieldDataType.h>

/// A row for each value type of fields:
///   DO(C++ type, name space of its traits, name after SF and MF, content type, parent of that,
///      base template of its traits with its text and binary form)
/// These rows generate the traits, the typedefs of the fields and the definitions of the field
/// types.

#define OSG_SYS_VALUE_TYPES(DO)                                                                    \
    DO(bool, 2, Bool, "bool", "IntegralType", BoolFieldTraits)                                     \
    DO(Int8, 0, Int8, "Int8", "IntegralType", NumberFieldTraits)                                   \
    DO(UInt8, 0, UInt8, "UInt8", "IntegralType", NumberFieldTraits)                                \
    DO(Int16, 0, Int16, "Int16", "IntegralType", NumberFieldTraits)                                \
    DO(UInt16, 0, UInt16, "UInt16", "IntegralType", NumberFieldTraits)                             \
    DO(Int32, 0, Int32, "Int32", "IntegralType", NumberFieldTraits)                                \
    DO(UInt32, 0, UInt32, "UInt32", "IntegralType", NumberFieldTraits)                             \
    DO(Int64, 0, Int64, "Int64", "IntegralType", NumberFieldTraits)                                \
    DO(UInt64, 0, UInt64, "UInt64", "IntegralType", NumberFieldTraits)                             \
    DO(Real32, 0, Real32, "Real32", "IntegralType", NumberFieldTraits)                             \
    DO(Real64, 0, Real64, "Real64", "IntegralType", NumberFieldTraits)                             \
    DO(void *, 0, VoidP, "VoidP", "IntegralType", TextlessFieldTraits)

#define OSG_BASE_VALUE_TYPES(DO)                                                                   \
    DO(std::string, 0, String, "string", "BaseType", StringFieldTraits)                            \
    DO(Time, 1, Time, "Time", "BaseType", NumberFieldTraits)                                       \
    DO(Color3f, 0, Color3f, "Color3f", "BaseType", ColorFieldTraits)                               \
    DO(Color4f, 0, Color4f, "Color4f", "BaseType", ColorFieldTraits)                               \
    DO(Color3ub, 0, Color3ub, "Color3ub", "BaseType", ColorFieldTraits)                            \
    DO(Color4ub, 0, Color4ub, "Color4ub", "BaseType", ColorFieldTraits)                            \
    DO(BoxVolume, 0, BoxVolume, "BoxVolume", "BaseType", VolumeFieldTraits)                        \
    DO(DynamicVolume, 0, DynamicVolume, "DynamicVolume", "BaseType", VolumeFieldTraits)            \
    DO(BitVector, 1, BitVector, "BitVector", "BaseType", TextlessFieldTraits)                      \
    DO(GLenum, 1, GLenum, "GLenum", "BaseType", NumberFieldTraits)                                 \
    DO(Plane, 0, Plane, "Plane", "BaseType", PlaneFieldTraits)

#define OSG_MATH_VALUE_TYPES(DO)                                                                   \
    DO(Matrix, 0, Matrix, "Matrix", "BaseType", MatrixFieldTraits)                                 \
    DO(Matrix4d, 0, Matrix4d, "Matrix4d", "BaseType", MatrixFieldTraits)                           \
    DO(Quaternion, 0, Quaternion, "Quaternion", "BaseType", QuaternionFieldTraits)

#define OSG_VECTOR_ROW(DO, Type) DO(Type, 0, Type, #Type, "BaseType", VectorFieldTraits)
#define OSG_VECTOR_ROWS(DO, Type)                                                                  \
    OSG_VECTOR_ROW(DO, Type##ub)                                                                   \
    OSG_VECTOR_ROW(DO, Type##b)                                                                    \
    OSG_VECTOR_ROW(DO, Type##us)                                                                   \
    OSG_VECTOR_ROW(DO, Type##s)                                                                    \
    OSG_VECTOR_ROW(DO, Type##f)                                                                    \
    OSG_VECTOR_ROW(DO, Type##d)                                                                    \
    OSG_VECTOR_ROW(DO, Type##ld)
#define OSG_VEC_VALUE_TYPES(DO)                                                                    \
    OSG_VECTOR_ROWS(DO, Vec2)                                                                      \
    OSG_VECTOR_ROWS(DO, Vec3)                                                                      \
    OSG_VECTOR_ROWS(DO, Vec4)
#define OSG_PNT_VALUE_TYPES(DO)                                                                    \
    OSG_VECTOR_ROWS(DO, Pnt2)                                                                      \
    OSG_VECTOR_ROWS(DO, Pnt3)                                                                      \
    OSG_VECTOR_ROWS(DO, Pnt4)

#define OSG_TRAITS_TEMPLATE_0 FieldDataTraits
#define OSG_TRAITS_TEMPLATE_1 FieldDataTraits1
#define OSG_TRAITS_TEMPLATE_2 FieldDataTraits2

/// The traits of a row.
#define OSG_VALUE_TRAITS(Type, nameSpace, Name, contentName, parentName, Base)                     \
    template <> struct OSG_TRAITS_TEMPLATE_##nameSpace<Type> : Base<Type>                          \
    {                                                                                              \
        static DataType _type;                                                                     \
        static DataType &getType() { return _type; }                                               \
        static const Char8 *getSName() { return "SF" #Name; }                                      \
        static const Char8 *getMName() { return "MF" #Name; }                                      \
    };

/// The typedef of the field of a row. Only the library instantiates its code.
#define OSG_VALUE_FIELD(Template, prefix, Type, nameSpace, Name)                                   \
    typedef Template<Type, nameSpace> prefix##Name;                                                \
    template <> FieldType Template<Type, nameSpace>::_fieldType;                                   \
    extern template class Template<Type, nameSpace>;
#define OSG_VALUE_SFIELD(Type, nameSpace, Name, contentName, parentName, Base)                     \
    OSG_VALUE_FIELD(SField, SF, Type, nameSpace, Name)
#define OSG_VALUE_MFIELD(Type, nameSpace, Name, contentName, parentName, Base)                     \
    OSG_VALUE_FIELD(MField, MF, Type, nameSpace, Name)

OSG_BEGIN_NAMESPACE

/// Base for types whose text can be read and written.
template <class T> struct TextFieldTraits : FieldTraitsIntegralRecurseMapper<T>
{
    enum {
        StringConvertable = FieldTraits::ToStringConvertable | FieldTraits::FromStringConvertable
    };
    static T getDefault() { return T(); }
};

/// Base for types without a text form.
template <class T> struct TextlessFieldTraits : FieldTraitsIntegralRecurseMapper<T>
{
    enum { StringConvertable = 0 };
    static T getDefault() { return T(); }
};

template <class T> struct NumberFieldTraits : TextFieldTraits<T>
{
    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal = NumberText::read<T>(inVal);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr)
    {
        outStr.clear();
        NumberText::write(outStr, inVal);
    }
};

OSG_END_NAMESPACE
