#pragma once

#include <QMainWindow>

class QKAVODockWindowManager;

/// The host as modules see it: application object, main window and dock-window manager registered
/// with kavoController, OpenSG with writable change lists, numbers in the C locale. As in the real
/// host, all of it outlives main(), and its windows are hidden when main() returns.
namespace kavoTestHost {

QMainWindow &mainWindow();
QKAVODockWindowManager &docks();
/// Shows the main window and waits until it is on the screen.
bool show();

void start(int argc, char **argv);
int execute(QObject &test, char **argv);
int finish(int result);

/// Starts the host, runs the test object and hides the windows again.
/// \returns the exit code for main()
template <class Test> int run(int argc, char **argv)
{
    start(argc, argv);
    Test test;
    return finish(execute(test, argv));
}

} // namespace kavoTestHost

#define KAVO_TEST_MAIN(Test)                                                                       \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return kavoTestHost::run<Test>(argc, argv);                                                \
    }
