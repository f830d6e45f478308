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

template <class ParameterT> struct ShaderParameterIs
{
    typedef ParameterT Type;
};

/// `Type` is the parameter class for values of the type T.
template <class T> struct ShaderParameterFor;

// clang-format off
template <> struct ShaderParameterFor<bool> : ShaderParameterIs<ShaderParameterBool> { };
template <> struct ShaderParameterFor<Int32> : ShaderParameterIs<ShaderParameterInt> { };
template <> struct ShaderParameterFor<Real32> : ShaderParameterIs<ShaderParameterReal> { };
template <> struct ShaderParameterFor<std::string> : ShaderParameterIs<ShaderParameterString> { };
template <> struct ShaderParameterFor<Vec2f> : ShaderParameterIs<ShaderParameterVec2f> { };
template <> struct ShaderParameterFor<Vec3f> : ShaderParameterIs<ShaderParameterVec3f> { };
template <> struct ShaderParameterFor<Vec4f> : ShaderParameterIs<ShaderParameterVec4f> { };
template <> struct ShaderParameterFor<Matrix> : ShaderParameterIs<ShaderParameterMatrix> { };
template <> struct ShaderParameterFor<MFInt32> : ShaderParameterIs<ShaderParameterMInt> { };
template <> struct ShaderParameterFor<MFReal32> : ShaderParameterIs<ShaderParameterMReal> { };
template <> struct ShaderParameterFor<MFVec2f> : ShaderParameterIs<ShaderParameterMVec2f> { };
template <> struct ShaderParameterFor<MFVec3f> : ShaderParameterIs<ShaderParameterMVec3f> { };
template <> struct ShaderParameterFor<MFVec4f> : ShaderParameterIs<ShaderParameterMVec4f> { };
template <> struct ShaderParameterFor<MFMatrix> : ShaderParameterIs<ShaderParameterMMatrix> { };
// clang-format on

OSG_END_NAMESPACE
