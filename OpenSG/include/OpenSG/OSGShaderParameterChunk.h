#pragma once

#include <OpenSG/OSGShaderParameterChunkBase.h>
#include <OpenSG/OSGShaderParameterFor.h>

OSG_BEGIN_NAMESPACE

/// A chunk that has named parameters. It holds a reference to each.
class ShaderParameterChunk : public ShaderParameterChunkBase
{
    typedef ShaderParameterChunkBase Inherited;

public:
    /// Sets, and adds if need be, a parameter. T is bool, Int32, Real32, std::string, Vec2f,
    /// Vec3f, Vec4f, Matrix or a multi-field of them. False if the name has another type or is
    /// NULL.
    template <class T> bool setUniformParameter(const Char8 *name, const T &value);
    /// False, and `value` stays, unless there is a parameter of that name and type.
    template <class T> bool getUniformParameter(const Char8 *name, T &value) const;
    /// False if there is none.
    bool subUniformParameter(const Char8 *name);

    /// Null if there is none.
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
