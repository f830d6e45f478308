#include <QKAVODockWindowManager.h>

#include <kavoLog.h>

#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>
#include <qtadvanceddocking/DockWidgetTab.h>

#include <QAction>
#include <QDataStream>
#include <QMainWindow>
#include <QMenu>
#include <QSplitter>

#include <algorithm>
#include <numeric>

namespace {

ads::DockWidgetArea sideOf(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return ads::LeftDockWidgetArea;
    case Qt::TopDockWidgetArea:
        return ads::TopDockWidgetArea;
    case Qt::BottomDockWidgetArea:
        return ads::BottomDockWidgetArea;
    default:
        return ads::RightDockWidgetArea;
    }
}

// Share of the main window that a side gets when it opens, in percent.
int shareOf(ads::DockWidgetArea side)
{
    return side == ads::RightDockWidgetArea ? 35 : 25;
}

// The other widgets keep their proportions. Before the first layout all have the same size.
void giveShare(ads::CDockAreaWidget *area, int percent)
{
    auto *splitter = qobject_cast<QSplitter *>(area->parentWidget());
    if (!splitter || splitter->count() < 2)
        return;
    const int own = splitter->indexOf(area);
    QList<int> sizes = splitter->sizes();
    sizes[own] = 0;
    if (sizes.count(0) == sizes.size())
        std::fill(sizes.begin(), sizes.end(), 100);
    sizes[own] = 0;
    const int others = std::accumulate(sizes.cbegin(), sizes.cend(), 0);
    sizes[own] = others * percent / (100 - percent);
    splitter->setSizes(sizes);
}

QString areaName(const QString &group, Qt::DockWidgetArea area)
{
    return group + '/' + QString::number(sideOf(area));
}

// Focuses the window if it accepts the Tab focus, else the first such widget in it.
void focusFirstIn(QWidget *window)
{
    QWidget *candidate = window;
    do {
        if ((candidate->focusPolicy() & Qt::TabFocus) && candidate->isEnabled())
            return candidate->setFocus(Qt::ShortcutFocusReason);
        candidate = candidate->nextInFocusChain();
    } while (window->isAncestorOf(candidate));
}

ads::CDockManager *createDocks(QMainWindow *mainWindow)
{
    ads::CDockManager::setConfigFlags(ads::CDockManager::DefaultOpaqueConfig);
    ads::CDockManager::setConfigFlag(ads::CDockManager::FocusHighlighting);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasCloseButton, false);
    ads::CDockManager::setConfigFlag(ads::CDockManager::AlwaysShowTabs);
    return new ads::CDockManager(mainWindow);
}

} // namespace

QKAVODockWindowManager::QKAVODockWindowManager(QMainWindow *mainWindow)
    : QObject(mainWindow)
    , m_docks(createDocks(mainWindow))
{
}

QKAVODockWindowManager::~QKAVODockWindowManager() = default;

void QKAVODockWindowManager::add(const char *key, const QString &group, QWidget *widget,
    const QString &hintKey, const QIcon &icon, const QString &title, Qt::DockWidgetArea area,
    bool visible, QMenu *menu)
{
    const QString name = QString::fromUtf8(key);
    if (m_windows.contains(name)) {
        kavoLog::error("A window is already docked under the key '%s'", key);
        return;
    }
    auto *dock = new ads::CDockWidget(title);
    dock->setObjectName(name);
    dock->setWidget(widget, ads::CDockWidget::ForceNoScrollArea);
    dock->setIcon(icon);
    QAction *action = dock->toggleViewAction();
    action->setIcon(icon);
    action->disconnect(dock); // it would close a window behind another tab
    connect(action, &QAction::triggered, this, [this, name] { toggle(name); });
    connect(widget, &QWidget::windowTitleChanged, dock->tabWidget(), &QWidget::setToolTip);
    connect(widget, &QObject::destroyed, this, [this, name] { remove(name); });
    if (menu)
        menu->addAction(action);
    m_keys.append(name);
    place(m_windows[name] = { dock, widget, group, hintKey, area, visible });
    emit windowsChanged();
}

QStringList QKAVODockWindowManager::keys() const
{
    return m_keys;
}

QWidget *QKAVODockWindowManager::window(const QString &key) const
{
    return m_windows.contains(key) ? m_windows[key].widget : nullptr;
}

QString QKAVODockWindowManager::group(const QString &key) const
{
    return m_windows.contains(key) ? m_windows[key].group : QString();
}

QString QKAVODockWindowManager::hintKey(const QString &key) const
{
    return m_windows.contains(key) ? m_windows[key].hintKey : QString();
}

QAction *QKAVODockWindowManager::toggleAction(const QString &key) const
{
    return m_windows.contains(key) ? m_windows[key].dock->toggleViewAction() : nullptr;
}

void QKAVODockWindowManager::show(const QString &key)
{
    if (!m_windows.contains(key))
        return;
    ads::CDockWidget *dock = m_windows[key].dock;
    dock->toggleView(true);
    dock->raise();
}

void QKAVODockWindowManager::toggle(const QString &key)
{
    if (!m_windows.contains(key))
        return; // deleted by a receiver of the action's signals
    ads::CDockWidget *dock = m_windows[key].dock;
    if (!dock->isClosed() && dock->isCurrentTab())
        dock->toggleView(false);
    else
        show(key);
    if (!m_windows.contains(key))
        return; // deleted by a receiver of the dock's signals
    if (!dock->isClosed())
        focusFirstIn(m_windows[key].widget);
    dock->toggleViewAction()->setChecked(!dock->isClosed());
}

QByteArray QKAVODockWindowManager::saveState() const
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << m_keys.join('\n') << m_docks->saveState();
    return state;
}

bool QKAVODockWindowManager::restoreState(const QByteArray &state)
{
    QDataStream stream(state);
    QString keys;
    QByteArray places;
    stream >> keys >> places;
    if (stream.status() != QDataStream::Ok || !m_docks->restoreState(places))
        return false;
    const QStringList knownKeys = keys.split('\n');
    for (const QString &key : qAsConst(m_keys)) {
        if (!knownKeys.contains(key))
            place(m_windows[key]);
    }
    return true;
}

void QKAVODockWindowManager::resetLayout()
{
    m_firstOfArea.clear();
    for (const QString &key : qAsConst(m_keys))
        place(m_windows[key]);
}

void QKAVODockWindowManager::hideAll()
{
    m_docks->hideManagerAndFloatingWidgets();
}

// The first window of an area stays the current tab when others are added.
void QKAVODockWindowManager::place(const Window &window)
{
    ads::CDockWidget *&first = m_firstOfArea[areaName(window.group, window.area)];
    if (first && first->dockAreaWidget()) {
        m_docks->addDockWidgetTabToArea(window.dock, first->dockAreaWidget());
    } else {
        const ads::DockWidgetArea side = sideOf(window.area);
        giveShare(m_docks->addDockWidget(side, window.dock), shareOf(side));
        first = window.dock;
    }
    window.dock->toggleView(window.visible);
    first->setAsCurrentTab();
}

// Runs in the widget's destructor. Deletes the dock later, when the widget is no longer its child.
void QKAVODockWindowManager::remove(const QString &key)
{
    const Window window = m_windows.take(key);
    m_keys.removeAll(key);
    const QString area = areaName(window.group, window.area);
    if (m_firstOfArea.value(area) == window.dock)
        m_firstOfArea.remove(area);
    m_docks->removeDockWidget(window.dock);
    window.dock->deleteLater();
    emit windowsChanged();
}
