#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

enum SystemState { Startup = 0x01, Running = 0x02, Shutdown = 0x03 };
extern SystemState GlobalSystemState;

typedef bool (*InitFuncF)();
typedef bool (*ExitFuncF)();

/// Functions to run once at start or stop; a function that returns false ends the run of them.
void addInitFunction(InitFuncF initFunc); ///< by osgInit, after threading exists
void addPreMPInitFunction(InitFuncF initFunc); ///< by osgInit, before threading exists
void addSystemExitFunction(ExitFuncF exitFunc); ///< by osgExit, last added first
void addPostMPExitFunction(ExitFuncF exitFunc); ///< by osgExit, after threading has ended

/// Has osgInit load a shared object. A name without a slash is also searched for in the folders
/// that the environment variable OSG_PLUGIN_PATH lists, separated by colons.
void preloadSharedObject(const Char8 *szName);

/// Starts the library: creates the calling thread's change list and makes the container types
/// usable. Returns false as soon as one of the functions to run does; exits the process when the
/// client was compiled for another major version. A second call does nothing and returns true.
/// The arguments of the command line and the last three are ignored.
bool osgInit(Int32 argc, Char8 **argv, UInt16 major = OSG_MAJOR_VERSION,
    UInt16 minor = OSG_MINOR_VERSION, UInt16 release = OSG_RELEASE_VERSION, bool debug = false,
    bool dll = true, bool mt = true);

/// Stops the library. It runs at the end of the process if nobody calls it; unless the library
/// is running it does nothing and returns true.
bool osgExit();

/// A static object of this type is a call of addInitFunction.
struct InitFuncWrapper
{
    InitFuncWrapper(const InitFuncF initFunc) { addInitFunction(initFunc); }
};

OSG_END_NAMESPACE
