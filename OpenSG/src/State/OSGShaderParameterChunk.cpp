#include <OpenSG/OSGShaderParameterChunk.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

ShaderParameterPtr ShaderParameterChunk::findParameter(const Char8 *name) const
{
    const auto found = std::find_if(
        _mfParameters.begin(), _mfParameters.end(), [=](const ShaderParameterPtr &parameter) {
            return name && parameter && parameter->getName() == name;
        });
    return found != _mfParameters.end() ? *found : ShaderParameterPtr();
}

bool ShaderParameterChunk::subUniformParameter(const Char8 *name)
{
    const ShaderParameterPtr parameter = findParameter(name);
    if (!parameter) {
        return false;
    }
    beginEditCP(ShaderParameterChunkPtr(this), ParametersFieldMask);
    _mfParameters.erase(_mfParameters.find(parameter));
    endEditCP(ShaderParameterChunkPtr(this), ParametersFieldMask);
    return true;
}

// The reference is added when the edit ends.
void ShaderParameterChunk::addParameter(const ShaderParameterPtr &parameter, const Char8 *name)
{
    parameter->setName(name);
    beginEditCP(ShaderParameterChunkPtr(this), ParametersFieldMask);
    _mfParameters.push_back(parameter);
    endEditCP(ShaderParameterChunkPtr(this), ParametersFieldMask);
}

OSG_END_NAMESPACE
