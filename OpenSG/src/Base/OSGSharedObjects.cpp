#include "Base/OSGStartupPhases.h"

#include <OpenSG/OSGLog.h>

#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

typedef std::vector<std::string> Names;

Names &requestedObjects()
{
    static Names *const names = new Names;
    return *names;
}

Names listFrom(const Char8 *environmentVariable)
{
    Names names;
    NumberText::Tokens tokens(std::getenv(environmentVariable), ":");
    while (tokens.next()) {
        names.push_back(tokens.token());
    }
    return names;
}

bool load(const std::string &path)
{
    return dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
}

bool loadFromFolders(const std::string &name, const Names &folders)
{
    for (const std::string &folder : folders) {
        if (load(folder + '/' + name)) {
            return true;
        }
    }
    return load(name);
}

} // namespace

void preloadSharedObject(const Char8 *szName)
{
    if (szName) {
        requestedObjects().emplace_back(szName);
    }
}

void loadSharedObjects()
{
    Names names = std::exchange(requestedObjects(), {});
    for (std::string &name : listFrom("OSG_LOAD_LIBS")) {
        names.push_back(std::move(name));
    }
    const Names folders = listFrom("OSG_PLUGIN_PATH");
    for (const std::string &name : names) {
        if (!loadFromFolders(name, folders)) {
            SWARNING << "Couldn't load shared object " << name << endLog;
        }
    }
}

OSG_END_NAMESPACE
