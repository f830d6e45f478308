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

    /// Lets all go. Destroyed are those that neither the results nor others whom somebody else has
    /// a reference to lead to, the results never. When every one has a reference they are not
    /// looked at: a circle that nothing leads to goes only together with another container. What is
    /// left of a long chain of containers that hold one another without saying so
    /// (FieldContainer::forEachHeld) stays, too.
    void release(const std::vector<FieldContainerPtr> &results);

private:
    void destroyAllButReachedFrom(const std::vector<FieldContainerPtr> &results);
    /// False if all of them are still needed, or none is left.
    static bool destroyLost(std::vector<FieldContainerPtr> &containers);
    static std::vector<FieldContainerPtr> heldElsewhere(
        const std::vector<FieldContainerPtr> &containers);
    static Int32 &refCount(const FieldContainerPtr &container);

    std::vector<FieldContainerPtr> _kept;
};

OSG_END_NAMESPACE
