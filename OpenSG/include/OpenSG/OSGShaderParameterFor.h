#pragma once

#include <OpenSG/OSGShaderParameterBool.h>
#include <OpenSG/OSGShaderParameterInt.h>
#include <OpenSG/OSGShaderParameterMInt.h>
#include <OpenSG/OSGShaderParameterMMatrix.h>
#include <OpenSG/OSGShaderParameterMReal.h>
#include <OpenSG/OSGShaderParameterMVec2f.h>
#include <OpenSG/OSGShaderParameterMVec3f.h>
#include <OpenSG/OSGShaderParameterMVec4f.h>
#include <OpenSG/OSGShaderParameterMatrix.h>
#include <OpenSG/OSGShaderParameterReal.h>
#include <OpenSG/OSGShaderParameterString.h>
#include <OpenSG/OSGShaderParameterVec2f.h>
#include <OpenSG/OSGShaderParameterVec3f.h>
#include <OpenSG/OSGShaderParameterVec4f.h>

OSG_BEGIN_NAMESPACE

/// The parameter class that holds values of the type T.
template <class T> struct ShaderParameterFor;

template <> struct ShaderParameterFor<bool>
{
    typedef ShaderParameterBool Type;
};
template <> struct ShaderParameterFor<Int32>
{
    typedef ShaderParameterInt Type;
};
template <> struct ShaderParameterFor<Real32>
{
    typedef ShaderParameterReal Type;
};
template <> struct ShaderParameterFor<std::string>
{
    typedef ShaderParameterString Type;
};
template <> struct ShaderParameterFor<Vec2f>
{
    typedef ShaderParameterVec2f Type;
};
template <> struct ShaderParameterFor<Vec3f>
{
    typedef ShaderParameterVec3f Type;
};
template <> struct ShaderParameterFor<Vec4f>
{
    typedef ShaderParameterVec4f Type;
};
template <> struct ShaderParameterFor<Matrix>
{
    typedef ShaderParameterMatrix Type;
};
template <> struct ShaderParameterFor<MFInt32>
{
    typedef ShaderParameterMInt Type;
};
template <> struct ShaderParameterFor<MFReal32>
{
    typedef ShaderParameterMReal Type;
};
template <> struct ShaderParameterFor<MFVec2f>
{
    typedef ShaderParameterMVec2f Type;
};
template <> struct ShaderParameterFor<MFVec3f>
{
    typedef ShaderParameterMVec3f Type;
};
template <> struct ShaderParameterFor<MFVec4f>
{
    typedef ShaderParameterMVec4f Type;
};
template <> struct ShaderParameterFor<MFMatrix>
{
    typedef ShaderParameterMMatrix Type;
};

OSG_END_NAMESPACE
