#include <kavoController.h>

#include <QTimer>
#include <QWidget>

// A user who closes the window at once.
extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    QTimer::singleShot(0, kavoController::getMainWindow(), &QWidget::close);
}
