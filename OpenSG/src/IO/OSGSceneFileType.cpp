#include <OpenSG/OSGSceneFileType.h>

OSG_BEGIN_NAMESPACE

SceneFileType::SceneFileType(const Char8 *name, std::vector<std::string> suffixes, UInt32 flags)
    : _name(name)
    , _suffixes(std::move(suffixes))
    , _flags(flags)
{
}

OSG_END_NAMESPACE
