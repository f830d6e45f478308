#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <utility>

/// Holds one reference to a container of any type for as long as it lives.
template <class Handle> class kavoContainerRef
{
public:
    kavoContainerRef() = default;

    explicit kavoContainerRef(const Handle &container)
        : m_container(container)
    {
        osg::addRefCP(m_container);
    }

    kavoContainerRef(const kavoContainerRef &other)
        : kavoContainerRef(other.m_container)
    {
    }

    kavoContainerRef(kavoContainerRef &&other) noexcept
        : m_container(other.m_container)
    {
        other.m_container = osg::NullFC;
    }

    ~kavoContainerRef() { osg::subRefCP(m_container); }

    kavoContainerRef &operator=(kavoContainerRef other) noexcept
    {
        std::swap(m_container, other.m_container);
        return *this;
    }

    const Handle &get() const { return m_container; }

private:
    Handle m_container;
};
