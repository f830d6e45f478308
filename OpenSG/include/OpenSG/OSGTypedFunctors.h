#pragma once

#include <OpenSG/OSGConfig.h>

#include <functional>
#include <utility>

OSG_BEGIN_NAMESPACE

/// A functor with this argument type passes a handle by reference. The called function may take it
/// by reference, by reference to const or by value.
template <class PtrT> struct CPtrRefCallArg
{
    typedef PtrT &ArgType;
};

/// A functor with this argument type passes a value.
template <class T> struct ArgsCollector
{
    typedef T ArgType;
};

/// A callable of one argument. A default functor is empty.
template <class RetT, class Arg1T> class TypedFunctor1Base
{
public:
    typedef std::function<RetT(typename Arg1T::ArgType)> Function;

    TypedFunctor1Base() = default;
    TypedFunctor1Base(Function function)
        : _function(std::move(function))
    {
    }

    RetT call(typename Arg1T::ArgType argument) const { return _function(argument); }

private:
    Function _function;
};

/// A callable of two arguments.
template <class RetT, class Arg1T, class Arg2T> class TypedFunctor2Base
{
public:
    typedef std::function<RetT(typename Arg1T::ArgType, typename Arg2T::ArgType)> Function;

    TypedFunctor2Base() = default;
    TypedFunctor2Base(Function function)
        : _function(std::move(function))
    {
    }

    RetT call(typename Arg1T::ArgType first, typename Arg2T::ArgType second) const
    {
        return _function(first, second);
    }

private:
    Function _function;
};

template <class RetT, class PtrT>
TypedFunctor1Base<RetT, CPtrRefCallArg<PtrT>> osgTypedFunctionFunctor1CPtrRef(RetT (*f)(PtrT &))
{
    return { f };
}

template <class RetT, class PtrT>
TypedFunctor1Base<RetT, CPtrRefCallArg<PtrT>> osgTypedFunctionFunctor1CPtrRef(
    RetT (*f)(const PtrT &))
{
    return { f };
}

template <class RetT, class PtrT>
TypedFunctor1Base<RetT, CPtrRefCallArg<PtrT>> osgTypedFunctionFunctor1CPtrRef(RetT (*f)(PtrT))
{
    return { f };
}

/// The object must outlive the functor. Among overloads, the method that takes the handle by
/// reference is used.
template <class RetT, class ObjectT, class PtrT>
TypedFunctor1Base<RetT, CPtrRefCallArg<PtrT>> osgTypedMethodFunctor1ObjPtrCPtrRef(
    ObjectT *object, RetT (ObjectT::*method)(PtrT &))
{
    return { [=](PtrT &argument) { return (object->*method)(argument); } };
}

template <class RetT, class ObjectT, class PtrT, class OwnerT, class MethodT>
TypedFunctor1Base<RetT, CPtrRefCallArg<PtrT>> osgTypedMethodFunctor1ObjPtrCPtrRef(
    ObjectT *object, MethodT OwnerT::*method)
{
    return { [=](PtrT &argument) { return (object->*method)(argument); } };
}

template <class RetT, class PtrT, class Arg2T>
TypedFunctor2Base<RetT, CPtrRefCallArg<PtrT>, ArgsCollector<Arg2T>> osgTypedFunctionFunctor2CPtrRef(
    RetT (*f)(PtrT &, Arg2T))
{
    return { f };
}

template <class RetT, class PtrT, class Arg2T>
TypedFunctor2Base<RetT, CPtrRefCallArg<PtrT>, ArgsCollector<Arg2T>> osgTypedFunctionFunctor2CPtrRef(
    RetT (*f)(const PtrT &, Arg2T))
{
    return { f };
}

template <class RetT, class PtrT, class Arg2T>
TypedFunctor2Base<RetT, CPtrRefCallArg<PtrT>, ArgsCollector<Arg2T>> osgTypedFunctionFunctor2CPtrRef(
    RetT (*f)(PtrT, Arg2T))
{
    return { f };
}

template <class RetT, class ObjectT, class PtrT, class Arg2T>
TypedFunctor2Base<RetT, CPtrRefCallArg<PtrT>, ArgsCollector<Arg2T>>
osgTypedMethodFunctor2ObjPtrCPtrRef(ObjectT *object, RetT (ObjectT::*method)(PtrT &, Arg2T))
{
    return {
        [=](PtrT &first, Arg2T second) { return (object->*method)(first, second); },
    };
}

template <class RetT, class ObjectT, class PtrT, class Arg2T, class OwnerT, class MethodT>
TypedFunctor2Base<RetT, CPtrRefCallArg<PtrT>, ArgsCollector<Arg2T>>
osgTypedMethodFunctor2ObjPtrCPtrRef(ObjectT *object, MethodT OwnerT::*method)
{
    return {
        [=](PtrT &first, Arg2T second) { return (object->*method)(first, second); },
    };
}

OSG_END_NAMESPACE
