#pragma once

#include <kavoMessage.h>
#include <kavoSDKExport.h>

#include <QObject>

#include <string>
#include <vector>

class QPixmap;

/// Base of every module that a plug-in brings.
///
/// A plug-in library exports `extern "C" void initPlugin()`. The host calls it once on the GUI
/// thread, after osgInit and with main window and dock-window manager in place; the plug-in makes
/// its modules there, usually as function-local statics. A module registers itself with its
/// construction and leaves with its destruction, which may be as late as process exit: application
/// object, main window, dock-window manager and callback table outlive all static objects, and the
/// host has hidden its windows by then.
///
/// All virtual functions are called on the GUI thread. An exception that leaves one of them is
/// caught by the host and logged; the module stays registered.
class KAVO_SDK_EXPORT kavoModuleBase : public QObject
{
    Q_OBJECT

public:
    /// \param name what users see; unique among the modules
    /// \param group the kind of module, for lists
    /// \param messageMask union of the kavoMessageIds that reach receivedMessage
    /// \param icon may be null; stays the caller's and must outlive the module
    kavoModuleBase(
        const char *name, const char *group, unsigned int messageMask, QPixmap *icon = nullptr);
    ~kavoModuleBase() override;

    /// The module's window, or null if it has none.
    virtual QWidget *getWidget() const;
    /// Called once, when all plug-ins are loaded.
    virtual void init();
    /// Called after containers of the scene have changed, at most once per event-loop round.
    virtual void update();
    /// Called each time the event loop has no more work and is about to wait.
    virtual void loop();
    /// A message of the mask. The result says whether the module used it; every other module
    /// receives the message all the same.
    virtual bool receivedMessage(kavoMessage &message);

    const std::string &name() const { return m_name; }
    const std::string &group() const { return m_group; }
    unsigned int messageMask() const { return m_messageMask; }
    QPixmap *icon() const { return m_icon; }

    /// All living modules in the order of their construction.
    static const std::vector<kavoModuleBase *> &modules();

private:
    std::string m_name;
    std::string m_group;
    unsigned int m_messageMask;
    QPixmap *m_icon;
};
