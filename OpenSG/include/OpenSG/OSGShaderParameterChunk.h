#pragma once

#include <OpenSG/OSGShaderParameterChunkBase.h>
#include <OpenSG/OSGShaderParameterFor.h>

OSG_BEGIN_NAMESPACE

/// A chunk with named parameters. It holds a reference to each.
class ShaderParameterChunk : public ShaderParameterChunkBase
{
    typedef ShaderParameterChunkBase Inherited;

public:
    /// Sets a parameter and adds it if necessary. T is bool, Int32, Real32, std::string, Vec2f,
    /// Vec3f, Vec4f, Matrix or a multi-field of them. Returns false if the parameter has another
    /// type or the name is NULL.
    template <class T> bool setUniformParameter(const Char8 *name, const T &value);
    /// Returns false and leaves `value` alone if there is no parameter of this name and type.
    template <class T> bool getUniformParameter(const Char8 *name, T &value) const;
    /// Removes a parameter. Returns false if there is none.
    bool subUniformParameter(const Char8 *name);

    /// Returns null if there is none.
    ShaderParameterPtr findParameter(const Char8 *name) const;

protected:
    friend class FieldContainer;

    ShaderParameterChunk() = default;
    ShaderParameterChunk(const ShaderParameterChunk &) = default;
    ~ShaderParameterChunk() override = default;

private:
    void addParameter(const ShaderParameterPtr &parameter, const Char8 *name);
};

template <class T> bool ShaderParameterChunk::setUniformParameter(const Char8 *name, const T &value)
{
    typedef typename ShaderParameterFor<T>::Type Parameter;
    if (name && !findParameter(name)) {
        addParameter(Parameter::create(), name);
    }
    const auto parameter = Parameter::Ptr::dcast(findParameter(name));
    if (parameter) {
        beginEditCP(parameter, Parameter::ValueFieldMask);
        parameter->getValue() = value;
        endEditCP(parameter, Parameter::ValueFieldMask);
    }
    return parameter;
}

template <class T> bool ShaderParameterChunk::getUniformParameter(const Char8 *name, T &value) const
{
    const auto parameter = ShaderParameterFor<T>::Type::Ptr::dcast(findParameter(name));
    if (parameter) {
        value = parameter->getValue();
    }
    return parameter;
}

OSG_END_NAMESPACE
