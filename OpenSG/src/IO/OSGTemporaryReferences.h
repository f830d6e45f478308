#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Holds a reference to each of its containers while a scene is made from them. Meanwhile
/// containers may gain and lose references. Without the temporary one they would be destroyed with
/// their last reference, before they have their place in the scene.
///
/// Temporary references are not in change lists. After the release, containers without another
/// reference exist without any.
class TemporaryReferences
{
public:
    TemporaryReferences() = default;
    ~TemporaryReferences() { release({}); }
    TemporaryReferences(const TemporaryReferences &) = delete;
    TemporaryReferences &operator=(const TemporaryReferences &) = delete;

    /// Null is ignored, also in the lists below.
    void add(const FieldContainerPtr &container);
    /// Adds these containers and all that they refer to, directly or indirectly.
    void addAllFrom(const std::vector<FieldContainerPtr> &containers);

    /// Releases all containers. Destroys every container that is reachable neither from `results`
    /// nor from a container that is referenced elsewhere. It never destroys the results.
    ///
    /// Some unreachable containers are not found: circles, if all containers have other references,
    /// and the rest of a long chain of containers whose classes do not report the references that
    /// they hold (FieldContainer::forEachHeld).
    void release(const std::vector<FieldContainerPtr> &results);

private:
    void destroyAllButReachedFrom(const std::vector<FieldContainerPtr> &results);
    /// Destroys the containers that are not referenced elsewhere and removes them from the list.
    /// Returns false if there are none.
    static bool destroyLost(std::vector<FieldContainerPtr> &containers);
    static std::vector<FieldContainerPtr> heldElsewhere(
        const std::vector<FieldContainerPtr> &containers);
    static Int32 &refCount(const FieldContainerPtr &container);

    std::vector<FieldContainerPtr> _containers;
};

OSG_END_NAMESPACE
