#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFields.h>
#include <OpenSG/OSGFieldContainerPtr.h>

/// Functions that work with this repository's OpenSG and with stock 1.8. They detect at compile
/// time what the library offers.
namespace kavoOpenSG {

namespace detail {

template <class Field>
auto target(Field *field, osg::UInt32 index, int) -> decltype(field->getFieldContainer(index))
{
    return field->getFieldContainer(index);
}

// Stock 1.8 has no virtual function for it. All handles have the same layout, so the field of any
// handle type can be read as a field of base handles. This customary cast stands only here.
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

/// Returns the target of a pointer field with any handle type.
/// \param field a field whose content type is a handle
/// \param index element of a multi field, 0 for a single field
/// \returns null if the element is null or the index is out of range
inline osg::FieldContainerPtr target(osg::Field *field, osg::UInt32 index = 0)
{
    return detail::target(field, index, 0);
}

/// Returns OpenSG's global ignore-change switch. While it is set, the end of an edit does not call
/// the container's changed(). Always false in stock 1.8.
inline bool changesIgnored()
{
    return detail::changesIgnored<osg::FieldContainerPtr>(0);
}

/// Sets or clears the ignore-change switch. Hosts use it to edit many containers at once and
/// refresh the data that depends on them afterwards.
/// \returns false if there is no such switch, as in stock 1.8
inline bool setChangesIgnored(bool ignored)
{
    return detail::setChangesIgnored<osg::FieldContainerPtr>(ignored, 0);
}

} // namespace kavoOpenSG
