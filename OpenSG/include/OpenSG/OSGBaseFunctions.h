#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

enum SystemState { Startup = 0x01, Running = 0x02, Shutdown = 0x03 };
extern SystemState GlobalSystemState;

typedef bool (*InitFuncF)();
typedef bool (*ExitFuncF)();

/// Adds a function that osgInit or osgExit calls once. If a function returns false, the remaining
/// ones of the same kind are not called.
void addInitFunction(InitFuncF initFunc); ///< called by osgInit, when threads are available
void addPreMPInitFunction(InitFuncF initFunc); ///< called by osgInit, before that
void addSystemExitFunction(ExitFuncF exitFunc); ///< called by osgExit, in reverse order
void addPostMPExitFunction(ExitFuncF exitFunc); ///< called by osgExit, without threads

/// Makes osgInit load a shared object. A name without a slash is also searched in the folders of
/// the environment variable OSG_PLUGIN_PATH, which are separated by colons.
void preloadSharedObject(const Char8 *szName);

/// Starts the library: creates the change list of the calling thread and initializes the container
/// types. Returns false as soon as an added function returns false. Exits the process if the client
/// was compiled for another major version. A second call does nothing and returns true. The
/// arguments of the command line and the last three arguments are ignored.
bool osgInit(Int32 argc, Char8 **argv, UInt16 major = OSG_MAJOR_VERSION,
    UInt16 minor = OSG_MINOR_VERSION, UInt16 release = OSG_RELEASE_VERSION, bool debug = false,
    bool dll = true, bool mt = true);

/// Stops the library. It is called at the end of the process if the client does not call it. If the
/// library is not running, it does nothing and returns true.
bool osgExit();

/// The constructor calls addInitFunction. For static objects.
struct InitFuncWrapper
{
    InitFuncWrapper(const InitFuncF initFunc) { addInitFunction(initFunc); }
};

OSG_END_NAMESPACE
