#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Keeps containers alive while a scene is made of them: until they have found their places they
/// may gain and lose references, and the last one that goes would destroy them.
///
/// The references are its own affair: change lists do not hear of them, and containers that never
/// had another one are without any again when they are released.
class ContainerKeeper
{
public:
    ContainerKeeper() = default;
    ~ContainerKeeper() { release({}); }
    ContainerKeeper(const ContainerKeeper &) = delete;
    ContainerKeeper &operator=(const ContainerKeeper &) = delete;

    /// Null is ignored, here and below.
    void keep(const FieldContainerPtr &container);
    /// With all that they refer to, directly or through others.
    void keepAllFrom(const std::vector<FieldContainerPtr> &containers);

    /// Lets all go. Those that neither anybody has a reference to nor lead the results to are
    /// destroyed, the results never.
    void release(const std::vector<FieldContainerPtr> &results);

private:
    void destroyAllButReachedFrom(const std::vector<FieldContainerPtr> &results);
    static Int32 &refCount(const FieldContainerPtr &container);

    std::vector<FieldContainerPtr> _kept;
};

OSG_END_NAMESPACE
