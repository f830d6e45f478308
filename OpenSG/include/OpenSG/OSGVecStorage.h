#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// The components of vectors and points and their names.
template <class T> class VecStorage2
{
public:
    typedef T ValueType;
    static constexpr UInt32 Size = 2;

    T x() const { return _values[0]; }
    T y() const { return _values[1]; }

protected:
    T _values[2] = {};
};

template <class T> class VecStorage3
{
public:
    typedef T ValueType;
    static constexpr UInt32 Size = 3;

    T x() const { return _values[0]; }
    T y() const { return _values[1]; }
    T z() const { return _values[2]; }

protected:
    T _values[3] = {};
};

template <class T> class VecStorage4
{
public:
    typedef T ValueType;
    static constexpr UInt32 Size = 4;

    T x() const { return _values[0]; }
    T y() const { return _values[1]; }
    T z() const { return _values[2]; }
    T w() const { return _values[3]; }

protected:
    T _values[4] = {};
};

OSG_END_NAMESPACE
