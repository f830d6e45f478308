#pragma once

#include <kavoSDKExport.h>

class QKAVODockWindowManager;
class QWidget;
class kavoMessage;
class kavoModuleBase;

/// Gives modules access to the host: main window, dock-window manager, named callbacks, messages.
///
/// GUI thread only. Usable until the end of static destruction. Exceptions from callbacks and
/// modules are logged and not passed on.
class KAVO_SDK_EXPORT kavoController
{
public:
    using Callback = void (*)(kavoMessage &);

    /// Returns the parent for windows of modules, null if the host has none yet.
    static QWidget *getMainWindow();
    /// Returns null if the host has none yet.
    static QKAVODockWindowManager *getDockWindowManager();

    /// Registers a callback under a name. Has no effect if the callback is registered under the
    /// name already.
    static void addCB(const char *name, Callback callback);
    /// Removes a callback, or all callbacks of the name if it is null.
    static void subCB(const char *name, Callback callback = nullptr);
    /// Calls all callbacks of a name in the order of their registration. A callback that is removed
    /// meanwhile is skipped; one that is added meanwhile is not called before the next call().
    /// \param reserved should be 0
    /// \returns the number of callbacks that were called
    static int call(const char *name, kavoMessage &message, int reserved);

    /// Sends the message to every module whose mask contains a bit of its identifier.
    static void sendMessage(kavoMessage &message);
    /// Calls init, update or loop of every module.
    static void notifyModules(void (kavoModuleBase::*operation)());

    /// Called by the host. Both objects must live until the process ends.
    static void setMainWindow(QWidget *window);
    static void setDockWindowManager(QKAVODockWindowManager *manager);
};
