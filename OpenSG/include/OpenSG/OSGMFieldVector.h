#pragma once

#include <OpenSG/OSGConfig.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Storage of a multi-field.
template <class T> class MFieldVector : public std::vector<T>
{
public:
    using std::vector<T>::vector;
};

OSG_END_NAMESPACE
