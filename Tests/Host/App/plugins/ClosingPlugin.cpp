#include <kavoController.h>

#include <QTimer>
#include <QWidget>

// Closes the window at once, as a user might.
extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    QTimer::singleShot(0, kavoController::getMainWindow(), &QWidget::close);
}
