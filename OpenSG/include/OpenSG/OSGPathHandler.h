#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Finds files: where their name says, else in one of a list of folders.
class PathHandler
{
public:
    void clearPathList() { _folders.clear(); }
    /// Folders are searched in this order.
    void push_backPath(const Char8 *folder) { _folders.emplace_back(folder); }

    /// The path of the first that is no folder; empty if there is none.
    std::string findFile(const Char8 *fileName) const;

private:
    std::vector<std::string> _folders;
};

OSG_END_NAMESPACE
