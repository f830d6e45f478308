#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Finds files by their name alone or in a list of folders.
class PathHandler
{
public:
    void clearPathList() { _folders.clear(); }
    /// Folders are searched in this order.
    void push_backPath(const Char8 *folder) { _folders.emplace_back(folder); }

    /// Returns the path of the first match that is no folder. Returns an empty text if there is
    /// none.
    std::string findFile(const Char8 *fileName) const;

private:
    std::vector<std::string> _folders;
};

OSG_END_NAMESPACE
