#pragma once

#include <OpenSG/OSGBinaryDataHandler.h>
#include <OpenSG/OSGDataType.h>

#include <string>
#include <type_traits>

OSG_BEGIN_NAMESPACE

/// Fields can store a type if one of these three templates is specialized for it. The second and
/// third are for types that are the same C++ type as another one (Time and Real64). A
/// specialization derives from one of the bases below and has these members:
///   static DataType _type;  static DataType &getType();   the content type, defined once
///   enum { StringConvertable = ... };                      the existing directions of conversion
///   static const Char8 *getSName(), *getMName();           names of the two field types
///   static bool getFromString(T &outVal, const Char8 *&inVal);
///   static void putToString(const T &inVal, std::string &outStr);   assigns, does not append
///   static T getDefault();
template <class T> struct FieldDataTraits;
template <class T> struct FieldDataTraits1;
template <class T> struct FieldDataTraits2;

/// Selects the traits of the type T. `ns` is the number of the template above, from 0.
template <class T, Int32 ns> struct FieldTraitsSelector;
template <class T> struct FieldTraitsSelector<T, 0>
{
    typedef FieldDataTraits<T> Traits;
};
template <class T> struct FieldTraitsSelector<T, 1>
{
    typedef FieldDataTraits1<T> Traits;
};
template <class T> struct FieldTraitsSelector<T, 2>
{
    typedef FieldDataTraits2<T> Traits;
};

struct FieldTraits
{
    enum { ToStringConvertable = 0x01, FromStringConvertable = 0x02 };
    enum { bHasParent = 0x00 };

    static const Char8 *getPName() { return "Field"; }
};

/// Defines the binary form of several objects as the forms of the objects in sequence.
template <class T, class OneObject> struct FieldTraitsList : FieldTraits
{
    static UInt32 getBinSize(const T *objects, UInt32 count)
    {
        UInt32 size = 0;
        for (UInt32 i = 0; i < count; ++i) {
            size += OneObject::getBinSize(objects[i]);
        }
        return size;
    }
    static void copyToBin(BinaryDataHandler &target, const T *objects, UInt32 count)
    {
        for (UInt32 i = 0; i < count; ++i) {
            OneObject::copyToBin(target, objects[i]);
        }
    }
    static void copyFromBin(BinaryDataHandler &source, T *objects, UInt32 count)
    {
        for (UInt32 i = 0; i < count; ++i) {
            OneObject::copyFromBin(source, objects[i]);
        }
    }
};

/// Base for a type whose binary form is its text and a zero byte.
template <class T> struct FieldTraitsRecurseBase : FieldTraitsList<T, FieldTraitsRecurseBase<T>>
{
    typedef const T &ArgumentType;
    typedef FieldTraitsList<T, FieldTraitsRecurseBase<T>> Lists;
    using Lists::copyFromBin;
    using Lists::copyToBin;
    using Lists::getBinSize;

    static UInt32 getBinSize(const T &object)
    {
        return static_cast<UInt32>(text(object).size() + 1);
    }
    static void copyToBin(BinaryDataHandler &target, const T &object)
    {
        const std::string form = text(object);
        target.put(form.c_str(), form.size() + 1);
    }
    static void copyFromBin(BinaryDataHandler &source, T &object)
    {
        std::string form;
        Char8 character = 0;
        for (source.getValue(character); character != 0; source.getValue(character)) {
            form += character;
        }
        const Char8 *cursor = form.c_str();
        FieldDataTraits<T>::getFromString(object, cursor);
    }

private:
    static std::string text(const T &object)
    {
        std::string form;
        FieldDataTraits<T>::putToString(object, form);
        return form;
    }
};

/// Base for a plain number. Its binary form is its bytes. It is passed by value.
template <class T> struct FieldTraitsIntegralRecurseMapper : FieldTraits
{
    static_assert(std::is_trivially_copyable_v<T>);
    typedef T ArgumentType;

    static UInt32 getBinSize(const T &) { return sizeof(T); }
    static void copyToBin(BinaryDataHandler &target, const T &object) { target.putValue(object); }
    static void copyFromBin(BinaryDataHandler &source, T &object) { source.getValue(object); }

    static UInt32 getBinSize(const T *, UInt32 count)
    {
        return static_cast<UInt32>(sizeof(T) * count);
    }
    static void copyToBin(BinaryDataHandler &target, const T *objects, UInt32 count)
    {
        target.put(objects, sizeof(T) * count);
    }
    static void copyFromBin(BinaryDataHandler &source, T *objects, UInt32 count)
    {
        source.get(objects, sizeof(T) * count);
    }
};

class FieldContainerPtr;
class FieldContainerPtrBase;

/// Base for a type with the binary form of `T::Inherited`. Handles of all classes have the form of
/// FieldContainerPtr. If `forwards` is false, the binary form is empty and reading changes nothing.
template <class T, bool forwards = false> struct FieldTraitsRecurseMapper : FieldTraits
{
    typedef const T &ArgumentType;

    static UInt32 getBinSize(const T &) { return 0; }
    static void copyToBin(BinaryDataHandler &, const T &) { }
    static void copyFromBin(BinaryDataHandler &, T &) { }
    static UInt32 getBinSize(const T *, UInt32) { return 0; }
    static void copyToBin(BinaryDataHandler &, const T *, UInt32) { }
    static void copyFromBin(BinaryDataHandler &, T *, UInt32) { }
};

template <class T>
struct FieldTraitsRecurseMapper<T, true> : FieldTraitsList<T, FieldTraitsRecurseMapper<T, true>>
{
    typedef const T &ArgumentType;
    typedef FieldTraitsList<T, FieldTraitsRecurseMapper<T, true>> Lists;
    using Lists::copyFromBin;
    using Lists::copyToBin;
    using Lists::getBinSize;

    static constexpr bool isHandle = std::is_base_of_v<FieldContainerPtrBase, T>;
    typedef FieldDataTraits<std::conditional_t<isHandle, FieldContainerPtr, typename T::Inherited>>
        Forwarded;

    static UInt32 getBinSize(const T &object) { return Forwarded::getBinSize(object); }
    static void copyToBin(BinaryDataHandler &target, const T &object)
    {
        Forwarded::copyToBin(target, object);
    }
    static void copyFromBin(BinaryDataHandler &source, T &object)
    {
        Forwarded::copyFromBin(source, object);
    }
};

OSG_END_NAMESPACE

// Headers of clients declare their field types with these macros. This library needs no
// declaration.
#define OSG_DLLEXPORT_DECL1(FieldTemplate, Type, mapping)
#define OSG_DLLEXPORT_DECL2(FieldTemplate, Type, nameSpace, mapping)
