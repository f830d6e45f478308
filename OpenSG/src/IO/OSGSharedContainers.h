#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <string>
#include <unordered_map>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

/// Knows which containers of a graph are reached more than once, and gives these the names by which
/// a file refers to them: their own, if that can be told from all others, or one made of type and
/// id.
class SharedContainers
{
public:
    explicit SharedContainers(const FieldContainerPtr &root);

    /// Of different containers.
    std::size_t count() const { return _entries.size(); }
    bool isShared(const FieldContainerPtr &container) const;
    /// Empty until it has one.
    const std::string &name(const FieldContainerPtr &container) const;
    /// Gives it one.
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
