#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGTime.h>
#include <OpenSG/OSGValueFieldTypes.h>
#include <OpenSG/OSGVolumeBytes.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

/// Written in quotes, without escapes. Read with all characters, including quotes. Callers that
/// show the text in an editor have to remove the quotes.
template <class T> struct StringFieldTraits : FieldTraitsList<T, StringFieldTraits<T>>
{
    typedef const T &ArgumentType;
    typedef FieldTraitsList<T, StringFieldTraits<T>> Lists;
    enum {
        StringConvertable = FieldTraits::ToStringConvertable | FieldTraits::FromStringConvertable
    };
    using Lists::copyFromBin;
    using Lists::copyToBin;
    using Lists::getBinSize;

    static T getDefault() { return T(); }
    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal = inVal;
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr) { outStr = '"' + inVal + '"'; }

    static UInt32 getBinSize(const T &object)
    {
        return static_cast<UInt32>(sizeof(UInt32) + object.size());
    }
    static void copyToBin(BinaryDataHandler &target, const T &object)
    {
        target.putValue(static_cast<UInt32>(object.size()));
        target.put(object.data(), object.size());
    }
    static void copyFromBin(BinaryDataHandler &source, T &object)
    {
        UInt32 size = 0;
        source.getValue(size);
        object.resize(std::min<std::size_t>(size, source.getRest()));
        source.get(object.data(), object.size());
    }
};

/// The text is the components, separated by single blanks.
template <class T> struct ColorFieldTraits : TextFieldTraits<T>
{
    typedef const T &ArgumentType;

    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal.setValue(inVal);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr)
    {
        outStr.clear();
        NumberText::writeList(outStr, inVal.getValuesRGB(), T::Size, " ");
    }
};

/// The text of a box is six numbers, lower corner first. A sphere is written as four numbers.
template <class T> struct VolumeFieldTraits : FieldTraitsList<T, VolumeFieldTraits<T>>
{
    typedef const T &ArgumentType;
    typedef FieldTraitsList<T, VolumeFieldTraits<T>> Lists;
    enum {
        StringConvertable = FieldTraits::ToStringConvertable | FieldTraits::FromStringConvertable
    };
    using Lists::copyFromBin;
    using Lists::copyToBin;
    using Lists::getBinSize;

    static T getDefault() { return T(); }
    static bool getFromString(T &outVal, const Char8 *&inVal)
    {
        outVal.setValue(inVal);
        return true;
    }
    static void putToString(const T &inVal, std::string &outStr) { outStr = volumeText(inVal); }

    static UInt32 getBinSize(const T &) { return sizeof(VolumeBytes); }
    static void copyToBin(BinaryDataHandler &target, const T &object)
    {
        target.putValue(VolumeBytes::of(object));
    }
    static void copyFromBin(BinaryDataHandler &source, T &object)
    {
        VolumeBytes bytes;
        source.getValue(bytes);
        bytes.assignTo(object);
    }

private:
    static std::string volumeText(const Volume &volume);
};

template <> std::string VolumeFieldTraits<BoxVolume>::volumeText(const Volume &volume);
template <> std::string VolumeFieldTraits<DynamicVolume>::volumeText(const Volume &volume);

/// The text is the normal, a comma and the distance. Reading fails and leaves the value alone.
template <class T> struct PlaneFieldTraits : TextFieldTraits<T>
{
    typedef const T &ArgumentType;

    static bool getFromString(T &, const Char8 *&) { return false; }
    static void putToString(const T &inVal, std::string &outStr)
    {
        outStr.clear();
        NumberText::writeList(outStr, inVal.getNormal().getValues(), 3, " ");
        outStr += ", ";
        NumberText::write(outStr, inVal.getDistanceFromOrigin());
    }
};

OSG_BASE_VALUE_TYPES(OSG_VALUE_TRAITS)

OSG_END_NAMESPACE
