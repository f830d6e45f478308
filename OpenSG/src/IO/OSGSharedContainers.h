#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <string>
#include <unordered_map>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

/// Knows which containers of a graph are reached more than once and names them for a file. The name
/// is that of the container, if it is usable and unique, else it is made from type and id.
class SharedContainers
{
public:
    explicit SharedContainers(const FieldContainerPtr &root);

    /// The count of different containers.
    std::size_t count() const { return _entries.size(); }
    bool isShared(const FieldContainerPtr &container) const;
    /// Returns an empty text before giveName.
    const std::string &name(const FieldContainerPtr &container) const;
    /// Chooses the name and returns it.
    const std::string &giveName(const FieldContainerPtr &container);

private:
    struct Entry
    {
        bool isShared = false;
        std::string name;
    };

    std::string makeName(const FieldContainerPtr &container) const;
    bool isUsable(const std::string &name) const;

    std::unordered_map<UInt32, Entry> _entries;
    std::unordered_set<std::string> _names;
};

OSG_END_NAMESPACE
