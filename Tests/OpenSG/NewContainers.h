#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <vector>

/// The containers that have come into being since this was made and are still there.
class NewContainers
{
public:
    NewContainers();

    std::size_t count() const { return all().size(); }

    /// Whether they go with what holds them: each pointer among them counts a reference, and none
    /// leads back to where it comes from.
    bool goTogether() const;

private:
    std::vector<osg::FieldContainerPtr> all() const;

    osg::UInt32 m_firstId;
};
