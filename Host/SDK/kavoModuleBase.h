#pragma once

#include <kavoMessage.h>
#include <kavoSDKExport.h>

#include <QObject>

#include <string>
#include <vector>

class QPixmap;

/// Base class of the modules in a plug-in.
///
/// A plug-in library exports `extern "C" void initPlugin()`. The host calls it once on the GUI
/// thread, after osgInit and after it has created main window and dock-window manager. The plug-in
/// creates its modules there, usually as function-local statics. Construction registers a module,
/// destruction removes it. A module may live until process exit: application object, main window,
/// dock-window manager and callback table outlive all static objects, and the host hides its
/// windows before.
///
/// All virtual functions are called on the GUI thread. The host catches and logs their exceptions;
/// the module stays registered.
class KAVO_SDK_EXPORT kavoModuleBase : public QObject
{
    Q_OBJECT

public:
    /// \param name shown to users; unique among the modules
    /// \param group kind of module, shown in lists
    /// \param messageMask union of the kavoMessageIds that receivedMessage() gets
    /// \param icon may be null; not owned, must outlive the module
    kavoModuleBase(
        const char *name, const char *group, unsigned int messageMask, QPixmap *icon = nullptr);
    ~kavoModuleBase() override;

    /// Returns the module's window, null if it has none.
    virtual QWidget *getWidget() const;
    /// Called once after all plug-ins are loaded.
    virtual void init();
    /// Called after containers of the scene have changed, at most once per event-loop round.
    virtual void update();
    /// Called each time before the event loop waits for events.
    virtual void loop();
    /// Handles a message of the mask. The host sends every message to all modules, whatever they
    /// return.
    /// \returns whether the module used the message
    virtual bool receivedMessage(kavoMessage &message);

    const std::string &name() const { return m_name; }
    const std::string &group() const { return m_group; }
    unsigned int messageMask() const { return m_messageMask; }
    QPixmap *icon() const { return m_icon; }

    /// Returns all modules in the order of their construction.
    static const std::vector<kavoModuleBase *> &modules();

private:
    std::string m_name;
    std::string m_group;
    unsigned int m_messageMask;
    QPixmap *m_icon;
};
