#pragma once

#include <kavoSDKExport.h>

class QKAVODockWindowManager;
class QWidget;
class kavoMessage;
class kavoModuleBase;

/// The host as its modules see it: main window, dock-window manager, callbacks by name, messages.
///
/// GUI thread only. All of it may be used until the end of static destruction. An exception that
/// leaves a callback or a module is logged and goes no further.
class KAVO_SDK_EXPORT kavoController
{
public:
    using Callback = void (*)(kavoMessage &);

    /// Parent for windows of modules; null before the host has one.
    static QWidget *getMainWindow();
    /// Docks windows of modules; null before the host has one.
    static QKAVODockWindowManager *getDockWindowManager();

    /// Registers a callback under a name. Registering the same pair again changes nothing.
    static void addCB(const char *name, Callback callback);
    /// Removes a callback; with null all callbacks of the name. Unknown ones are ignored.
    static void subCB(const char *name, Callback callback = nullptr);
    /// Runs every callback registered under the name, in the order of registration, with the
    /// message. A callback that is removed meanwhile is not run any more, one that is added
    /// meanwhile runs at the next call. The last argument is reserved and should be 0.
    /// \returns the number of callbacks run
    static int call(const char *name, kavoMessage &message, int reserved);

    /// Hands the message to every module whose mask has a bit of its identifier.
    static void sendMessage(kavoMessage &message);
    /// Calls one of the parameterless operations (init, update, loop) of every module.
    static void notifyModules(void (kavoModuleBase::*operation)());

    /// Host side. Neither object is owned; both must live until the process ends.
    static void setMainWindow(QWidget *window);
    static void setDockWindowManager(QKAVODockWindowManager *manager);
};
