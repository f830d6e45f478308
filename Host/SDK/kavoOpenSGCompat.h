#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFields.h>
#include <OpenSG/OSGFieldContainerPtr.h>

/// What the OpenSG of this repository offers beyond stock 1.8, and what serves in its place there.
/// Found out at compile time, from the classes themselves.
namespace kavoOpenSG {

namespace detail {

template <class Field>
auto target(Field *field, osg::UInt32 index, int) -> decltype(field->getFieldContainer(index))
{
    return field->getFieldContainer(index);
}

// Stock 1.8 has no virtual for it. All handles have the same layout, so the field of any handle
// type can be read as one of the base handle: the customary cast, here and nowhere else.
template <class Field> osg::FieldContainerPtr target(Field *field, osg::UInt32 index, long)
{
    if (index >= field->getSize())
        return osg::NullFC;
    if (field->getCardinality() == osg::FieldType::SINGLE_FIELD)
        return static_cast<osg::SFFieldContainerPtr *>(field)->getValue();
    return static_cast<osg::MFFieldContainerPtr *>(field)->getValue(index);
}

template <class Handle> auto changesIgnored(int) -> decltype(Handle::isIgnoreChanged())
{
    return Handle::isIgnoreChanged();
}

template <class Handle> bool changesIgnored(long)
{
    return false;
}

template <class Handle>
auto setChangesIgnored(bool ignored, int) -> decltype(Handle::setIgnoreChanged(ignored), bool())
{
    Handle::setIgnoreChanged(ignored);
    return true;
}

template <class Handle> bool setChangesIgnored(bool, long)
{
    return false;
}

} // namespace detail

/// Target of a pointer field, whatever its handle type.
/// \param field its content type must be a handle
/// \param index element of a multi field, 0 for a single one
/// \returns null if the element is null or there is none of that index
inline osg::FieldContainerPtr target(osg::Field *field, osg::UInt32 index = 0)
{
    return detail::target(field, index, 0);
}

/// OpenSG's global ignore-change switch: while it is set, the end of an edit does not call the
/// container's changed(). Never set in stock 1.8.
inline bool changesIgnored()
{
    return detail::changesIgnored<osg::FieldContainerPtr>(0);
}

/// Sets or clears the ignore-change switch: for hosts that edit many containers at once and refresh
/// what depends on them afterwards, and for tests of code that asks changesIgnored().
/// \returns false if there is no such switch, as in stock 1.8
inline bool setChangesIgnored(bool ignored)
{
    return detail::setChangesIgnored<osg::FieldContainerPtr>(ignored, 0);
}

} // namespace kavoOpenSG
