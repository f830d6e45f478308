#include "EnumDriver.h"

#include <QKAVODockWindowManager.h>
#include <kavoController.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QProcess>

#include <array>

namespace {

constexpr int pollInterval = 100; // ms
constexpr int patience = 30000; // ms
constexpr int failed = 3;

QTreeWidgetItem *findBelow(QTreeWidgetItem *item, const QString &name)
{
    if (item->text(0) == name)
        return item;
    for (int i = 0; i < item->childCount(); ++i) {
        if (QTreeWidgetItem *found = findBelow(item->child(i), name))
            return found;
    }
    return nullptr;
}

} // namespace

EnumDriver::EnumDriver()
{
    connect(&m_timer, &QTimer::timeout, this, &EnumDriver::next);
    m_timer.start(pollInterval);
    m_time.start();
}

void EnumDriver::next()
{
    static constexpr std::array<Step, 6> steps
        = { &EnumDriver::openRow, &EnumDriver::openList, &EnumDriver::pickEntry,
              &EnumDriver::closeList, &EnumDriver::saveScene, &EnumDriver::endHost };
    if (m_time.elapsed() > patience)
        return QCoreApplication::exit(failed);
    if ((this->*steps[m_step])() && ++m_step == steps.size())
        m_timer.stop();
}

QTreeWidget *EnumDriver::tree()
{
    QWidget *window = kavoController::getDockWindowManager()->window("Node Editor");
    return window ? window->findChild<QTreeWidget *>() : nullptr;
}

bool EnumDriver::openRow()
{
    QTreeWidget *rows = tree();
    QTreeWidgetItem *row
        = rows && rows->isVisible() ? findBelow(rows->invisibleRootItem(), "minFilter") : nullptr;
    if (!row)
        return false;
    rows->scrollToItem(row, QAbstractItemView::PositionAtCenter);
    const int y = rows->visualItemRect(row).center().y();
    const int x = rows->columnViewportPosition(1) + rows->columnWidth(1) / 2;
    click(rows->viewport(), { x, y });
    return true;
}

bool EnumDriver::openList()
{
    auto *choices = tree()->findChild<QComboBox *>();
    if (!choices || !choices->isVisible())
        return false;
    click(choices, choices->rect().center());
    return true;
}

bool EnumDriver::pickEntry()
{
    auto *choices = tree()->findChild<QComboBox *>();
    if (!choices || !choices->view()->isVisible())
        return false;
    const QModelIndex entry = choices->model()->index(choices->findText("GL_LINEAR"), 0);
    click(choices->view()->viewport(), choices->view()->visualRect(entry).center());
    return true;
}

bool EnumDriver::closeList()
{
    auto *choices = tree()->findChild<QComboBox *>();
    return !choices || !choices->view()->isVisible();
}

bool EnumDriver::saveScene()
{
    const QWidget *window = kavoController::getMainWindow();
    if (!window->windowTitle().contains(".osg"))
        return true;
    if (!m_isSaving && window->isWindowModified()) {
        m_isSaving = true;
        QProcess::execute("xdotool", { "key", "ctrl+s" });
    }
    return m_isSaving && !window->isWindowModified();
}

bool EnumDriver::endHost()
{
    QCoreApplication::quit();
    return true;
}

void EnumDriver::click(const QWidget *widget, const QPoint &position)
{
    const QPoint global = widget->mapToGlobal(position);
    QProcess::execute("xdotool",
        { "mousemove", QString::number(global.x()), QString::number(global.y()), "sleep", "0.2",
            "click", "1" });
}

extern "C" Q_DECL_EXPORT void initPlugin()
{
    static EnumDriver driver;
}
